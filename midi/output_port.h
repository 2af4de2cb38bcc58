#pragma once

#include "grid/dialogs.h"
#include "grid/line_table.h"
#include "midi/devices.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace lunavox {

/// The one open MIDI output: every message of the program leaves through it.
class OutputPort {
 public:
  OutputPort(OutputDevices& devices, Dialogs& dialogs);

  /// Closes the output and opens another device into it.
  /// @return false when no device results; nothing is open then
  bool open(int device);
  void close();
  bool is_open() const { return device_ != nullptr; }
  /// Number last chosen, -1 for the system's default; it stays where the device could not be
  /// opened.
  int current_device() const { return current_device_; }
  OutputDevice* device() const { return device_.get(); }

  /// Sends a packed short message; the result is ignored.
  void send(std::uint32_t packed);
  /// Sends a short message given as hexadecimal digits, most significant byte first ("643C90").
  /// Texts that are not a number send the message 0.
  void send_text(std::string_view hex_digits);

  /// Sends one System Exclusive message, F0 ... F7, in three steps. The first step that fails is
  /// told to the user and ends the sending.
  void sendsysex(const SysExBytes& data);
  /// Shows the error of the last step.
  void midierror(const std::string& step);

  /// Silences what sounds, clears the pending note-offs and sets the controllers of channels 0..14
  /// to the program's defaults.
  void resetchannels();
  /// As resetchannels, but leaves the pending note-offs as they are: what choosing a device does.
  void reset_new_device();

  /// Controller 123 (all notes off) on all sixteen channels.
  void all_notes_off();

  /// Silences the device if one is open.
  void reset_device();

  // The pending note-offs: for each note column (1..8) of a track the text of the message that ends
  // the note sounding there, empty when none sounds.
  const std::string& pending_note_off(int track, int column) const;
  /// Sends a pending note-off; the message 0 where it is empty.
  void send_note_off(int track, int column) { send_text(pending_note_off(track, column)); }
  /// Takes up the note-off of a note that has begun: the same note at velocity 0.
  /// @param note_text the text of its note-on
  void keep_note_off(int track, int column, std::string_view note_text);
  void clear_note_off(int track, int column);

 private:
  void send_pending_note_offs(bool clear);
  void send_controller_defaults();

  OutputDevices& devices_;
  Dialogs& dialogs_;
  std::unique_ptr<OutputDevice> device_;
  int current_device_ = 0;
  MidiResult last_result_ = kMidiOk;
  TrackTable<std::array<std::string, kNoteSlots>> pending_;
};

}  // namespace lunavox
