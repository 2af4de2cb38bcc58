#include "midi/clock.h"

#include <chrono>

namespace lunavox {

std::uint32_t SystemClock::timeGetTime() {
  using namespace std::chrono;
  return static_cast<std::uint32_t>(
      duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

}  // namespace lunavox
