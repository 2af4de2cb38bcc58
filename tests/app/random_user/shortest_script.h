#pragma once

#include "user_action.h"

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

/// A script as it is written in a test that replays it.
std::string as_text(const Script& script);

}  // namespace lunavox::test
