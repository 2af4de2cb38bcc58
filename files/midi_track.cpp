#include "files/midi_track.h"

#include "files/event_text.h"
#include "grid/note_text.h"
#include "grid/runtime_error.h"
#include "grid/runtime_numbers.h"
#include "midi/short_message.h"
#include "midi/xg_effects.h"

namespace lunavox {
namespace {

constexpr double kMicrosecondsPerMinute = 60000000;

constexpr std::uint32_t kFullVolume = 127;

constexpr std::string_view kNoDelta = "00";
constexpr std::string_view kOneLine = "01";

constexpr std::int32_t kSilent = -1;

/// The 16 bits of a value, as its hexadecimal text shows them.
std::uint32_t bits(int value) {
  return static_cast<std::uint16_t>(value);
}

}  // namespace

const std::string& MidiTrackText::compose(int track) {
  text_.clear();
  track_ = track;
  channel_ = song_.channel.at(track);
  active_curve_ = has_active_curve();
  note_deltas_.begin_track();
  sounding_.fill(kSilent);
  tempo();
  voice();
  xg_setup();
  lines();
  end_sounding_notes();
  text_ += "00FF2F00";
  return text_;
}

void MidiTrackText::tempo() {
  const double bpm = song_.bpm.number();
  if (bpm == 0) throw RuntimeError(RuntimeError::kDivisionByZero);
  const auto tempo = static_cast<std::uint32_t>(round_half_even(kMicrosecondsPerMinute / bpm));
  text_ += "00FF5103" + right_aligned(tempo, 6);
}

void MidiTrackText::voice() {
  const std::uint32_t msb = track_ == kDrumTrack ? kDrumBank : 0;
  const std::uint32_t lsb = bits(song_.bank.at(track_));
  const std::uint32_t program = bits(song_.values.at(track_, kInstrument, 1));
  const auto append = [&](const EventText& event) { append_reversed(event.text(), text_); };
  append(EventText().data(msb).data(kBankMsb).status('B', channel_).delta(kNoDelta));
  append(EventText().data(lsb).data(kBankLsb).status('B', channel_).delta(kNoDelta));
  append(EventText().data(program).status('C', channel_).delta(kNoDelta));
}

void MidiTrackText::xg_setup() {
  for (const SysExBytes& message : xg_module_setup()) sysex(message);
  sysex(xg_type_message(XgList::kReverb, song_.reverb));
  sysex(xg_type_message(XgList::kChorus, song_.chorus));
  sysex(xg_type_message(XgList::kVariation, song_.variation));
}

// In a file the length stands behind the F0 and does not count it.
void MidiTrackText::sysex(const SysExBytes& message) {
  text_ += "00F0" + right_aligned(static_cast<std::uint32_t>(message.size() - 1), 2);
  for (std::size_t i = 1; i < message.size(); ++i) text_ += right_aligned(message[i], 2);
}

void MidiTrackText::lines() {
  if (!is_active(kInstrument)) return;
  // The song's last line is not exported.
  const int last = song_.length.value() - 1;
  if (last > song_.last_row()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  for (int row = 1; row <= last; ++row) line(row);
}

void MidiTrackText::line(int row) {
  note_deltas_.begin_line();
  first_controller_ = true;
  controllers(row);
  notes(row);
}

void MidiTrackText::controllers(int row) {
  if (!active_curve_) {
    controller(kVolume, kFullVolume);
    volume_written_ = true;
    return;
  }
  for (int e = kFirstCurve; e <= kLastEffect; ++e) {
    if (is_active(e)) controller(e, song_.values.at(track_, e, row));
  }
}

void MidiTrackText::controller(int effect, int value) {
  EventText event;
  event.data(bits(value));
  if (effect == kPitch) {
    event.data(0).status('E', channel_);
  } else {
    event.data(static_cast<std::uint32_t>(controller_of(effect))).status('B', channel_);
  }
  // The first event of a line advances the time by the line.
  event.delta(first_controller_ ? kOneLine : kNoDelta);
  first_controller_ = false;
  append_reversed(event.text(), text_);
}

void MidiTrackText::notes(int row) {
  for (int column = 1; column <= kNoteColumns; ++column) {
    const std::string& entry = song_.notes.at(track_, column, row);
    if (!entry.empty()) note(column, entry, row);
  }
}

void MidiTrackText::note(int column, std::string_view entry, int row) {
  const bool sounds = sounding_[static_cast<std::size_t>(column)] != kSilent;
  if (sounds) end_note(column, note_delta(row));
  if (entry == kStop) return;
  const int number = note_of(entry);
  EventText event;
  event.data(static_cast<std::uint32_t>(velocity_of(entry)))
      .data(static_cast<std::uint32_t>(number))
      .status('9', channel_)
      .delta(note_delta(row));
  append_reversed(event.text(), text_);
  sounding_[static_cast<std::size_t>(column)] = number;
}

void MidiTrackText::end_note(int column, std::string_view delta) {
  std::int32_t& number = sounding_[static_cast<std::size_t>(column)];
  EventText event;
  event.data(0).data(static_cast<std::uint32_t>(number)).status('9', channel_).delta(delta);
  append_reversed(event.text(), text_);
  number = kSilent;
}

void MidiTrackText::end_sounding_notes() {
  std::string_view delta = kOneLine;
  for (int column = 1; column <= kNoteColumns; ++column) {
    if (sounding_[static_cast<std::size_t>(column)] == kSilent) continue;
    end_note(column, delta);
    delta = kNoDelta;
  }
}

std::string MidiTrackText::note_delta(int row) {
  // A line's controllers come first and advance the time, so a note has none of its own to add.
  if (active_curve_ || volume_written_) return std::string(kNoDelta);
  return reverse(note_deltas_.next(row));
}

bool MidiTrackText::has_active_curve() const {
  for (int e = kFirstCurve; e <= kLastEffect; ++e) {
    if (is_active(e)) return true;
  }
  return false;
}

bool MidiTrackText::is_active(int effect) const {
  return song_.active.at(track_)[static_cast<std::size_t>(effect)];
}

}  // namespace lunavox
