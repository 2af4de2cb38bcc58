#include "files/field_reader.h"

#include "grid/runtime_error.h"
#include "tests/support/error_of.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> fields_of(std::string_view bytes) {
  FieldReader reader(bytes);
  std::vector<std::string> fields;
  while (!reader.at_end()) fields.emplace_back(reader.text());
  return fields;
}

std::optional<RuntimeError::Number> error_of_reading(std::string_view bytes) {
  FieldReader reader(bytes);
  return test::error_of([&] { reader.short_integer(); });
}

TEST(FieldReader, EachLineIsAField) {
  EXPECT_THAT(fields_of("2.0\r\n 1 \r\n\r\nyes\r\n"), ElementsAre("2.0", "1", "", "yes"));
}

TEST(FieldReader, LinesMayEndWithLineFeedOrCarriageReturnAlone) {
  EXPECT_THAT(fields_of("a\nb\n\nc"), ElementsAre("a", "b", "", "c"));
  EXPECT_THAT(fields_of("a\rb\r\rc"), ElementsAre("a", "b", "", "c"));
  EXPECT_THAT(fields_of("a\n\rb"), ElementsAre("a", "", "b"));
}

TEST(FieldReader, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(fields_of("a\r\nb"), ElementsAre("a", "b"));
}

TEST(FieldReader, ACommaEndsAField) {
  EXPECT_THAT(fields_of("verse, second\r\n7\r\n"), ElementsAre("verse", "second", "7"));
  EXPECT_THAT(fields_of(",,x\n"), ElementsAre("", "", "x"));
  EXPECT_THAT(fields_of("a,\r\nb"), ElementsAre("a", "", "b"));
}

TEST(FieldReader, OuterSpacesAreDropped) {
  EXPECT_THAT(fields_of("  a b  \r\n   \r\n , c ,"), ElementsAre("a b", "", "", "c"));
}

TEST(FieldReader, OnlySpacesAreDroppedAndBytesStayAsTheyAre) {
  EXPECT_THAT(fields_of("\ta\t\n\xff\xc3\xa9\n"), ElementsAre("\ta\t", "\xff\xc3\xa9"));
  EXPECT_THAT(fields_of(std::string_view("a\0b\n", 4)), ElementsAre(std::string("a\0b", 3)));
}

TEST(FieldReader, AQuotedFieldRunsToTheNextQuote) {
  EXPECT_THAT(fields_of("\"verse, second\"\r\n7"), ElementsAre("verse, second", "7"));
  EXPECT_THAT(fields_of("  \" a \" , b"), ElementsAre(" a ", "b"));
  EXPECT_THAT(fields_of("\"two\r\nlines\"\r\nx"), ElementsAre("two\r\nlines", "x"));
  EXPECT_THAT(fields_of("\"\"\n\"\"\n"), ElementsAre("", ""));
}

TEST(FieldReader, AQuoteInsideAFieldIsAnOrdinaryCharacter) {
  EXPECT_THAT(fields_of("5\" tape\n"), ElementsAre("5\" tape"));
}

TEST(FieldReader, WhatFollowsAClosingQuoteStartsAField) {
  EXPECT_THAT(fields_of("\"a\"b,c\n"), ElementsAre("a", "b", "c"));
}

TEST(FieldReader, AQuoteThatIsNeverClosedRunsToTheEnd) {
  EXPECT_THAT(fields_of("x\n\"open, to\nthe end"), ElementsAre("x", "open, to\nthe end"));
  EXPECT_THAT(fields_of("\""), ElementsAre(""));
}

TEST(FieldReader, ReadingPastTheEndFails) {
  EXPECT_EQ(error_of_reading(""), RuntimeError::kInputPastEndOfFile);
  FieldReader reader("a\r\n");
  EXPECT_EQ(reader.text(), "a");
  EXPECT_TRUE(reader.at_end());
  EXPECT_THROW(reader.text(), RuntimeError);
}

TEST(FieldReader, NumbersAreReadFromTheStartOfAField) {
  FieldReader reader(" 5 \n-1 \n12abc\nyes\n\n1.5\n2.5\n-0.5\n1e3\n+7\n00012\n-\n");
  EXPECT_EQ(reader.integer(), 5);
  EXPECT_EQ(reader.integer(), -1);
  EXPECT_EQ(reader.integer(), 12);
  EXPECT_EQ(reader.integer(), 0);
  EXPECT_EQ(reader.integer(), 0);
  EXPECT_EQ(reader.integer(), 2) << "halves go to the even neighbour";
  EXPECT_EQ(reader.integer(), 2);
  EXPECT_EQ(reader.integer(), 0);
  EXPECT_EQ(reader.integer(), 1000);
  EXPECT_EQ(reader.integer(), 7);
  EXPECT_EQ(reader.integer(), 12);
  EXPECT_EQ(reader.integer(), 0);
}

TEST(FieldReader, NumbersKeepTheirFraction) {
  FieldReader reader("1.15\n2.0\n");
  EXPECT_EQ(reader.number(), 1.15);
  EXPECT_EQ(reader.number(), 2.0);
}

TEST(FieldReader, ShortIntegersReachFrom32768BelowZeroTo32767) {
  FieldReader reader("32767\n-32768\n127\n2.5x\n");
  EXPECT_EQ(reader.short_integer(), 32767);
  EXPECT_EQ(reader.short_integer(), -32768);
  EXPECT_EQ(reader.short_integer(), 127);
  EXPECT_EQ(reader.short_integer(), 2);
  EXPECT_EQ(error_of_reading("32768"), RuntimeError::kOverflow);
  EXPECT_EQ(error_of_reading("1e999"), RuntimeError::kOverflow);
}

TEST(FieldReader, AFlagIsTrueForEveryNumberButZero) {
  FieldReader reader("-1 \n 0 \n1\n0.2\nyes\n\n-32769\n");
  EXPECT_TRUE(reader.flag());
  EXPECT_FALSE(reader.flag());
  EXPECT_TRUE(reader.flag());
  EXPECT_TRUE(reader.flag());
  EXPECT_FALSE(reader.flag());
  EXPECT_FALSE(reader.flag());
  EXPECT_TRUE(reader.flag());
}

}  // namespace
}  // namespace lunavox
