#include "random_user.h"

#include "ear.h"
#include "editor_invariants.h"
#include "user_action.h"

#include <algorithm>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Action;
using test::Script;

// How often, in actions, the song is saved and opened in another editor: that takes its time.
constexpr std::size_t kBetweenReopenings = 50;

/// What goes wrong in a script, and after how many actions; empty where nothing does.
struct Outcome {
  std::string wrong;
  std::size_t actions = 0;
};

/// Replays a script in an editor of its own.
Outcome replay(const Script& script) {
  test::RandomUser user;
  test::EditorInvariants invariants;
  std::size_t done = 0;
  for (const Action& action : script) {
    std::string wrong = user.act(action);
    if (wrong.empty()) wrong = invariants.check(user.editor(), action);
    ++done;
    const bool reopen = done % kBetweenReopenings == 0 || done == script.size();
    if (wrong.empty() && reopen) wrong = user.compare_reopened();
    if (!wrong.empty()) return {wrong, done};
  }
  return {};
}

Script random_script(unsigned seed, std::size_t length) {
  std::mt19937 chance(seed);
  Script script;
  while (script.size() < length) script.push_back(test::random_action(chance));
  return script;
}

/// The shortest script found that still fails: chunks are left out, smaller and smaller ones.
Script shortest(Script script) {
  for (std::size_t chunk = script.size(); chunk > 0; chunk /= 2) {
    for (std::size_t at = 0; at < script.size();) {
      Script shorter = script;
      const auto first = shorter.begin() + static_cast<std::ptrdiff_t>(at);
      shorter.erase(first,
                    first + static_cast<std::ptrdiff_t>(std::min(chunk, script.size() - at)));
      const Outcome outcome = replay(shorter);
      if (outcome.wrong.empty()) {
        at += chunk;
      } else {
        shorter.resize(outcome.actions);
        script = std::move(shorter);
      }
    }
  }
  return script;
}

std::string as_text(const Script& script) {
  std::ostringstream text;
  for (const Action& action : script) text << "  " << action << '\n';
  return text.str();
}

/// A number from the environment, so that a longer run needs no other program.
unsigned from_environment(const char* name, unsigned otherwise) {
  const char* text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

// LUNAVOX_RANDOM_USERS is the number of users, LUNAVOX_RANDOM_SEED the seed of the first.
TEST(RandomUser, FindsTheEditorInOrderAfterEachAction) {
  constexpr std::size_t kActions = 500;
  const unsigned first = from_environment("LUNAVOX_RANDOM_SEED", 1);
  const unsigned users = from_environment("LUNAVOX_RANDOM_USERS", 5);
  for (unsigned seed = first; seed < first + users; ++seed) {
    Script script = random_script(seed, kActions);
    const Outcome outcome = replay(script);
    if (outcome.wrong.empty()) continue;
    script.resize(outcome.actions);
    script = shortest(std::move(script));
    ADD_FAILURE() << "Seed " << seed << ": " << replay(script).wrong
                  << "\nThe shortest script that fails:\n"
                  << as_text(script);
  }
}

TEST(RandomUser, HearsANoteUntilItEndsOrItsChannelIsSilenced) {
  using Call = test::RecordingOutput::Call;
  const auto sends = [](std::uint32_t packed) { return Call{Call::kShort, 0, packed, {}}; };
  test::Ear ear;
  ear.hear({sends(0x643C90), sends(0x643E91)});
  EXPECT_EQ(ear.sounding(), " 60 on channel 0 62 on channel 1");
  ear.hear({sends(0x003C90)});
  EXPECT_EQ(ear.sounding(), " 62 on channel 1");
  ear.hear({sends(0x007BB0)});
  EXPECT_FALSE(ear.silent());
  ear.hear({sends(0x007BB1)});
  EXPECT_TRUE(ear.silent());
}

TEST(RandomUser, ReplaysAScriptToTheSameSong) {
  const Script script = random_script(7, 60);
  test::RandomUser one;
  test::RandomUser other;
  for (const Action& action : script) {
    one.act(action);
    other.act(action);
  }
  EXPECT_TRUE(one.editor().song == other.editor().song);
}

}  // namespace
}  // namespace lunavox
