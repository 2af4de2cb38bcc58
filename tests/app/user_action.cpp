#include "user_action.h"

#include <array>
#include <cstddef>
#include <ostream>

namespace lunavox::test {
namespace {

// How often a user does each deed, in its order among the deeds.
constexpr std::array<int, kDeeds> kWeights = {24, 14, 1, 12, 8, 7, 14, 6, 3,  2, 2, 3, 2, 6, 2, 2,
                                              3,  2,  1, 2,  2, 6, 6,  8, 14, 1, 1, 1, 1, 1, 1};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Action& action) {
  return out << "{Deed(" << static_cast<int>(action.deed) << "), " << action.a << ", " << action.b
             << "},";
}

Action random_action(std::mt19937& chance) {
  // The standard's distributions differ between libraries: a seed is to mean the same everywhere.
  constexpr int kMostNumber = 1000;
  int sum = 0;
  for (const int weight : kWeights) sum += weight;
  int left = static_cast<int>(chance() % static_cast<unsigned>(sum));
  std::size_t deed = 0;
  while (left >= kWeights[deed]) left -= kWeights[deed++];
  const int a = static_cast<int>(chance() % kMostNumber);
  const int b = static_cast<int>(chance() % kMostNumber);
  return {static_cast<Deed>(deed), a, b};
}

}  // namespace lunavox::test
