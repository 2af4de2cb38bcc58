#pragma once

#include "files/file_commands.h"
#include "files/recent_files.h"
#include "files/recovery.h"
#include "listener.h"
#include "tests/support/editor_bench.h"
#include "user_action.h"

#include <atomic>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lunavox::test {

/// Does actions in an editor of its own.
class RandomUser {
 public:
  /// @param log_file  of all that the editor sends; empty for none
  explicit RandomUser(const std::string& log_file = {});

  /// Does one action.
  /// @return what is wrong afterwards, empty where all is well
  std::string act(const Action& action);

  /// Saves, opens the file in a fresh editor and saves from there.
  /// @return what is wrong, empty where both files are the same
  std::string compare_reopened();

  /// Whether the last action ended with another song in the place of the one before.
  bool began_song() const { return began_song_; }

  const Editor& editor() const { return bench_.editor; }
  /// For a test that plants a fault there.
  Editor& editor() { return bench_.editor; }
  /// Somebody else plays on the same input, from another thread: what is held is not known then.
  ScriptedInputs& share_inputs();

  /// Who listens to what the editor sends.
  Listener& listener() { return listener_; }

 private:
  void perform(const Action& action);
  void prepare_answers(const Action& action);
  void press_key(int key);
  void release_key(int key);
  void select(int rows, int columns);
  void scroll(int row, int track);
  void enter_field(int field, int text);
  void tick_option(int option);
  void choose_output(int item);

  // random_user_playing.cpp
  void receive(int note, int velocity);
  void wait(int ms);
  void let_play(int ms);
  void pass();
  void tidy_up();
  void let_go(const std::set<int>& notes);

  // random_user_files.cpp
  void begin_song(int answer);
  void begin_song_unsaved();
  void open(bool over);
  void open_recent(int place);
  void open_damaged(int place, int damage);
  void open_file(const std::string& name);
  void compare_opened(const std::string& name, std::size_t bookmarks_before);
  void save(bool as);
  void save_nowhere();
  void export_song();
  void lose_program();

  void expect(bool held, const std::string& what);

  EditorBench bench_;
  RecentFiles recent_;
  FileCommands files_;
  RecoveryFile recovery_;
  Listener listener_;

  std::set<int> held_;           ///< keys of the MIDI keyboard that are down
  std::atomic<int> waiting_{0};  ///< writes to the note queue since it was last empty
  bool lost_ = false;            ///< messages have been overwritten there
  bool began_song_ = false;
  bool shared_ = false;               ///< somebody else plays too
  std::map<std::string, int> saved_;  ///< tracks of the song in each file that was saved
  VoiceCell voice_;                   ///< what the voice dialogs are answered with
  std::string wrong_;
};

}  // namespace lunavox::test
