#pragma once

#include "grid/dialogs.h"
#include "grid/property.h"
#include "grid/song.h"
#include "midi/output_port.h"

#include <functional>
#include <string>
#include <vector>

namespace lunavox {

/// One item of the output device menu.
struct OutputItem {
  std::string caption;
  bool checked = false;

  bool operator==(const OutputItem&) const = default;
};

/// The menu `outputdev`: which output device the port has open.
class OutputChoice {
 public:
  /// Items of the menu: "System default" and at most fifteen devices.
  static constexpr int kItems = 16;

  /// What follows when no output can be opened: there is no going on without one.
  struct Hooks {
    std::function<void()> close_input;
    std::function<void()> end_program;
  };

  OutputChoice(OutputDevices& devices, OutputPort& port, Song& song, Dialogs& dialogs);

  void set_hooks(Hooks hooks) { hooks_ = std::move(hooks); }

  /// The items to show, "System default" first; item k is device k - 1.
  Property<std::vector<OutputItem>> items;

  /// Lists the machine's outputs. Can be done again at any time; a device that is still there is
  /// known by its name and stays checked.
  void fill();

  /// Opens the device of an item and prepares it: controllers reset, XG System On, variation
  /// effect, and the three XG lists at their first entries, the module's defaults.
  /// @return false when no device resulted: the user has been told and the program is ending
  bool click(int index);
  /// As click, for a device by its number in the machine's list at this time, or kDefaultOutput; it
  /// need not be among the fifteen of the menu.
  bool choose_device(int device);

 private:
  bool choose(int index, int device);
  int device_of(int index) const;
  void check_item(int index);
  void set_up_module();

  OutputDevices& devices_;
  OutputPort& port_;
  Song& song_;
  Dialogs& dialogs_;
  Hooks hooks_;
};

}  // namespace lunavox
