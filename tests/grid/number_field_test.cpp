#include "grid/number_field.h"

#include "grid/song.h"
#include "tests/support/scripted_dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::ScriptedDialogs;
using testing::ElementsAre;
using testing::IsEmpty;

struct FieldRule {
  const char* name;
  NumberField Song::*field;
  const char* initial;
  const char* lowest;
  const char* highest;
  const char* below;
  const char* above;
  const char* message;
};

void PrintTo(const FieldRule& rule, std::ostream* out) {
  *out << rule.name;
}

class SongField : public testing::TestWithParam<FieldRule> {
 protected:
  NumberField& field() { return song.*GetParam().field; }

  Song song;
  ScriptedDialogs dialogs;
};

TEST_P(SongField, StartsWithItsInitialText) {
  EXPECT_EQ(field().text(), GetParam().initial);
}

TEST_P(SongField, TakesBothEndsOfItsRange) {
  EXPECT_TRUE(field().enter(GetParam().lowest, dialogs));
  EXPECT_EQ(field().text(), GetParam().lowest);
  EXPECT_TRUE(field().enter(GetParam().highest, dialogs));
  EXPECT_EQ(field().text(), GetParam().highest);
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_P(SongField, RefusesWhatIsOutsideWithItsMessageAndKeepsTheLastValidText) {
  ASSERT_TRUE(field().enter(GetParam().highest, dialogs));
  for (const char* bad : {GetParam().below, GetParam().above, "1e400", "99999999999"}) {
    SCOPED_TRACE(bad);
    dialogs.messages.clear();
    EXPECT_FALSE(field().enter(bad, dialogs));
    EXPECT_THAT(dialogs.messages, ElementsAre(error_box(GetParam().message)));
    EXPECT_EQ(field().text(), GetParam().highest);
  }
}

INSTANTIATE_TEST_SUITE_P(All, SongField,
                         testing::Values(FieldRule{"bpm", &Song::bpm, "120", "30", "300", "29",
                                                   "301", "Invalid value (30-300)"},
                                         FieldRule{"length", &Song::length, "64", "2", "3000", "1",
                                                   "3001", "Invalid value (2-3000)"},
                                         FieldRule{"number", &Song::number, "4", "1", "8", "0", "9",
                                                   "Invalid value (1-8)"},
                                         FieldRule{"step", &Song::step, "1", "0", "16", "-1", "17",
                                                   "Invalid value (0-16)"},
                                         FieldRule{"strength", &Song::strength, "127", "1", "127",
                                                   "0", "128", "Invalid value (1-127)"}),
                         [](const auto& rule) { return std::string(rule.param.name); });

TEST(NumberField, ATextThatIsNoNumberCountsAsZero) {
  NumberField bpm("120", 30, 300);
  NumberField step("1", 0, 16);
  ScriptedDialogs dialogs;
  EXPECT_FALSE(bpm.enter("fast", dialogs));
  EXPECT_FALSE(bpm.enter("", dialogs));
  EXPECT_EQ(bpm.text(), "120");
  EXPECT_EQ(dialogs.messages.size(), 2U);
  EXPECT_TRUE(step.enter("none", dialogs));
  EXPECT_EQ(step.text(), "0");
}

TEST(NumberField, ShowsTheWholeNumberThatTheScrollBarTook) {
  NumberField bpm("120", 30, 300);
  ScriptedDialogs dialogs;
  EXPECT_TRUE(bpm.enter("140 or so", dialogs));
  EXPECT_EQ(bpm.text(), "140");
  EXPECT_TRUE(bpm.enter(" 090", dialogs));
  EXPECT_EQ(bpm.text(), "90");
  EXPECT_TRUE(bpm.enter("100,5", dialogs));
  EXPECT_EQ(bpm.text(), "100");
  EXPECT_TRUE(bpm.enter("120.5", dialogs));
  EXPECT_EQ(bpm.text(), "120");
  EXPECT_TRUE(bpm.enter("121.5", dialogs));
  EXPECT_EQ(bpm.text(), "122");
  EXPECT_EQ(bpm.value(), 122);
  EXPECT_EQ(bpm.number(), 122.0);
}

TEST(NumberField, TheRangeIsCheckedBeforeRounding) {
  NumberField bpm("120", 30, 300);
  ScriptedDialogs dialogs;
  EXPECT_FALSE(bpm.enter("300.4", dialogs));
  EXPECT_FALSE(bpm.enter("29.6", dialogs));
  EXPECT_EQ(bpm.text(), "120");
}

TEST(NumberField, TheMessageIsACriticalBoxWithAnOkButtonOnly) {
  NumberField number("4", 1, 8);
  ScriptedDialogs dialogs;
  number.enter("9", dialogs);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "Invalid value (1-8)");
  EXPECT_EQ(dialogs.messages[0].icon, Icon::kCritical);
  EXPECT_EQ(dialogs.messages[0].buttons, Buttons::kOk);
}

TEST(NumberField, ATextFromAFileIsTakenAsItStands) {
  NumberField bpm("120", 30, 300);
  bpm.put("96.5 ");
  EXPECT_EQ(bpm.text(), "96.5 ");
  EXPECT_EQ(bpm.number(), 96.5);
  EXPECT_EQ(bpm.value(), 96);
  bpm.put("9999");
  EXPECT_EQ(bpm.text(), "9999");
}

TEST(NumberField, ListenersHearOfAcceptedTextsOnly) {
  NumberField bpm("120", 30, 300);
  ScriptedDialogs dialogs;
  std::vector<std::string> heard;
  bpm.on_change([&](const std::string& text) { heard.push_back(text); });
  bpm.enter("90", dialogs);
  bpm.enter("9", dialogs);
  bpm.enter("90", dialogs);
  bpm.put("91");
  EXPECT_THAT(heard, ElementsAre("90", "91"));
}

}  // namespace
}  // namespace lunavox
