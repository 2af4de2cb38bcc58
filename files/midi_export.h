#pragma once

#include "files/atomic_file.h"
#include "grid/progress.h"
#include "grid/property.h"
#include "grid/song.h"

#include <string>

namespace lunavox {

/// The song as a Standard MIDI File of format 1: a chunk for each track, one tick a line, as many
/// ticks a quarter note as there are lines in a beat.
/// @param progress  told each track as it is begun, 1..track count
/// @throws RuntimeError (Subscript out of range) where the length field exceeds the song,
///         (Division by zero) for a tempo of 0
std::string midi_file_bytes(const Song& song, const std::function<void(int track)>& progress = {});

/// Exports the song as a Standard MIDI File (".mid").
class MidiExport {
 public:
  MidiExport(Song& song, ProgressBox& progress) : song_(song), progress_(progress) {}

  /// The export file name, empty while there is none.
  Property<std::string> export_name;

  /// Writes the file; one that is there stays until the new one is whole.
  /// @throws RuntimeError as midi_file_bytes() and AtomicFile do
  void procexport();

 private:
  Song& song_;
  ProgressBox& progress_;
};

}  // namespace lunavox
