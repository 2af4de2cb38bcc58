#pragma once

#include "ear.h"
#include "files/file_commands.h"
#include "files/recent_files.h"
#include "tests/support/editor_bench.h"
#include "user_action.h"

#include <string>

namespace lunavox::test {

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
