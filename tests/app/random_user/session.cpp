#include "session.h"

namespace lunavox::test {
namespace {

// How often, in actions, the song is saved and opened in another editor: that takes its time.
constexpr int kBetweenReopenings = 50;

}  // namespace

std::string Session::act(const Action& action) {
  undisturbed_.remember(user.editor(), action);
  std::string wrong = user.act(action);
  if (wrong.empty()) wrong = invariants_.check(user.editor(), action);
  if (wrong.empty()) wrong = undisturbed_.check(user.editor());
  if (wrong.empty() && ++actions_ % kBetweenReopenings == 0) wrong = user.compare_reopened();
  return wrong;
}

Outcome replay(const Script& script) {
  Session session;
  std::size_t done = 0;
  for (const Action& action : script) {
    std::string wrong = session.act(action);
    ++done;
    if (wrong.empty() && done == script.size()) wrong = session.user.compare_reopened();
    if (!wrong.empty()) return {wrong, done};
  }
  return {};
}

std::string failure_text(Script script) {
  script = shortest_script(std::move(script), replay);
  return replay(script).wrong + "\nThe shortest script that fails:\n" + as_text(script);
}

}  // namespace lunavox::test
