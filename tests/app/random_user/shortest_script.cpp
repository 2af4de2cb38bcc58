#include "shortest_script.h"

#include <algorithm>
#include <sstream>

namespace lunavox::test {
namespace {

/// A script of more actions than this is not searched for pairs: that takes the square of them.
constexpr std::size_t kMostForPairs = 40;

Script without(const Script& script, std::size_t first, std::size_t count) {
  Script rest = script;
  const auto begin = rest.begin() + static_cast<std::ptrdiff_t>(first);
  rest.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(count, script.size() - first)));
  return rest;
}

/// The last rounds of a script; all of it where it has fewer.
Script last_rounds(const Script& script, std::size_t rounds) {
  std::size_t begin = script.size();
  for (std::size_t round = 0; round < rounds && begin > 0; ++round) {
    --begin;  // the tidy-up that ends it
    while (begin > 0 && script[begin - 1].deed != Deed::kTidyUp) --begin;
  }
  return {script.begin() + static_cast<std::ptrdiff_t>(begin), script.end()};
}

/// Takes a shorter script if it still fails, up to where it does.
bool take_if_failing(Script& script, Script shorter, const Replay& replay) {
  const Outcome outcome = replay(shorter);
  if (outcome.wrong.empty()) return false;
  shorter.resize(outcome.actions);
  script = std::move(shorter);
  return true;
}

bool leave_out_chunks(Script& script, std::size_t chunk, const Replay& replay) {
  bool shortened = false;
  for (std::size_t at = 0; at < script.size();) {
    if (take_if_failing(script, without(script, at, chunk), replay)) {
      shortened = true;
    } else {
      at += chunk;
    }
  }
  return shortened;
}

/// Two that only go together: to start something and to end it.
bool leave_out_pair(Script& script, const Replay& replay) {
  if (script.size() > kMostForPairs) return false;
  for (std::size_t second = 1; second < script.size(); ++second) {
    for (std::size_t first = 0; first < second; ++first) {
      const Script shorter = without(without(script, second, 1), first, 1);
      if (take_if_failing(script, shorter, replay)) return true;
    }
  }
  return false;
}

}  // namespace

Script shortest_script(Script script, const Replay& replay) {
  for (std::size_t chunk = script.size(); chunk > 1; chunk /= 2) {
    leave_out_chunks(script, chunk, replay);
  }
  while (leave_out_chunks(script, 1, replay) || leave_out_pair(script, replay)) {
  }
  return script;
}

Replay for_a_while(const Replay& replay, std::chrono::milliseconds time) {
  using Clock = std::chrono::steady_clock;
  return [replay, end = Clock::now() + time](const Script& script) {
    return Clock::now() < end ? replay(script) : Outcome{};
  };
}

Script failing_end(const Script& script, const Replay& replay, std::size_t most) {
  for (std::size_t rounds = 1;; rounds *= 2) {
    Script end = last_rounds(script, rounds);
    if (end.size() > most) return {};
    const Outcome outcome = replay(end);
    if (!outcome.wrong.empty()) {
      end.resize(outcome.actions);
      return end;
    }
    if (end.size() == script.size()) return {};
  }
}

std::string as_text(const Script& script) {
  std::ostringstream text;
  for (const Action& action : script) text << "  " << action << '\n';
  return text.str();
}

}  // namespace lunavox::test
