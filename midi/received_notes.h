#pragma once

#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"
#include "midi/note_queue.h"
#include "midi/output_port.h"
#include "midi/record_options.h"

#include <array>
#include <cstdint>

namespace lunavox {

/// What is done with each message that waits in the note queue: it sounds on the current track's
/// channel and, while recording, is written into the grid at the cursor.
class ReceivedNotes {
 public:
  /// Whether a recorded note takes the cursor down by the `step` field.
  enum class Move { kStep, kStay };

  ReceivedNotes(Song& song, Flags& flags, Dialogs& dialogs, OutputPort& port, NoteQueue& queue,
                const RecordOptions& options);

  /// Handles every message that waits.
  void handle_waiting(Move move);
  /// Handles one packed message.
  void handle(std::uint32_t packed, Move move);
  /// Ends every note that was received and still sounds.
  void end_all();

 private:
  std::uint32_t on_current_track(std::uint32_t packed) const;
  void end_elsewhere(std::uint32_t message);
  void record(std::uint32_t message, Move move);
  void step_down();

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  OutputPort& port_;
  NoteQueue& queue_;
  const RecordOptions& options_;

  bool handling_ = false;
  /// Channel index on which each note last began to sound and has not ended, -1 for none.
  std::array<int, 128> sounding_;
};

}  // namespace lunavox
