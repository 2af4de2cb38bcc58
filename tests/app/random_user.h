#pragma once

#include "files/file_commands.h"
#include "files/recent_files.h"
#include "tests/support/editor_bench.h"

#include <iosfwd>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lunavox::test {

/// What a random user can do.
enum class Deed {
  kPressKey,
  kReleaseKey,
  kLoseKeys,
  kMoveCursor,
  kEnterEffectCell,
  kSelect,
  kClickEffects,
  kEnterField,
  kTickOption,
  kAddTrack,
  kDeleteTrack,
  kCopy,
  kCut,
  kPaste,
  kVelocityValue,
  kVelocityPercent,
  kTranspose,
  kAddBookmark,
  kDeleteBookmark,
  kGoToBookmark,
  kChooseXg,
  kPlay,
  kRecord,
  kReceive,
  kWait,
  kNew,
  kOpen,
  kOpenOver,
  kSave,
  kSaveAs,
  kSaveNowhere,
};
inline constexpr int kDeeds = static_cast<int>(Deed::kSaveNowhere) + 1;

/// One thing done. Its numbers are brought into the range that the editor offers at that time, so
/// that an action stays possible when those before it are left out.
struct Action {
  Deed deed = Deed::kWait;
  int a = 0;
  int b = 0;
};
using Script = std::vector<Action>;

/// As it is written in a test that replays it.
std::ostream& operator<<(std::ostream& out, const Action& action);

/// An action drawn by how often users do it.
Action random_action(std::mt19937& chance);

/// Listens to an output: which notes sound.
class Ear {
 public:
  void hear(const std::vector<RecordingOutput::Call>& calls);
  bool silent() const { return sounding_.empty(); }
  std::string sounding() const;

 private:
  void hear(std::uint32_t packed);
  void silence(int channel);

  std::set<std::pair<int, int>> sounding_;  ///< channel index and note
};

/// Does actions in an editor of its own.
class RandomUser {
 public:
  RandomUser();

  /// Does one action.
  /// @return what is wrong afterwards, empty where all is well
  std::string act(const Action& action);

  /// Saves, opens the file in a fresh editor and saves from there.
  /// @return what is wrong, empty where both files are the same
  std::string compare_reopened();

  const Editor& editor() const { return bench_.editor; }

 private:
  void perform(const Action& action);
  void prepare_answers(const Action& action);
  void press_key(int key);
  void release_key(int key);
  void select(int rows, int columns);
  void enter_field(int field, int text);
  void tick_option(int option);
  void receive(int note, int velocity);
  void wait(int ms);
  void open(bool over);
  void save_nowhere();
  void pass();
  /// Hears what was sent since the last time; a stop is to have silenced all of it.
  void listen_for_stop();
  void expect(bool held, const std::string& what);

  EditorBench bench_;
  RecentFiles recent_;
  FileCommands files_;
  Ear ear_;
  bool playing_song_ = false;  ///< when the ear last listened
  int saved_tracks_ = 0;       ///< of the song file, 0 while there is none
  VoiceCell voice_;            ///< what the voice dialogs are answered with
  std::string wrong_;
};

}  // namespace lunavox::test
