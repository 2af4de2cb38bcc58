#include "session.h"

#include "own_process.h"

namespace lunavox::test {
namespace {

// How often, in actions, the song is saved and opened in another editor: that takes its time.
constexpr int kBetweenReopenings = 50;

constexpr std::chrono::minutes kTimeForShortening{4};

/// Some thirty rounds of a soak.
constexpr std::size_t kMostActionsOfRounds = 4000;

Outcome act_all(const Script& script, const std::function<void()>& begin_action) {
  Session session;
  std::size_t done = 0;
  for (const Action& action : script) {
    begin_action();
    std::string wrong = session.act(action);
    ++done;
    if (wrong.empty() && done == script.size()) wrong = session.user.compare_reopened();
    if (!wrong.empty()) return {wrong, done};
  }
  return {};
}

}  // namespace

std::string Session::act(const Action& action) {
  undisturbed_.remember(user.editor(), action);
  invariants_.remember(user.editor(), action);
  std::string wrong = user.act(action);
  if (user.began_song()) invariants_.forget();
  if (wrong.empty()) wrong = invariants_.check(user.editor());
  if (wrong.empty()) wrong = undisturbed_.check(user.editor());
  if (wrong.empty() && ++actions_ % kBetweenReopenings == 0) wrong = user.compare_reopened();
  return wrong;
}

Outcome replay(const Script& script) {
  return in_own_process(script, act_all);
}

std::string failure_text(const Script& script) {
  Script shortest;
  {
    const QuietErrors quiet;
    shortest = shortest_script(script, for_a_while(replay, kTimeForShortening));
  }
  return replay(shortest).wrong + "\nThe shortest script that fails:\n" + as_text(shortest);
}

std::string failure_text_of_rounds(const Script& script) {
  const Script end = failing_end(script, replay, kMostActionsOfRounds);
  return end.empty() ? "The last rounds alone do not fail." : failure_text(end);
}

}  // namespace lunavox::test
