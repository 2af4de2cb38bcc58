#include "files/ui/voice_table_model.h"

#include "app/ui/widgets/theme.h"

namespace lunavox {

int VoiceTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : VoiceBanks::kPrograms;
}

int VoiceTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : VoiceBanks::kColumns;
}

QVariant VoiceTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) {
    return QString::fromStdString(banks_.name(index.row(), index.column()));
  }
  if (role == Qt::ForegroundRole && !banks_.has_voice(index.row(), index.column())) {
    return theme::kFaintText;
  }
  return {};
}

}  // namespace lunavox
