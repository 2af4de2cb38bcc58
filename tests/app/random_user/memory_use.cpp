#include "memory_use.h"

#include <algorithm>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// The compiler's own header for it is not everywhere.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT
#endif

namespace lunavox::test {

std::size_t heap_in_use() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}

std::size_t resident_memory() {
  std::size_t size = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

std::size_t FlatLine::middle(std::size_t quarter) const {
  const auto place = [&](std::size_t q) {
    return readings_.begin() + static_cast<std::ptrdiff_t>(readings_.size() * q / 4);
  };
  std::vector<std::size_t> part(place(quarter), place(quarter + 1));
  std::sort(part.begin(), part.end());
  return part[part.size() / 2];
}

std::string FlatLine::verdict() const {
  if (readings_.size() < 8) return "there are too few readings";
  return middle(3) > middle(1) + allowance_ ? "grows: " + summary() : "";
}

std::string FlatLine::summary() const {
  return std::to_string(middle(1)) + " at first, " + std::to_string(middle(3)) + " at last, " +
         std::to_string(readings_.size()) + " readings";
}

}  // namespace lunavox::test
