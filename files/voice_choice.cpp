#include "files/voice_choice.h"

#include "grid/runtime_numbers.h"
#include "midi/short_message.h"
#include "midi/voice_setup.h"

#include <algorithm>

namespace lunavox {
namespace {

// Voices are tried on channel 16, which no track uses.
constexpr int kPreviewChannel = 15;
constexpr int kPreviewVelocity = 126;

constexpr Colour kDisabledText{64, 64, 64};

}  // namespace

VoiceChoice::VoiceChoice(const VoiceDesk& desk, const VoiceBanks& banks)
    : desk_(desk), banks_(banks) {}

VoiceCell VoiceChoice::current_voice() const {
  const Song& song = desk_.song;
  const int track = song.current_track;
  const int program = song.values.at(track, kInstrument, 1);
  if (program < 0 || program >= VoiceBanks::kPrograms) return {};
  return {program, std::max(0, banks_.column_of(program, song.bank.at(track)))};
}

Colour VoiceChoice::octave_colour() const {
  return preview.get() ? kWhite : kDisabledText;
}

int VoiceChoice::preview_note() const {
  return round_half_even(12 * (octave.number() + 1));
}

void VoiceChoice::instrulist_mousedown(VoiceCell cell) {
  if (!preview.get() || banks_.name(cell.program, cell.column) == kNoVoice) return;
  const int bank = banks_.bank(cell.column, cell.program);
  desk_.port.send(control_change(kPreviewChannel, kBankMsb, 0));
  desk_.port.send(control_change(kPreviewChannel, kBankLsb, bank));
  desk_.port.send(program_change(kPreviewChannel, cell.program));
  sounding_note_ = preview_note();
  desk_.port.send(note_on(kPreviewChannel, *sounding_note_, kPreviewVelocity));
}

void VoiceChoice::instrulist_mouseup() {
  // The note that was pressed, though the octave may have been changed since.
  if (sounding_note_) desk_.port.send(note_on(kPreviewChannel, *sounding_note_, 0));
  sounding_note_.reset();
}

bool VoiceChoice::instruok_click(VoiceCell cell) {
  if (!banks_.has_voice(cell.program, cell.column)) {
    desk_.dialogs.error("you must select a valid instrument", "error");
    return false;
  }
  desk_.flags.modified = true;
  take_voice(desk_, banks_.name(cell.program, cell.column),
             static_cast<std::int16_t>(cell.program));
  desk_.song.bank.at(desk_.song.current_track) = banks_.bank(cell.column, cell.program);
  starteffect(desk_.song, desk_.port);
  return true;
}

}  // namespace lunavox
