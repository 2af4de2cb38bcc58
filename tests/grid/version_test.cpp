#include "grid/version.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(Version, TheProgramTellsItAfterItsName) {
  EXPECT_EQ(version_text(), "Lunavox 2.1");
}

}  // namespace
}  // namespace lunavox
