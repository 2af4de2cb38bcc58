#include "midi/input_port.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// Inputs that a test plays on.
class PlayedInputs : public InputDevices {
 public:
  std::vector<std::string> names() override { return {"Keyboard", "Pads"}; }
  std::unique_ptr<InputDevice> open(int device, InputCallback deliver) override {
    calls.push_back("open " + std::to_string(device));
    if (device >= 2) return nullptr;
    callback = std::move(deliver);
    return std::make_unique<Device>(*this);
  }
  std::string open_error() const override { return {}; }

  std::vector<std::string> calls;
  InputCallback callback;
  std::string trouble;

 private:
  class Device : public InputDevice {
   public:
    explicit Device(PlayedInputs& owner) : owner_(owner) {}
    ~Device() override { owner_.calls.emplace_back("close"); }
    void start() override { owner_.calls.emplace_back("start"); }
    void stop() override { owner_.calls.emplace_back("stop"); }
    void reset() override { owner_.calls.emplace_back("reset"); }
    std::string status() const override { return owner_.trouble; }
    void look_after() override { owner_.calls.emplace_back("look after"); }

   private:
    PlayedInputs& owner_;
  };
};

class InputPortTest : public testing::Test {
 protected:
  PlayedInputs inputs;
  NoteQueue queue;
  InputPort port{inputs, queue};
};

TEST_F(InputPortTest, WhatArrivesGoesIntoTheQueue) {
  ASSERT_TRUE(port.open(0));
  inputs.callback(0x643C90);
  inputs.callback(0x4007B3);
  EXPECT_EQ(queue.front(), 0x643C90U);
  queue.pop();
  EXPECT_EQ(queue.front(), 0x4007B3U);
}

TEST_F(InputPortTest, ActiveSensingNeverEntersTheQueue) {
  port.open(0);
  inputs.callback(0xFE);
  EXPECT_EQ(queue.front(), 0U);
}

TEST_F(InputPortTest, ItIsOpenedStartedStoppedResetAndClosed) {
  port.open(1);
  port.start();
  port.stop();
  port.reset();
  port.close();
  EXPECT_FALSE(port.is_open());
  EXPECT_EQ(inputs.calls, (std::vector<std::string>{"open 1", "start", "stop", "reset", "close"}));
}

TEST_F(InputPortTest, OpeningAnotherDeviceClosesTheFirst) {
  port.open(0);
  port.open(1);
  EXPECT_EQ(inputs.calls, (std::vector<std::string>{"open 0", "close", "open 1"}));
}

TEST_F(InputPortTest, ADeviceThatCannotBeOpenedLeavesNothingOpen) {
  EXPECT_FALSE(port.open(7));
  port.start();
  port.stop();
  port.reset();
  EXPECT_FALSE(port.is_open());
  EXPECT_EQ(port.status(), "");
}

TEST_F(InputPortTest, ADeviceThatHasGoneIsTold) {
  port.open(0);
  inputs.trouble = "Keyboard is gone.";
  EXPECT_EQ(port.status(), "Keyboard is gone.");
}

TEST_F(InputPortTest, ItIsToldOnceEachTimeThatTheDeviceGoesAway) {
  int told = 0;
  port.on_gone([&told] { ++told; });
  port.open(0);
  port.look_after();
  EXPECT_EQ(told, 0);
  inputs.trouble = "Keyboard is gone.";
  port.look_after();
  port.look_after();
  EXPECT_EQ(told, 1);
  inputs.trouble = "";
  port.look_after();
  inputs.trouble = "Keyboard is gone.";
  port.look_after();
  EXPECT_EQ(told, 2);
}

TEST_F(InputPortTest, TheOpenDeviceIsLookedAfter) {
  port.look_after();
  EXPECT_TRUE(inputs.calls.empty());
  port.open(0);
  port.look_after();
  EXPECT_EQ(inputs.calls, (std::vector<std::string>{"open 0", "look after"}));
}

}  // namespace
}  // namespace lunavox
