#include "files/ui/voice_table_model.h"

#include "grid/ui/file_text.h"

namespace lunavox {

int VoiceTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : VoiceBanks::kPrograms;
}

int VoiceTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : VoiceBanks::kColumns;
}

QVariant VoiceTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:  // a long name of the user's own bank file may be cut short
      return file_text(banks_.name(index.row(), index.column()));
    case kHasVoice:
      return banks_.has_voice(index.row(), index.column());
    default:
      return {};
  }
}

}  // namespace lunavox
