#pragma once

#include "grid/flags.h"
#include "grid/song.h"
#include "midi/output_port.h"

#include <string>
#include <vector>

namespace lunavox {

/// The three lists of XG system effect types.
enum class XgList { kReverb, kChorus, kVariation };

/// The entries of a list, in order.
const std::vector<std::string>& xg_names(XgList list);

/// Address low byte and effect type (MSB, LSB) of an item; empty for an item that the list does not
/// have, such as -1 for no selection.
SysExBytes xg_type_code(XgList list, int item);

/// XG System On, F0 ... F7: the module is an XG module, at its defaults.
const SysExBytes& xg_system_on();

/// What a module is set up by, in order: XG System On, and the variation as a system effect that
/// feeds reverb and chorus at 64.
const std::vector<SysExBytes>& xg_module_setup();

/// The parameter change that selects an item's effect type, F0 ... F7. Without a valid item it is
/// sent bare, without address low byte and data.
SysExBytes xg_type_message(XgList list, int item);

/// The lists `reverb`, `chorus` and `variation`.
class XgEffects {
 public:
  XgEffects(Song& song, Flags& flags, OutputPort& port);

  // An entry was chosen, 0 for the first: it is sent at once.
  void reverb_click(int item);
  void chorus_click(int item);
  void variation_click(int item);

 private:
  void choose(XgList list, Property<int>& choice, int item);

  Song& song_;
  Flags& flags_;
  OutputPort& port_;
};

}  // namespace lunavox
