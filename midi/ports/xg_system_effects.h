#pragma once

#include "midi/devices.h"

#include <optional>

namespace lunavox {

/// How the built-in synthesiser stands in for an XG reverb type.
struct ReverbShape {
  double room_size;  ///< 0 .. 1
  double damping;    ///< 0 .. 1
  double width;      ///< 0 .. 1
  double level;      ///< 0 .. 1
};

/// How it stands in for an XG chorus type.
struct ChorusShape {
  int voices;
  double level;     ///< 0 .. 10
  double speed_hz;  ///< 0.1 .. 5
  double depth_ms;
};

/// What a System Exclusive message F0 ... F7 does to the system effects: XG System On chooses the
/// first types, a parameter change its own. None for other messages and for types not known.
std::optional<ReverbShape> reverb_chosen_by(const SysExBytes& data);
std::optional<ChorusShape> chorus_chosen_by(const SysExBytes& data);

}  // namespace lunavox
