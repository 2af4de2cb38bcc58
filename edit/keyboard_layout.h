#pragma once

#include <cstdint>

namespace lunavox {

/// The three sets of letter keys that the piano keys are laid out for.
enum class LayoutSet { kQwerty, kQwertz, kAzerty };

/// Virtual-key codes of the piano keys whose place differs between the layout sets, in the order of
/// the keys that they are on the QWERTY set: Q, W, Y, A, Z, M and comma.
struct LayoutKeys {
  int k1 = 0;
  int k2 = 0;
  int k3 = 0;
  int k4 = 0;  ///< plays nothing
  int k5 = 0;
  int k6 = 0;
  int k7 = 0;

  bool operator==(const LayoutKeys&) const = default;
};

/// Tells the layout set by the system's keyboard layout handle: by the first decimal digit of the
/// handle's remainder after division by 10000, 6 for AZERTY, 8 for QWERTZ, any other for QWERTY.
/// Crude, but it is the rule.
LayoutSet layout_set_of(std::int32_t handle);

/// The keys of a layout set.
LayoutKeys layoutkeys_of(LayoutSet layout);

/// A handle that stands for a layout set where the system has none: the French, the German and the
/// American one.
std::int32_t layout_handle(LayoutSet layout);

}  // namespace lunavox
