#include "random_user.h"

#include "environment.h"
#include "session.h"

#include <iostream>
#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Action;
using test::Deed;
using test::Script;

Script random_script(unsigned seed, std::size_t length) {
  std::mt19937 chance(seed);
  Script script;
  while (script.size() < length) script.push_back(test::random_action(chance));
  return script;
}

// LUNAVOX_RANDOM_USERS is the number of users, LUNAVOX_RANDOM_SEED the seed of the first.
TEST(RandomUser, FindsTheEditorInOrderAfterEachAction) {
  constexpr std::size_t kActions = 500;
  const unsigned first = test::from_environment("LUNAVOX_RANDOM_SEED", 1);
  const unsigned users = test::from_environment("LUNAVOX_RANDOM_USERS", 5);
  for (unsigned seed = first; seed < first + users; ++seed) {
    Script script = random_script(seed, kActions);
    const test::Outcome outcome = test::replay(script);
    if (outcome.wrong.empty()) continue;
    // At once, for whoever has no time to wait for the shortest script.
    std::cout << "Seed " << seed << ", action " << outcome.actions << ": " << outcome.wrong
              << std::endl;
    script.resize(outcome.actions);
    ADD_FAILURE() << "Seed " << seed << ": " << failure_text(script);
  }
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

TEST(RandomUser, FindsASongThatIsOpenedOtherwiseThanItWasSaved) {
  test::RandomUser user;
  EXPECT_EQ(user.act({Deed::kSave, 0, 0}), "");
  user.editor().song_file.set_starteffect([&] { user.editor().song.values.at(1, kPan, 5) = 3; });
  EXPECT_EQ(user.act({Deed::kOpenOver, 0, 0}),
            "a song that is opened is that of its file: line 309 is \" 3 \", not \" 64 \"");
}

TEST(RandomUser, FindsAnExceptionOfAnyKind) {
  test::RandomUser user;
  user.editor().shell.choose_drum_kit = [] { throw std::out_of_range("far out"); };
  EXPECT_EQ(user.act({Deed::kClickEffects, 2, kInstrument}), "no rule throws here: far out");
}

}  // namespace
}  // namespace lunavox
