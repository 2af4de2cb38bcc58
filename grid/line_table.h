#pragma once

#include "grid/runtime_error.h"

#include <array>
#include <vector>

namespace lunavox {

/// Tracks are numbered 1..10; every per-track table has room for 0..16.
inline constexpr int kTrackSlots = 17;
/// Effect kinds 1..11; index 0 carries no curve.
inline constexpr int kEffectSlots = 12;
/// Note columns 1..8; index 0 is the effect column's sub-column and holds no notes of its own.
inline constexpr int kNoteSlots = 9;

/// A table with an entry for each (track, series, grid row). A series is a note column or an effect
/// kind. Rows start at 0, but row 0 is the header's and never used: line L stands on row L + 1.
/// An index out of bounds throws RuntimeError (Subscript out of range).
template <class T, int Series>
class LineTable {
 public:
  using Column = std::vector<T>;

  /// Rows 0..last_row, keeping contents; new rows hold `T{}`.
  void resize_keeping(int last_row) {
    last_row_ = last_row;
    for (Column& column : columns_) column.resize(static_cast<std::size_t>(last_row) + 1);
  }

  /// Rows 0..last_row, all `T{}`.
  void redimension(int last_row) {
    last_row_ = last_row;
    for (Column& column : columns_) column.assign(static_cast<std::size_t>(last_row) + 1, T{});
  }

  int last_row() const { return last_row_; }

  const T& at(int track, int series, int row) const {
    check_row(row);
    return column(track, series)[static_cast<std::size_t>(row)];
  }
  T& at(int track, int series, int row) {
    check_row(row);
    return column(track, series)[static_cast<std::size_t>(row)];
  }

  const Column& column(int track, int series) const { return columns_[index(track, series)]; }
  Column& column(int track, int series) { return columns_[index(track, series)]; }

  bool operator==(const LineTable&) const = default;

 private:
  static std::size_t index(int track, int series) {
    if (track < 0 || track >= kTrackSlots || series < 0 || series >= Series) {
      throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    }
    return static_cast<std::size_t>(track * Series + series);
  }
  void check_row(int row) const {
    if (row < 0 || row > last_row_) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }

  int last_row_ = -1;
  std::array<Column, static_cast<std::size_t>(kTrackSlots* Series)> columns_;
};

/// A table with an entry for each track slot 0..16, bounds checked like LineTable.
template <class T>
class TrackTable {
 public:
  TrackTable() = default;
  explicit TrackTable(const T& value) { entries_.fill(value); }

  const T& at(int track) const { return entries_[index(track)]; }
  T& at(int track) { return entries_[index(track)]; }
  void fill(const T& value) { entries_.fill(value); }

  bool operator==(const TrackTable&) const = default;

 private:
  static std::size_t index(int track) {
    if (track < 0 || track >= kTrackSlots) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    return static_cast<std::size_t>(track);
  }

  std::array<T, kTrackSlots> entries_{};
};

}  // namespace lunavox
