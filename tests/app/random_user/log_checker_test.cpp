#include "log_checker.h"

#include <sstream>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::LogChecker;
using test::LogMark;
using test::PlayEvent;

/// A log of short messages.
std::string log_of(const std::vector<std::string>& messages) {
  std::string log;
  for (const std::string& message : messages) log += "12.500\tshort\t" + message + "\n";
  return log;
}

std::string check(const std::string& text, const std::vector<LogMark>& marks) {
  std::istringstream log(text);
  return LogChecker().check(log, marks);
}

// Note 60 of channel 0 at velocity 100, its end, and what silences the whole channel.
constexpr const char* kNote = "00643C90";
constexpr const char* kEnd = "00003C90";
constexpr const char* kAllSoundOff = "000078B0";
constexpr const char* kClick = "00602599";

TEST(LogChecker, ANoteThatIsEndedBeforeTheStopIsInOrder) {
  EXPECT_EQ(
      check(log_of({kNote, kEnd, kAllSoundOff}), {{0, PlayEvent::kPlays}, {3, PlayEvent::kStops}}),
      "");
}

TEST(LogChecker, ANoteWithoutAnEndIsFoundAtTheStop) {
  EXPECT_EQ(check(log_of({kNote, "00003D90"}), {{0, PlayEvent::kPlays}, {2, PlayEvent::kStops}}),
            "note 60 on channel 0 of message 1 sounds on at the stop behind message 2");
}

TEST(LogChecker, ANoteOfAnotherChannelIsNoEnd) {
  EXPECT_EQ(check(log_of({kNote, "00003C91", "000078B1"}),
                  {{0, PlayEvent::kPlays}, {3, PlayEvent::kStops}}),
            "note 60 on channel 0 of message 1 sounds on at the stop behind message 3");
}

TEST(LogChecker, ANoteOfTheSongNeedsAnEndOfItsOwnAtAStop) {
  const std::string log = log_of({kNote, kAllSoundOff});
  EXPECT_EQ(check(log, {{0, PlayEvent::kPlays}, {2, PlayEvent::kStops}}),
            "note 60 on channel 0 of message 1 has no end of its own at the stop behind message 2");
  EXPECT_EQ(check(log, {{0, PlayEvent::kPlays}, {2, PlayEvent::kTakenOver}}), "");
}

TEST(LogChecker, AKeyThatIsHeldWhileTheSongStopsMayBeSilencedByTheReset) {
  EXPECT_EQ(check(log_of({kNote, kAllSoundOff}), {{1, PlayEvent::kPlays}, {2, PlayEvent::kStops}}),
            "");
}

TEST(LogChecker, TheSameNoteInTwoColumnsNeedsTwoEnds) {
  EXPECT_EQ(
      check(log_of({kNote, kNote, kEnd, kEnd}), {{0, PlayEvent::kPlays}, {4, PlayEvent::kStops}}),
      "");
  EXPECT_EQ(check(log_of({kNote, kNote, kEnd}), {{0, PlayEvent::kPlays}, {3, PlayEvent::kStops}}),
            "note 60 on channel 0 of message 2 sounds on at the stop behind message 3");
}

TEST(LogChecker, AKeyIsEndedOnceHoweverOftenItWasStruck) {
  EXPECT_EQ(check(log_of({kNote, kNote, "00403C80"}), {{3, PlayEvent::kHandsOff}}), "");
}

TEST(LogChecker, AKeyThatNobodyHoldsMustNotSound) {
  EXPECT_EQ(check(log_of({kNote}), {{1, PlayEvent::kHandsOff}}),
            "note 60 on channel 0 of message 1 sounds on when no key is held behind message 1");
}

TEST(LogChecker, TheMetronomesClicksEndThemselvesButNotThoseOfASong) {
  EXPECT_EQ(check(log_of({kClick}), {{1, PlayEvent::kHandsOff}}), "");
  EXPECT_NE(check(log_of({kClick}), {{0, PlayEvent::kPlays}, {1, PlayEvent::kStops}}), "");
}

TEST(LogChecker, AResetDeviceIsSilent) {
  EXPECT_EQ(check(log_of({kNote}),
                  {{0, PlayEvent::kPlays}, {1, PlayEvent::kDeviceReset}, {1, PlayEvent::kStops}}),
            "");
}

TEST(LogChecker, ReadsOnWhereTheLogHasGrown) {
  std::stringstream log;
  log << log_of({kNote});
  LogChecker checker;
  EXPECT_EQ(checker.check(log, {{0, PlayEvent::kPlays}}), "");
  log << log_of({"00003D90"});
  EXPECT_EQ(checker.check(log, {{2, PlayEvent::kStops}}),
            "note 60 on channel 0 of message 1 sounds on at the stop behind message 2");
  EXPECT_EQ(checker.ledger().messages(), 2U);
  EXPECT_EQ(checker.ledger().notes(), 1U);
}

TEST(LogChecker, ALineThatIsNoMessageIsTold) {
  EXPECT_EQ(check("0.000\tsysex\tF043F7\n0.000\tshort\t643C90\n", {}),
            "line 2 is no message: 0.000\tshort\t643C90");
  EXPECT_EQ(check("0.000\tshort\t00643C9\n", {}), "line 1 is no message: 0.000\tshort\t00643C9");
}

TEST(LogChecker, ALogThatLacksMessagesIsTold) {
  EXPECT_EQ(check(log_of({kNote}), {{2, PlayEvent::kPlays}}),
            "the log is shorter than what was sent");
}

}  // namespace
}  // namespace lunavox
