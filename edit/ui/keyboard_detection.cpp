#include "edit/ui/keyboard_detection.h"

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

#ifdef LUNAVOX_XCB
#include <xcb/xcb.h>
#endif

namespace lunavox {
namespace {

/// The X server's keyboard rules: five texts, each ended by a zero byte, of which the third names
/// the layouts. Empty where there is no X server.
std::string xkb_layout() {
#ifdef LUNAVOX_XCB
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr) return {};
  xcb_connection_t* connection = x11->connection();
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  constexpr char kName[] = "_XKB_RULES_NAMES";
  const auto free_it = [](void* reply) { std::free(reply); };
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(free_it)> atom(
      xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, sizeof kName - 1, kName),
                            nullptr),
      free_it);
  if (!atom) return {};
  const std::unique_ptr<xcb_get_property_reply_t, decltype(free_it)> rules(
      xcb_get_property_reply(
          connection,
          xcb_get_property(connection, 0, root, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, 1024),
          nullptr),
      free_it);
  if (!rules) return {};
  const std::string all(static_cast<const char*>(xcb_get_property_value(rules.get())),
                        static_cast<std::size_t>(xcb_get_property_value_length(rules.get())));
  std::size_t at = 0;
  for (int skipped = 0; skipped < 2 && at != std::string::npos; ++skipped) {
    at = all.find('\0', at);
    if (at != std::string::npos) ++at;
  }
  return at == std::string::npos ? std::string() : std::string(all.c_str() + at);
#else
  return {};
#endif
}

template <std::size_t Size>
bool is_among(const std::string& name, const std::array<const char*, Size>& names) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

}  // namespace

LayoutSet layout_set_of_xkb(const std::string& layout) {
  constexpr std::array kAzerty = {"fr", "be"};
  constexpr std::array kQwertz = {"de", "at", "ch", "cz", "sk", "hu", "si", "hr", "ba", "li", "lu"};
  const std::string first = layout.substr(0, layout.find_first_of(",("));
  if (is_among(first, kAzerty)) return LayoutSet::kAzerty;
  if (is_among(first, kQwertz)) return LayoutSet::kQwertz;
  return LayoutSet::kQwerty;
}

LayoutSet detect_layout(const std::string& wished) {
  if (wished == "azerty") return LayoutSet::kAzerty;
  if (wished == "qwertz") return LayoutSet::kQwertz;
  if (wished == "qwerty") return LayoutSet::kQwerty;
  std::string layout = xkb_layout();
  // Wayland compositors take their layout from here, and pass it on to programs.
  if (layout.empty()) layout = qEnvironmentVariable("XKB_DEFAULT_LAYOUT").toStdString();
  return layout_set_of_xkb(layout);
}

}  // namespace lunavox
