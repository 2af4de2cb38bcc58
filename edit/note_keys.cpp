#include "edit/note_keys.h"

#include "grid/note_text.h"
#include "grid/runtime_numbers.h"

#include <string>
#include <utility>

namespace lunavox {
namespace {

constexpr int kBackspace = 8;
constexpr int kSpace = 32;
constexpr int kDelete = 46;
constexpr int kExtraKey = 226;  // left of the bottom letter row on European keyboards

constexpr int kF2 = 113;
constexpr int kF7 = 118;
constexpr int kLowestShift = -24;

// Note-on of MIDI channel 1; whoever reads the queue puts the current track's channel in.
constexpr const char* kNoteOn = "90";
constexpr const char* kVelocity = "7e";

}  // namespace

std::optional<int> base_note(int key_code, const LayoutKeys& layoutkeys) {
  // In the order in which keys are matched. The punctuation codes are those of a French keyboard's
  // ^ = $ : and !, kept on every layout. Where K6 is M, the other M is never reached.
  const std::pair<int, int> keys[] = {
      {layoutkeys.k1, 48}, {'2', 49},           {layoutkeys.k2, 50}, {'3', 51}, {'E', 52},
      {'R', 53},           {'5', 54},           {'T', 55},           {'6', 56}, {layoutkeys.k3, 57},
      {'7', 58},           {'U', 59},           {'I', 60},           {'9', 61}, {'O', 62},
      {'0', 63},           {'P', 64},           {221, 65},           {187, 66}, {186, 67},
      {layoutkeys.k5, 36}, {'S', 37},           {'X', 38},           {'D', 39}, {'C', 40},
      {'V', 41},           {'G', 42},           {'B', 43},           {'H', 44}, {'N', 45},
      {'J', 46},           {layoutkeys.k6, 47}, {layoutkeys.k7, 48}, {'L', 49}, {191, 50},
      {'M', 51},           {223, 52},
  };
  for (const auto& [key, note] : keys) {
    if (key == key_code) return note;
  }
  return std::nullopt;
}

NoteKeys::NoteKeys(Song& song, Flags& flags, NoteQueue& notequeue)
    : song_(song),
      flags_(flags),
      notequeue_(notequeue),
      layoutkeys_(layoutkeys_of(LayoutSet::kQwerty)) {}

void NoteKeys::keystart(int key_code) {
  if (key_code == kSpace && space_bar_) space_bar_();
  if (key_code == kDelete) enter({});
  if (key_code == kBackspace || key_code == kExtraKey) enter(kStop);
  // From here on auto-repeat counts for nothing; above it goes on line after line.
  if (key_code == lastkey_) return;
  shift_octave(key_code);
  if (const auto base = base_note(key_code, layoutkeys_)) strike(*base + octaveshift_);
  lastkey_ = key_code;
}

void NoteKeys::enter(std::string_view entry) {
  song_.actualtrack();
  CellGrid& tracks = song_.tracks;
  const int row = tracks.row();
  flags_.modified = true;
  song_.write_entry(song_.current_track, song_.current_sub_column, row, std::string(entry));
  tracks.set_text(row, tracks.column(), entry);
  const int next = row + song_.step.value();
  if (next < tracks.rows()) tracks.set_row(next);
}

void NoteKeys::shift_octave(int key_code) {
  if (key_code < kF2 || key_code > kF7) return;
  octaveshift_ = kLowestShift + 12 * (key_code - kF2);
}

void NoteKeys::strike(int note) {
  const std::string text = kVelocity + hex_text(static_cast<std::uint32_t>(note)) + kNoteOn;
  // The same note at velocity 0 first: it cuts one that still sounds. The last four digits are the
  // note and the status, except for notes below 16, which have one digit: there a digit of the
  // velocity slips in, in both messages alike.
  const std::uint32_t silence = hex_value("00" + text.substr(text.size() - 4));
  end(silence);
  notequeue_.write(hex_value(text));
  sounding_.push_back(silence);
}

void NoteKeys::keystop(int key_code) {
  lastkey_ = 0;
  const auto base = base_note(key_code, layoutkeys_);
  if (!base) return;
  end(hex_value(hex_text(static_cast<std::uint32_t>(*base + octaveshift_)) + kNoteOn));
}

void NoteKeys::end(std::uint32_t message) {
  notequeue_.write(message);
  std::erase(sounding_, message);
}

void NoteKeys::release_all() {
  lastkey_ = 0;
  for (const std::uint32_t message : sounding_) notequeue_.write(message);
  sounding_.clear();
}

}  // namespace lunavox
