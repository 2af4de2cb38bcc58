#include "files/midi_export.h"

#include "files/event_text.h"
#include "files/midi_track.h"

namespace lunavox {
namespace {

void write_header(const Song& song, std::string& bytes) {
  bytes += "MThd";
  midwrite("00000006", bytes);
  midwrite("0001", bytes);
  midwrite("00" + right_aligned(static_cast<std::uint32_t>(song.track_count), 2), bytes);
  midwrite("00" + right_aligned(static_cast<std::uint32_t>(song.number.value()), 2), bytes);
}

void write_track(const std::string& text, std::string& bytes) {
  bytes += "MTrk";
  const std::size_t byte_count = (text.size() + 1) / 2;
  midwrite(right_aligned(static_cast<std::uint32_t>(byte_count), 8), bytes);
  midwrite(text, bytes);
}

/// More bytes than a song's file takes: ten curves, eight notes and their ends on each line.
std::size_t most_bytes(const Song& song) {
  constexpr std::size_t kMostEvents = 10 + 2 * kNoteColumns;
  constexpr std::size_t kEventBytes = 4;
  const auto lines = static_cast<std::size_t>(song.tracks.rows());
  return static_cast<std::size_t>(song.track_count) * (lines * kMostEvents * kEventBytes + 256);
}

}  // namespace

std::string midi_file_bytes(const Song& song, const std::function<void(int)>& progress) {
  std::string bytes;
  bytes.reserve(most_bytes(song));
  write_header(song, bytes);
  MidiTrackText text(song);
  for (int track = 1; track <= song.track_count; ++track) {
    if (progress) progress(track);
    write_track(text.compose(track), bytes);
  }
  return bytes;
}

void MidiExport::procexport() {
  LongOperation operation(progress_, song_.tracks, "exporting...", song_.track_count);
  AtomicFile file(export_name.get());
  file.write(midi_file_bytes(song_, [&](int track) { operation.set_value(track); }));
  file.commit();
}

}  // namespace lunavox
