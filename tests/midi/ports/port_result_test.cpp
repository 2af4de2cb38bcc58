#include "midi/ports/port_result.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

const SysExBytes kXgSystemOn = {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7};

TEST(SysExSteps, PreparedSentUnprepared) {
  SysExSteps steps;
  EXPECT_EQ(steps.prepare(kXgSystemOn), kMidiOk);
  EXPECT_EQ(steps.check_prepared(), kMidiOk);
  EXPECT_EQ(steps.unprepare(), kMidiOk);
}

TEST(SysExSteps, NothingIsSentOrUnpreparedBeforeItIsPrepared) {
  SysExSteps steps;
  EXPECT_EQ(steps.check_prepared(), kNotPrepared);
  EXPECT_EQ(steps.unprepare(), kNotPrepared);
}

TEST(SysExSteps, WhatIsUnpreparedMustBePreparedAnew) {
  SysExSteps steps;
  steps.prepare(kXgSystemOn);
  steps.unprepare();
  EXPECT_EQ(steps.check_prepared(), kNotPrepared);
}

TEST(SysExSteps, BytesThatAreNotAWholeMessageCannotBePrepared) {
  SysExSteps steps;
  EXPECT_EQ(steps.prepare({}), kNotSysEx);
  EXPECT_EQ(steps.prepare({0xF0}), kNotSysEx);
  EXPECT_EQ(steps.prepare({0xF0, 0x43}), kNotSysEx);
  EXPECT_EQ(steps.prepare({0x43, 0xF7}), kNotSysEx);
  EXPECT_EQ(steps.check_prepared(), kNotPrepared);
}

TEST(PortResult, EachHasASentence) {
  EXPECT_EQ(port_result_text(kMidiOk), "There is no error.");
  EXPECT_EQ(port_result_text(kNotSysEx), "The bytes are not a System Exclusive message.");
  EXPECT_EQ(port_result_text(kNotPrepared), "The message has not been prepared.");
  EXPECT_EQ(port_result_text(kPortGone), "The MIDI port is gone.");
  EXPECT_EQ(port_result_text(kPortBusy), "The MIDI port is still busy with earlier messages.");
  EXPECT_EQ(port_result_text(kNotSent), "The MIDI service did not take the message.");
  EXPECT_EQ(port_result_text(99), "Unknown error 99.");
}

}  // namespace
}  // namespace lunavox
