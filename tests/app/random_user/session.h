#pragma once

#include "editor_invariants.h"
#include "random_user.h"
#include "shortest_script.h"
#include "undisturbed_tracks.h"

#include <string>

namespace lunavox::test {

/// A random user who is looked after: what is to hold is checked behind each action.
class Session {
 public:
  /// @param log_file  of all that the editor sends; empty for none
  explicit Session(const std::string& log_file = {}) : user(log_file) {}

  /// Does one action.
  /// @return what is wrong afterwards, empty where all is well
  std::string act(const Action& action);

  RandomUser user;

 private:
  EditorInvariants invariants_;
  UndisturbedTracks undisturbed_;
  int actions_ = 0;
};

/// Replays a script in an editor and a process of its own.
Outcome replay(const Script& script);

/// The shortest script that is found to fail, and how it does, for who reads of a failure. Takes
/// its time, minutes at most: what is known already is better told before.
std::string failure_text(const Script& script);

/// The same of a script that has become long, round after round.
std::string failure_text_of_rounds(const Script& script);

}  // namespace lunavox::test
