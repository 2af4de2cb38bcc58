#pragma once

#include "user_action.h"

#include <chrono>
#include <functional>
#include <string>

namespace lunavox::test {

/// What goes wrong in a script, and after how many actions; empty where nothing does.
struct Outcome {
  std::string wrong;
  std::size_t actions = 0;
};
using Replay = std::function<Outcome(const Script&)>;

/// The shortest script found that still fails: chunks are left out, smaller and smaller ones, until
/// no action can be spared, and no two actions together.
/// @param script  one that fails
Script shortest_script(Script script, const Replay& replay);

/// Replays for so long. After that nothing fails any more, so that whoever shortens a script ends
/// with what he has.
Replay for_a_while(const Replay& replay, std::chrono::milliseconds time);

/// The last rounds of a script, as few of one, two, four... as still fail. Rounds end in a tidy-up.
/// @param most  actions that are replayed together
/// @return empty where the rounds fail only after those before them
Script failing_end(const Script& script, const Replay& replay, std::size_t most);

/// A script as it is written in a test that replays it.
std::string as_text(const Script& script);

}  // namespace lunavox::test
