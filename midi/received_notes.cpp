#include "midi/received_notes.h"

#include "grid/runtime_numbers.h"
#include "midi/pass_guard.h"
#include "midi/short_message.h"

#include <utility>

namespace lunavox {
namespace {

constexpr std::uint32_t kNoteOff = 0x8;
constexpr std::uint32_t kNoteOn = 0x9;
constexpr int kNothing = -1;

std::uint32_t status_nibble(std::uint32_t message) {
  return message >> 4 & 0xFU;
}

std::uint32_t note_byte(std::uint32_t message) {
  return message >> 8 & 0xFFU;
}

bool has_velocity(std::uint32_t message) {
  return message > 0xFFFF;
}

/// A note-on with velocity 0, which ends a note.
std::uint32_t note_end(std::uint32_t note, std::uint32_t channel) {
  return note << 8 | kNoteOn << 4 | channel;
}

}  // namespace

ReceivedNotes::ReceivedNotes(Song& song, Flags& flags, Dialogs& dialogs, OutputPort& port,
                             NoteQueue& queue, const RecordOptions& options)
    : song_(song), flags_(flags), dialogs_(dialogs), port_(port), queue_(queue), options_(options) {
  sounding_.fill(kNothing);
}

void ReceivedNotes::handle_waiting(Move move) {
  // While a message box is up, what arrives waits its turn.
  if (handling_) return;
  const PassGuard guard(handling_);
  while (const std::uint32_t packed = queue_.front()) {
    queue_.pop();
    handle(packed, move);
  }
}

void ReceivedNotes::handle(std::uint32_t packed, Move move) {
  song_.actualtrack();
  const std::uint32_t message = on_current_track(packed);
  const bool note = status_nibble(message) == kNoteOn;
  if (note) end_elsewhere(message);
  port_.send(pitch_bend(song_.channel.at(song_.current_track), kPitchCentre));
  port_.send(message);
  if (flags_.recording && note && has_velocity(message)) record(message, move);
}

void ReceivedNotes::end_all() {
  for (std::uint32_t note = 0; note < sounding_.size(); ++note) {
    const int channel = std::exchange(sounding_[note], kNothing);
    if (channel != kNothing) port_.send(note_end(note, channel_nibble(channel)));
  }
}

std::uint32_t ReceivedNotes::on_current_track(std::uint32_t packed) const {
  std::uint32_t message = packed;
  if (status_nibble(message) == kNoteOff) {
    message = note_end(note_byte(message), channel_nibble(static_cast<int>(message)));
  }
  // Controllers and the like go through as they are.
  if (status_nibble(message) != kNoteOn) return message;
  message = (message & ~0xFU) | channel_nibble(song_.channel.at(song_.current_track));
  if (options_.velocity || !has_velocity(message)) return message;
  return static_cast<std::uint32_t>(song_.strength.value()) << 16 | (message & 0xFFFFU);
}

void ReceivedNotes::end_elsewhere(std::uint32_t message) {
  // A key may be released, or struck again, after the cursor went to another track. Its note would
  // then sound on for ever on the channel where it began.
  const std::uint32_t note = note_byte(message);
  if (note >= sounding_.size()) return;
  const int channel = static_cast<int>(channel_nibble(static_cast<int>(message)));
  int& sounding = sounding_[note];
  if (sounding != kNothing && sounding != channel) {
    port_.send(note_end(note, channel_nibble(sounding)));
  }
  sounding = has_velocity(message) ? channel : kNothing;
}

void ReceivedNotes::record(std::uint32_t message, Move move) {
  const int track = song_.current_track;
  const int sub_column = song_.current_sub_column;
  if (sub_column == 0) {
    dialogs_.error("Cannot record notes on effects !", "Error");
    return;
  }
  const int row = song_.tracks.row();
  const std::string entry = hex_text(message);
  song_.write_entry(track, sub_column, row, entry);
  song_.calculnote();
  song_.show_entry(track, sub_column, row);
  port_.keep_note_off(track, sub_column, entry);
  flags_.modified = true;
  if (move == Move::kStep) step_down();
}

void ReceivedNotes::step_down() {
  const int row = song_.tracks.row() + song_.step.value();
  if (row < song_.tracks.rows()) song_.tracks.set_row(row);
}

}  // namespace lunavox
