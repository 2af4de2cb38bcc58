#include "bench/song_file_bench.h"

#include "files/event_text.h"

#include <charconv>
#include <fstream>
#include <memory>
#include <string_view>

#include <benchmark/benchmark.h>

namespace lunavox::bench {
namespace {

std::string bytes_of(const std::string& file) {
  std::ifstream in(file, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(in.tellg()), '\0');
  in.seekg(0);
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

/// What a song's stores and its file have in common: note texts, and values with their key marks.
struct Fields {
  std::vector<std::string> texts;
  std::vector<std::int16_t> numbers;
};

/// The fields of a song file in the order in which they stand there, without what is around them.
Fields fields_of(const Song& song) {
  Fields fields;
  for (int track = 1; track <= song.track_count; ++track) {
    for (int column = 1; column <= song.used_columns.at(track); ++column) {
      const auto& entries = song.notes.column(track, column);
      fields.texts.insert(fields.texts.end(), entries.begin() + 1, entries.end() - 1);
    }
    for (int e = kFirstEffect; e <= kLastEffect; ++e) {
      for (int row = 1; row <= song.last_row(); ++row) {
        fields.numbers.push_back(song.values.at(track, e, row));
        fields.numbers.push_back(song.key_attributes.at(track, e, row) != 0 ? -1 : 0);
      }
    }
  }
  return fields;
}

/// The next line of a file's bytes without its CR LF.
std::string_view take_line(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// Reads the file in one go and converts each field: numbers, which have their blanks, with
/// from_chars, the others into strings. There is no cheaper way to get at the contents with the
/// standard library.
Fields read_bare(const std::string& file) {
  const std::string bytes = bytes_of(file);
  Fields fields;
  for (std::string_view rest = bytes; !rest.empty();) {
    std::string_view line = take_line(rest);
    if (!line.ends_with(' ')) {
      fields.texts.emplace_back(line);
      continue;
    }
    if (line.starts_with(' ')) line.remove_prefix(1);
    std::int16_t value = 0;
    std::from_chars(line.data(), line.data() + line.size(), value);
    fields.numbers.push_back(value);
  }
  return fields;
}

/// Writes the same lines to memory.
std::string write_bare(const Fields& fields) {
  std::string bytes;
  for (const std::string& text : fields.texts) {
    bytes += text;
    bytes += "\r\n";
  }
  for (const std::int16_t number : fields.numbers) {
    char digits[8];
    if (number >= 0) bytes += ' ';
    bytes.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
    bytes += " \r\n";
  }
  return bytes;
}

/// Writes the same bytes through the same buffer: as pairs of digits into a text that is turned
/// into bytes track by track. What stays out is finding out which bytes they are, and the file.
std::string export_bare(std::string_view exported) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string bytes;
  bytes.reserve(exported.size());
  std::string text;
  const std::size_t chunk = exported.size() / kMaxTracks + 1;
  for (std::size_t start = 0; start < exported.size(); start += chunk) {
    text.clear();
    for (const char byte : exported.substr(start, chunk)) {
      const auto value = static_cast<unsigned char>(byte);
      text += kDigits[value / 16];
      text += kDigits[value % 16];
    }
    midwrite(text, bytes);
  }
  return bytes;
}

void add_open_figures(Figures& figures, Editor& editor) {
  SongFile& song_file = editor.song_file;
  const TimedRun bare = [&song_file] {
    return seconds_of([&] { benchmark::DoNotOptimize(read_bare(song_file.current_name)); });
  };
  figures.add_ratio(
      "procopen of the largest song, to reading its fields", 3,
      [&song_file] { return seconds_of([&] { song_file.procopen(); }); }, bare);
  const auto open_afresh = [&song_file] {
    QuietEditor fresh;
    fresh.editor.song_file.current_name = song_file.current_name;
    return seconds_of([&] { fresh.editor.song_file.procopen(); });
  };
  figures.add_ratio("procopen over a new song, to reading its fields", 3, open_afresh, bare);
}

void add_save_figure(Figures& figures, Editor& editor) {
  SongFile& song_file = editor.song_file;
  const auto fields = std::make_shared<Fields>(fields_of(editor.song));
  figures.add_ratio(
      "procsave of the largest song, to writing its lines to memory", 3,
      [&song_file] { return seconds_of([&] { song_file.procsave(); }); },
      [fields] { return seconds_of([&] { benchmark::DoNotOptimize(write_bare(*fields)); }); });
}

void add_export_figure(Figures& figures, Editor& editor, const std::string& file) {
  MidiExport& midi_export = editor.midi_export;
  midi_export.export_name = file;
  midi_export.procexport();
  const auto exported = std::make_shared<std::string>(bytes_of(file));
  figures.add_ratio(
      "procexport of the largest song, to writing its bytes", 3,
      [&midi_export] { return seconds_of([&] { midi_export.procexport(); }); },
      [exported] { return seconds_of([&] { benchmark::DoNotOptimize(export_bare(*exported)); }); });
}

}  // namespace

void add_song_file_figures(Figures& figures, QuietEditor& quiet, const ScratchFolder& folder) {
  quiet.editor.song_file.current_name = folder.file("largest.lvx");
  quiet.editor.song_file.procsave();
  add_open_figures(figures, quiet.editor);
  add_save_figure(figures, quiet.editor);
  add_export_figure(figures, quiet.editor, folder.file("largest.mid"));
}

}  // namespace lunavox::bench
