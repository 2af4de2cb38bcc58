#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace lunavox::test {

/// What happens to playing that the messages themselves do not tell.
enum class PlayEvent {
  kPlays,        ///< the song begins to play
  kStops,        ///< it has stopped, and the channels have been reset
  kTakenOver,    ///< it has stopped for recording, with All Notes Off on every channel
  kDeviceReset,  ///< the device was told to be silent
  kHandsOff,     ///< nothing plays, and no key is held any more
};

/// Keeps account of the notes that sound, and looks for a message that silences each:
/// - of a note of the song that plays, a note end of its own before the stop, or before whatever
///   else ends its playing: the channels' reset is for what nobody foresees;
/// - at a stop, of every note;
/// - when no key is held, of every note but the metronome's clicks, which nobody ends.
class NoteLedger {
 public:
  /// A short message was sent.
  void take_short(std::uint32_t packed);
  /// Any other message was sent.
  void take_sysex() { ++messages_; }
  void meet(PlayEvent event);

  /// The first thing that was wrong, empty where nothing was.
  const std::string& wrong() const { return wrong_; }
  /// Messages taken so far.
  std::size_t messages() const { return messages_; }
  /// Notes that have begun to sound so far.
  std::size_t notes() const { return notes_; }

 private:
  struct Note {
    int channel;
    int number;
    std::size_t message;  ///< counted from 1
    bool of_song;
    bool click;
  };

  void begin(int channel, int number, bool click);
  void end(int channel, int number);
  void silence(int channel);
  void expect_silence(const char* when, bool clicks_too);
  void blame(const Note& note, const std::string& what);

  std::size_t messages_ = 0;
  std::size_t notes_ = 0;
  bool playing_ = false;
  std::vector<Note> sounding_;
  std::vector<Note> swept_;  ///< notes of the song that only a channel's silence has ended
  std::string wrong_;
};

}  // namespace lunavox::test
