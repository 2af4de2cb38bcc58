#include "files/song_writer.h"

#include "grid/runtime_error.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace lunavox {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Gathers the lines of a song file.
class LineWriter {
 public:
  LineWriter(TextGuard guard, std::size_t expected_bytes) : guard_(guard) {
    bytes_.reserve(expected_bytes);
  }

  void text(std::string_view text) {
    if (guard_ == TextGuard::kQuotes && needs_quotes(text)) {
      bytes_ += quoted(text);
    } else {
      bytes_ += text;
    }
    bytes_ += kLineEnd;
  }

  void integer(int value) {
    char line[16];
    char* end = line;
    if (value >= 0) *end++ = ' ';
    end = std::to_chars(end, line + 12, value).ptr;
    *end++ = ' ';
    *end++ = '\r';
    *end++ = '\n';
    bytes_.append(line, end);
  }

  std::string take() { return std::move(bytes_); }

 private:
  static bool needs_quotes(std::string_view text) {
    return text.starts_with(' ') || text.ends_with(' ') ||
           text.find_first_of(",\"\r\n") != std::string_view::npos;
  }
  static std::string quoted(std::string_view text) {
    std::string result = "\"" + std::string(text) + "\"";
    // A quote inside would end the field, and there is no way to write one.
    std::replace(result.begin() + 1, result.end() - 1, '"', '\'');
    return result;
  }

  TextGuard guard_;
  std::string bytes_;
};

/// Writes the groups of a song file; each function is one group or a few that stand together.
class SongWriter {
 public:
  SongWriter(const Song& song, LineWriter& out) : song_(song), out_(out) {}

  void write(const std::function<void(int)>& progress) {
    check_stores();
    int step = 0;
    const auto done = [&] {
      if (progress) progress(++step);
    };
    write_head();
    write_bookmarks();
    done();
    write_track_numbers(song_.bank);
    done();
    write_effects_grid();
    done();
    write_track_numbers(song_.used_columns);
    done();
    write_notes();
    done();
    write_track_numbers(song_.channel);
    done();
    write_curves();
    done();
    write_track_numbers(song_.shown_effect);
    write_xg_lists();
  }

 private:
  /// The lines are written without looking at each index.
  void check_stores() const {
    const int last_row = std::min(
        {song_.notes.last_row(), song_.values.last_row(), song_.key_attributes.last_row()});
    if (last_row < song_.last_row()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }

  void write_head() {
    out_.text("2.0");
    out_.integer(song_.track_count);
    out_.integer(song_.tracks.rows());
    out_.text(song_.step.text());
    out_.text(song_.bpm.text());
    out_.text(song_.length.text());
    out_.text(song_.number.text());
  }

  void write_bookmarks() {
    out_.integer(static_cast<int>(song_.bookmarks.get().size()));
    for (const Bookmark& bookmark : song_.bookmarks.get()) {
      out_.text(bookmark.name);
      out_.integer(bookmark.row);
    }
  }

  void write_track_numbers(const TrackTable<std::int16_t>& numbers) {
    for (int track = 1; track <= song_.track_count; ++track) out_.integer(numbers.at(track));
  }

  void write_effects_grid() {
    for (int column = 1; column <= kSettingsPerTrack * song_.track_count; ++column) {
      for (int e = kFirstEffect; e <= kLastEffect; ++e) out_.text(song_.effects.text(e, column));
    }
  }

  void write_notes() {
    for (int track = 1; track <= song_.track_count; ++track) {
      for (int column = 1; column <= song_.used_columns.at(track); ++column) {
        const auto& entries = song_.notes.column(track, column);
        for (int row = 1; row <= song_.last_row(); ++row) {
          out_.text(entries[static_cast<std::size_t>(row)]);
        }
      }
    }
  }

  void write_curves() {
    for (int track = 1; track <= song_.track_count; ++track) {
      for (int e = kFirstEffect; e <= kLastEffect; ++e) {
        const auto& values = song_.values.column(track, e);
        const auto& keys = song_.key_attributes.column(track, e);
        for (std::size_t row = 1; row <= static_cast<std::size_t>(song_.last_row()); ++row) {
          out_.integer(values[row]);
          out_.integer(keys[row] != 0 ? -1 : 0);
        }
      }
    }
  }

  void write_xg_lists() {
    out_.integer(song_.reverb);
    out_.integer(song_.chorus);
    out_.integer(song_.variation);
  }

  const Song& song_;
  LineWriter& out_;
};

/// About how long the song's text becomes; the longest usual line is a value's, ten bytes with its
/// key attribute's.
std::size_t expected_size(const Song& song) {
  const auto tracks = static_cast<std::size_t>(song.track_count);
  const auto lines = static_cast<std::size_t>(song.last_row());
  return 4096 * (tracks + 1) + tracks * lines * (kLastEffect * 12 + kNoteColumns * 8);
}

}  // namespace

std::string song_text(const Song& song, TextGuard guard,
                      const std::function<void(int step)>& progress) {
  LineWriter out(guard, expected_size(song));
  SongWriter(song, out).write(progress);
  return out.take();
}

}  // namespace lunavox
