#include "user_action.h"

#include <array>
#include <cstddef>
#include <ostream>

namespace lunavox::test {
namespace {

struct Habit {
  const char* name;
  int weight;
};

// What each deed is called and how often users do it, in the order of the deeds.
constexpr std::array<Habit, kDeeds> kHabits = {{
    {"kPressKey", 24},
    {"kReleaseKey", 14},
    {"kLoseKeys", 1},
    {"kMoveCursor", 14},
    {"kEnterEffectCell", 8},
    {"kSelect", 10},
    {"kClickEffects", 12},
    {"kEnterField", 6},
    {"kTickOption", 3},
    {"kAddTrack", 2},
    {"kDeleteTrack", 2},
    {"kCopy", 3},
    {"kCut", 4},
    {"kPaste", 6},
    {"kVelocityValue", 3},
    {"kVelocityPercent", 2},
    {"kTranspose", 4},
    {"kAddBookmark", 2},
    {"kDeleteBookmark", 1},
    {"kGoToBookmark", 2},
    {"kChooseXg", 2},
    {"kPlay", 4},
    {"kRecord", 7},
    {"kReceive", 16},
    {"kWait", 10},
    {"kNew", 1},
    {"kOpen", 1},
    {"kOpenOver", 1},
    {"kSave", 1},
    {"kSaveAs", 1},
    {"kSaveNowhere", 1},
    {"kExport", 1},
    {"kOpenRecent", 1},
    {"kOpenDamaged", 1},
    {"kChooseOutput", 2},
    {"kScroll", 2},
    {"kCancelCountIn", 1},
    {"kLetPlay", 5},
    {"kLoseProgram", 1},
    {"kTidyUp", 0},
}};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Action& action) {
  return out << "{Deed::" << kHabits.at(static_cast<std::size_t>(action.deed)).name << ", "
             << action.a << ", " << action.b << "},";
}

Action random_action(std::mt19937& chance) {
  // The standard's distributions differ between libraries: a seed is to mean the same everywhere.
  constexpr int kMostNumber = 1000;
  int sum = 0;
  for (const Habit& habit : kHabits) sum += habit.weight;
  int left = static_cast<int>(chance() % static_cast<unsigned>(sum));
  std::size_t deed = 0;
  while (left >= kHabits[deed].weight) left -= kHabits[deed++].weight;
  const int a = static_cast<int>(chance() % kMostNumber);
  const int b = static_cast<int>(chance() % kMostNumber);
  return {static_cast<Deed>(deed), a, b};
}

}  // namespace lunavox::test
