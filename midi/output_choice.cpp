#include "midi/output_choice.h"

#include "grid/runtime_error.h"
#include "midi/xg_effects.h"

#include <algorithm>

namespace lunavox {
namespace {

/// Place of a name in a list: the place where it used to be if it is still there, since two devices
/// may have one name; else the first; else the list's length.
std::size_t place_of(const std::string& name, const std::vector<std::string>& names,
                     std::size_t former) {
  if (former < names.size() && names[former] == name) return former;
  return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin());
}

}  // namespace

OutputChoice::OutputChoice(OutputDevices& devices, OutputPort& port, Song& song, Dialogs& dialogs)
    : devices_(devices), port_(port), song_(song), dialogs_(dialogs) {}

void OutputChoice::fill() {
  std::vector<std::string> captions = devices_.names();
  captions.insert(captions.begin(), "System default");
  if (captions.size() > kItems) captions.resize(kItems);

  std::vector<OutputItem> filled;
  for (const std::string& caption : captions) filled.push_back({caption, false});
  const auto& old = items.get();
  const auto checked =
      std::find_if(old.begin(), old.end(), [](const auto& i) { return i.checked; });
  if (checked != old.end()) {
    const auto place =
        place_of(checked->caption, captions, static_cast<std::size_t>(checked - old.begin()));
    if (place < filled.size()) filled[place].checked = true;
  }
  items = filled;
}

bool OutputChoice::click(int index) {
  if (index < 0 || index >= kItems) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  return choose(index, device_of(index));
}

bool OutputChoice::choose_device(int device) {
  return choose(device + 1, device);
}

bool OutputChoice::choose(int index, int device) {
  check_item(index);
  // What sounds on the device that is left would never be ended.
  port_.reset_device();
  if (!port_.open(device)) {
    // Which device, or which SoundFont, and what is wrong with it.
    const std::string reason = devices_.open_error();
    if (!reason.empty()) dialogs_.error(reason, "Error");
    dialogs_.error("No Midi output device found", "Error");
    if (hooks_.close_input) hooks_.close_input();
    if (hooks_.end_program) hooks_.end_program();
    return false;
  }
  port_.reset_new_device();
  set_up_module();
  return true;
}

int OutputChoice::device_of(int index) const {
  if (index == 0) return kDefaultOutput;
  const auto former = static_cast<std::size_t>(index) - 1;
  const auto& shown = items.get();
  if (former + 1 >= shown.size()) return index - 1;
  // Devices come and go, and the numbers of those behind them change.
  return static_cast<int>(place_of(shown[former + 1].caption, devices_.names(), former));
}

void OutputChoice::check_item(int index) {
  items.update([index](std::vector<OutputItem>& list) {
    for (OutputItem& item : list) item.checked = &item - list.data() == index;
  });
}

void OutputChoice::set_up_module() {
  for (const SysExBytes& message : xg_module_setup()) port_.sendsysex(message);
  // What the module has after XG System On. Nothing is sent, and the song counts as unchanged.
  song_.reverb = 0;
  song_.chorus = 0;
  song_.variation = 0;
}

}  // namespace lunavox
