#include "environment.h"
#include "memory_use.h"
#include "session.h"
#include "shared_input.h"
#include "tests/support/temp_folder.h"

#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <random>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
/// The sanitizer keeps freed memory from being used again until there is much of it. Here the
/// process is to show how much it needs.
extern "C" const char* __asan_default_options() {  // NOLINT
  return "quarantine_size_mb=1";
}
#endif

namespace lunavox {
namespace {

using test::Action;
using test::Deed;
using test::Script;

/// How much of the heap may be in use more at the end of a soak than at its beginning. In an hour,
/// that is some sixty bytes a round. The C library's own allocator counts the freed memory that it
/// keeps at hand for each thread.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t kHeapAllowance = 8 * 1024;
#else
constexpr std::size_t kHeapAllowance = 256 * 1024;
#endif
/// The same for the process, whose allocator keeps what was freed for a while. The thread sanitizer
/// also keeps account of all memory that was ever touched.
#ifdef __SANITIZE_THREAD__
constexpr std::size_t kResidentAllowance = 1024 * 1024 * 1024;
#else
constexpr std::size_t kResidentAllowance = 24 * 1024 * 1024;
#endif

/// Records a few notes in columns here and there.
void add_tune(Script& script, std::mt19937& chance) {
  constexpr int kColumns = 6;
  constexpr int kNotes = 8;
  const auto number = [&](int first, int count) {
    return first + static_cast<int>(chance() % static_cast<unsigned>(count));
  };
  for (int column = 0; column < kColumns; ++column) {
    script.push_back({Deed::kMoveCursor, number(0, 8), number(0, 1000)});
    script.push_back({Deed::kRecord, 0, 0});
    for (int note = 0; note < kNotes; ++note) {
      script.push_back({Deed::kReceive, number(36, 48), number(1, 127)});
    }
    script.push_back({Deed::kRecord, 0, 0});
  }
}

/// What is done until all is tidied up again: the song is worked on, then played several times and
/// worked on meanwhile.
Script random_round(std::mt19937& chance) {
  constexpr int kEdits = 25;
  constexpr int kPlays = 4;
  constexpr int kMostMeanwhile = 6;
  Script script = {{Deed::kAddTrack, 0, 0}};
  add_tune(script, chance);
  for (int i = 0; i < kEdits; ++i) script.push_back(test::random_action(chance));
  for (int i = 0; i < kPlays; ++i) {
    script.push_back({Deed::kPlay, 0, 0});
    for (auto more = 1 + chance() % kMostMeanwhile; more > 0; --more) {
      script.push_back({Deed::kLetPlay, static_cast<int>(chance() % 500), 0});
      script.push_back(test::random_action(chance));
    }
  }
  script.push_back({Deed::kTidyUp, 0, 0});
  return script;
}

/// An editor that is used for a long time, on a clock that runs as fast as the machine can.
class Soak {
 public:
  explicit Soak(unsigned seed) : chance_(seed) {}

  /// Another thread plays on the input from now on.
  void share_input() { other_player_.emplace(user_.share_inputs(), chance_); }

  /// @return what is wrong, empty where nothing is
  std::string run(long long played_ms) {
    // The longest song that will be made, so that the stores need not grow later.
    std::string wrong = run_round({{Deed::kEnterField, kLength, kLongest}, {Deed::kTidyUp, 0, 0}});
    while (wrong.empty() && user_.listener().played_ms() < played_ms)
      wrong = run_round(random_round(chance_));
    return wrong;
  }

  std::string memory_verdict() const { return heap_.verdict() + resident_.verdict(); }
  std::string summary() const {
    return "heap " + heap_.summary() + "; resident " + resident_.summary() + "; " +
           std::to_string(checker_.ledger().notes()) + " notes in " +
           std::to_string(checker_.ledger().messages()) + " messages; " + std::to_string(stops_) +
           " stops";
  }
  const test::NoteLedger& ledger() const { return checker_.ledger(); }
  int stops() const { return stops_; }
  /// All that was done.
  const Script& script() const { return script_; }

 private:
  static constexpr int kLength = 1;    // as a field of the random user
  static constexpr int kLongest = 13;  // as its entry

  std::string run_round(const Script& round) {
    for (const Action& action : round) {
      script_.push_back(action);
      if (other_player_) other_player_->play(action.deed == Deed::kTidyUp ? 0 : 3);
      const std::string wrong = user_.act(action);
      if (!wrong.empty()) return wrong;
    }
    const auto marks = user_.listener().take_marks();
    for (const test::LogMark& mark : marks) stops_ += mark.event == test::PlayEvent::kStops;
    std::string wrong = checker_.check(log_, marks);
    heap_.add(test::heap_in_use() - script_.capacity() * sizeof(Action));
    resident_.add(test::resident_memory());
    return wrong;
  }

  test::TempFolder folder_;
  std::mt19937 chance_;
  test::RandomUser user_{folder_.file("midi.log")};
  std::ifstream log_{folder_.file("midi.log")};
  test::LogChecker checker_;
  std::optional<test::SharedInput> other_player_;
  test::FlatLine heap_{kHeapAllowance};
  test::FlatLine resident_{kResidentAllowance};
  Script script_;
  int stops_ = 0;
};

/// LUNAVOX_SOAK_SECONDS is how long the song plays, LUNAVOX_SOAK_SEED what is done meanwhile.
long long soak_ms() {
  return 1000LL * test::from_environment("LUNAVOX_SOAK_SECONDS", 150);
}
unsigned soak_seed() {
  return test::from_environment("LUNAVOX_SOAK_SEED", 1);
}

/// Each run, long or short, has at least as many notes and stops for so many milliseconds.
constexpr long long kMsPerNote = 1000;
constexpr long long kMsPerStop = 10'000;

/// Soaks and looks at what came out of it.
void soak_and_expect_order(bool with_another_player) {
  // At once: who is killed tells nothing any more.
  std::cout << "Seed " << soak_seed() << std::endl;
  auto soak = std::make_unique<Soak>(soak_seed());
  if (with_another_player) soak->share_input();
  const std::string wrong = soak->run(soak_ms());
  if (wrong.empty()) {
    EXPECT_EQ(soak->memory_verdict(), "");
    EXPECT_GT(soak->ledger().notes(), static_cast<std::size_t>(soak_ms() / kMsPerNote));
    EXPECT_GT(soak->stops(), soak_ms() / kMsPerStop);
    testing::Test::RecordProperty("summary", soak->summary());
    return;
  }
  const Script script = soak->script();
  std::cout << "Action " << script.size() << ": " << wrong << std::endl;
  soak.reset();  // whose threads would keep it from being replayed
  // When the other thread's notes came is not known any more.
  const std::string text = with_another_player ? "" : failure_text_of_rounds(script);
  ADD_FAILURE() << "Seed " << soak_seed() << ": " << wrong << '\n' << text;
}

TEST(Soak, LeavesNoNoteSoundingAndKeepsNoMemory) {
  soak_and_expect_order(false);
}

TEST(Soak, LeavesNoNoteSoundingWhileAnotherThreadPlaysOnTheInput) {
  soak_and_expect_order(true);
}

}  // namespace
}  // namespace lunavox
