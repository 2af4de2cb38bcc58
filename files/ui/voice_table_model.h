#pragma once

#include "files/voice_banks.h"

#include <QAbstractTableModel>

namespace lunavox {

/// The voices of the bank file as the grid `instrulist` shows them: a row for each program, a
/// column for each of its voices.
class VoiceTableModel : public QAbstractTableModel {
 public:
  /// Role of a bool: whether the cell holds a voice.
  static constexpr int kHasVoice = Qt::UserRole;

  explicit VoiceTableModel(const VoiceBanks& banks, QObject* parent = nullptr)
      : QAbstractTableModel(parent), banks_(banks) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const VoiceBanks& banks_;
};

}  // namespace lunavox
