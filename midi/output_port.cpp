#include "midi/output_port.h"

#include "grid/runtime_numbers.h"
#include "midi/short_message.h"

#include <algorithm>
#include <array>

namespace lunavox {
namespace {

// Channel index 15 is left alone: modules that share its bus with others keep it as it is.
constexpr int kResetChannels = 15;
constexpr int kAllChannels = 16;
constexpr int kPendingTracks = 15;
constexpr int kAllNotesOff = 123;

struct ControllerDefault {
  int controller;
  int value;
};

// A volume of 255 is more than a data byte holds; modules keep its low seven bits, 127.
constexpr std::array<ControllerDefault, 11> kDefaults = {{{120, 0},
                                                          {kAllNotesOff, 0},
                                                          {7, 255},
                                                          {10, 64},
                                                          {1, 1},
                                                          {74, 64},
                                                          {91, 40},
                                                          {93, 1},
                                                          {94, 1},
                                                          {73, 64},
                                                          {72, 64}}};

}  // namespace

OutputPort::OutputPort(OutputDevices& devices, Dialogs& dialogs)
    : devices_(devices), dialogs_(dialogs) {}

bool OutputPort::open(int device) {
  close();
  current_device_ = device;
  device_ = devices_.open(device);
  return is_open();
}

void OutputPort::close() {
  device_.reset();
}

void OutputPort::send(std::uint32_t packed) {
  if (device_) device_->short_message(packed);
}

void OutputPort::send_text(std::string_view hex_digits) {
  send(hex_value(hex_digits));
}

void OutputPort::sendsysex(const SysExBytes& data) {
  if (!device_) return;
  last_result_ = device_->prepare_header(data);
  if (last_result_ != kMidiOk) return midierror("preparing header");
  last_result_ = device_->long_message(data);
  if (last_result_ != kMidiOk) return midierror("sending long message");
  last_result_ = device_->unprepare_header(data);
  if (last_result_ != kMidiOk) midierror("unpreparing header");
}

void OutputPort::midierror(const std::string& step) {
  const std::string reason = device_ ? device_->error_text(last_result_) : std::string();
  dialogs_.message({"Error in " + step + "\r\n" + reason, "", Icon::kNone, Buttons::kOk});
}

void OutputPort::resetchannels() {
  send_pending_note_offs(true);
  send_controller_defaults();
}

void OutputPort::reset_new_device() {
  send_pending_note_offs(false);
  send_controller_defaults();
}

void OutputPort::all_notes_off() {
  for (int channel = 0; channel < kAllChannels; ++channel) {
    send(control_change(channel, kAllNotesOff, 0));
  }
}

void OutputPort::reset_device() {
  if (device_) device_->reset();
}

const std::string& OutputPort::pending_note_off(int track, int column) const {
  return pending_.at(track).at(static_cast<std::size_t>(column));
}

void OutputPort::keep_note_off(int track, int column, std::string_view note_text) {
  const std::size_t tail = std::min<std::size_t>(4, note_text.size());
  if (tail == 0) return clear_note_off(track, column);
  std::string& pending = pending_.at(track).at(static_cast<std::size_t>(column));
  pending = note_text.substr(note_text.size() - tail, 2);
  pending += '9';
  pending += note_text.back();
}

void OutputPort::clear_note_off(int track, int column) {
  pending_.at(track).at(static_cast<std::size_t>(column)).clear();
}

void OutputPort::send_pending_note_offs(bool clear) {
  for (int track = 0; track < kPendingTracks; ++track) {
    for (int column = 1; column <= kNoteColumns; ++column) {
      // Where nothing sounds the entry is empty, and is sent all the same: as the message 0.
      send_note_off(track, column);
      if (clear) clear_note_off(track, column);
    }
  }
}

void OutputPort::send_controller_defaults() {
  for (int channel = 0; channel < kResetChannels; ++channel) {
    for (const auto& [controller, value] : kDefaults) {
      send(control_change(channel, controller, value));
    }
  }
}

}  // namespace lunavox
