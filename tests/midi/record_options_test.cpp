#include "midi/record_options.h"

#include "tests/support/scripted_dialogs.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

class RecordOptionsTest : public testing::Test {
 protected:
  RecordOptions options;
  test::ScriptedDialogs dialogs;
};

TEST_F(RecordOptionsTest, FourBeatsAreCountedInAtFirst) {
  EXPECT_EQ(options.before.value(), 4);
}

TEST_F(RecordOptionsTest, NineBeatsAreRefusedAndTheLastValueStays) {
  EXPECT_TRUE(options.before_change("3", dialogs));
  EXPECT_FALSE(options.before_change("9", dialogs));
  EXPECT_EQ(options.before.text(), "3");
  EXPECT_EQ(dialogs.messages, std::vector<Message>{test::error_box("Invalid value (0-8)")});
}

TEST_F(RecordOptionsTest, NoBeatsAndEightAreAccepted) {
  EXPECT_TRUE(options.before_change("0", dialogs));
  EXPECT_EQ(options.before.value(), 0);
  EXPECT_TRUE(options.before_change("8", dialogs));
  EXPECT_EQ(options.before.value(), 8);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RecordOptionsTest, WhatIsNoNumberIsRefused) {
  for (const char* text : {"", " ", "four", "-", ".", "+-3", "3x", "2 beats", "1.2.3", "1 2"}) {
    EXPECT_FALSE(options.before_change(text, dialogs)) << text;
  }
  EXPECT_EQ(dialogs.messages, std::vector<Message>(10, test::error_box("Invalid value (0-8)")));
  EXPECT_EQ(options.before.text(), "4");
}

TEST_F(RecordOptionsTest, NumbersBelow0AreRefused) {
  EXPECT_FALSE(options.before_change("-1", dialogs));
  EXPECT_EQ(dialogs.messages, std::vector<Message>{test::error_box("Invalid value (0-8)")});
}

TEST_F(RecordOptionsTest, ANumberMayHaveASignAFractionAndBlanksAroundIt) {
  EXPECT_TRUE(options.before_change(" 3\t", dialogs));
  EXPECT_EQ(options.before.text(), "3");
  EXPECT_TRUE(options.before_change("+5", dialogs));
  EXPECT_EQ(options.before.text(), "5");
  EXPECT_TRUE(options.before_change("6.0", dialogs));
  EXPECT_EQ(options.before.text(), "6");
  EXPECT_TRUE(options.before_change(".9", dialogs));
  EXPECT_EQ(options.before.text(), "1");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RecordOptionsTest, RecVelocityGreysTheStrengthField) {
  EXPECT_TRUE(options.strength_enabled());
  options.velocity = true;
  EXPECT_FALSE(options.strength_enabled());
}

}  // namespace
}  // namespace lunavox
