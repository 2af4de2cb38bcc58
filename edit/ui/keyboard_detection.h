#pragma once

#include "edit/keyboard_layout.h"

#include <string>

namespace lunavox {

/// The layout set to play by.
/// @param wished  "qwerty", "qwertz" or "azerty"; empty for the one of the system
LayoutSet detect_layout(const std::string& wished);

/// The layout set of an XKB layout name, such as "fr", "de,us" or "ch(fr)".
LayoutSet layout_set_of_xkb(const std::string& layout);

}  // namespace lunavox
