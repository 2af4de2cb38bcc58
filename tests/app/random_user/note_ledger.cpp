#include "note_ledger.h"

#include "midi/short_message.h"

#include <algorithm>

namespace lunavox::test {

void NoteLedger::take_short(std::uint32_t packed) {
  ++messages_;
  constexpr std::uint32_t kNoteOff = 0x80;
  constexpr std::uint32_t kNoteOn = 0x90;
  constexpr std::uint32_t kController = 0xB0;
  constexpr int kAllSoundOff = 120;
  constexpr int kAllNotesOff = 123;
  const std::uint32_t status = packed & 0xF0U;
  const auto channel = static_cast<int>(packed & 0x0FU);
  // What goes on the wire are the low seven bits.
  const auto data1 = static_cast<int>(packed >> 8 & 0x7FU);
  const bool loud = (packed >> 16 & 0x7FU) != 0;
  if (status == kNoteOn && loud) begin(channel, data1, packed == kMetronomeClick && !playing_);
  if (status == kNoteOff || (status == kNoteOn && !loud)) end(channel, data1);
  if (status == kController && (data1 == kAllSoundOff || data1 == kAllNotesOff)) silence(channel);
}

void NoteLedger::begin(int channel, int number, bool click) {
  ++notes_;
  sounding_.push_back({channel, number, messages_, playing_, click});
}

// Two columns of a song may sound the same note, and each then ends its own. A keyboard has one key
// for it.
void NoteLedger::end(int channel, int number) {
  const auto same = [&](const Note& note) {
    return note.channel == channel && note.number == number;
  };
  const auto of_song = std::find_if(sounding_.begin(), sounding_.end(),
                                    [&](const Note& note) { return same(note) && note.of_song; });
  if (of_song != sounding_.end()) {
    sounding_.erase(of_song);
  } else {
    std::erase_if(sounding_, same);
  }
}

void NoteLedger::silence(int channel) {
  std::erase_if(sounding_, [&](const Note& note) {
    if (note.channel != channel) return false;
    if (note.of_song) swept_.push_back(note);
    return true;
  });
}

void NoteLedger::meet(PlayEvent event) {
  switch (event) {
    case PlayEvent::kPlays:
      playing_ = true;
      swept_.clear();
      return;
    case PlayEvent::kStops:
      playing_ = false;
      if (!swept_.empty()) blame(swept_.front(), "has no end of its own at the stop");
      return expect_silence("at the stop", true);
    case PlayEvent::kTakenOver:
      playing_ = false;
      return expect_silence("at the stop for recording", true);
    case PlayEvent::kDeviceReset:
      sounding_.clear();
      swept_.clear();
      return;
    case PlayEvent::kHandsOff:
      return expect_silence("when no key is held", false);
  }
}

void NoteLedger::expect_silence(const char* when, bool clicks_too) {
  for (const Note& note : sounding_) {
    if (clicks_too || !note.click) return blame(note, std::string("sounds on ") + when);
  }
}

void NoteLedger::blame(const Note& note, const std::string& what) {
  if (!wrong_.empty()) return;
  wrong_ = "note " + std::to_string(note.number) + " on channel " + std::to_string(note.channel) +
           " of message " + std::to_string(note.message) + " " + what + " behind message " +
           std::to_string(messages_);
}

}  // namespace lunavox::test
