#pragma once

#include "tests/support/song_parts.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lunavox::test {

/// A song of a drum track and an instrument track, 16 lines long.
class SongFixture : public ::testing::Test, protected SongParts {
 protected:
  SongFixture() : SongParts(2, 16) {}

  void resize(int lines) {
    song.length.put(std::to_string(lines));
    length.lengthchange();
  }

  /// Texts of a column of `tracks`, rows first to last.
  std::vector<std::string> texts(int column, int first, int last) const {
    std::vector<std::string> found;
    for (int row = first; row <= last; ++row) found.push_back(song.tracks.text(row, column));
    return found;
  }

  /// Values of a curve, rows first to last.
  std::vector<int> values(int track, int effect, int first, int last) const {
    std::vector<int> found;
    for (int row = first; row <= last; ++row) found.push_back(song.values.at(track, effect, row));
    return found;
  }

  void set_key(int track, int effect, int row, int value) {
    song.values.at(track, effect, row) = static_cast<std::int16_t>(value);
    song.key_attributes.at(track, effect, row) = 1;
  }
};

}  // namespace lunavox::test
