#pragma once

#include "midi/devices.h"
#include "midi/note_queue.h"

#include <functional>
#include <memory>
#include <string>

namespace lunavox {

/// The MIDI input: what its device receives goes into the note queue, on the device's own thread.
class InputPort {
 public:
  InputPort(InputDevices& devices, NoteQueue& queue);

  /// Opens a device in place of the one that is open; nothing arrives before start().
  /// @return false when no device results; nothing is open then
  bool open(int device);
  bool is_open() const { return device_ != nullptr; }
  void close();

  // Nothing happens where no device is open.
  void start();
  void stop();
  void reset();
  /// Takes a device up again that was gone and has come back.
  void look_after();
  /// Told by look_after() when the open device has gone away, once each time.
  void on_gone(std::function<void()> told) { on_gone_ = std::move(told); }

  /// One sentence when the open device has gone away, else empty.
  std::string status() const;

 private:
  InputDevices& devices_;
  NoteQueue& queue_;
  std::unique_ptr<InputDevice> device_;
  std::function<void()> on_gone_;
  bool gone_ = false;  // as look_after() last saw it
};

}  // namespace lunavox
