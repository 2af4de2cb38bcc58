#include "grid/runtime_error.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(RuntimeError, HasTheNumberAndMessageOfTheRuntime) {
  const std::pair<int, std::string> expected[] = {
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {53, "File not found"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
  };
  for (const auto& [number, message] : expected) {
    const RuntimeError error(static_cast<RuntimeError::Number>(number));
    EXPECT_EQ(error.number(), number);
    EXPECT_EQ(error.what(), message);
  }
}

TEST(RuntimeError, OfANumberThatNobodyKnowsIsCalledSo) {
  EXPECT_STREQ(RuntimeError(static_cast<RuntimeError::Number>(63)).what(), "Unknown error");
}

TEST(RuntimeError, SaysWhereItHappened) {
  const RuntimeError error(RuntimeError::kFileNotFound, "drumbank.ini");
  EXPECT_EQ(error.number(), RuntimeError::kFileNotFound);
  EXPECT_STREQ(error.what(), "File not found: drumbank.ini");
}

}  // namespace
}  // namespace lunavox
