#pragma once

#include <glib.h>

namespace lunavox {

/// Keeps the sound and MIDI libraries from writing to standard error, which is the program's own,
/// and JACK's from starting a server. To be called before any of them is used; what they had to say
/// is told by status() and open_error().
void quieten_libraries();

/// As long as it lives, keeps GLib from printing too, which the loader of SoundFonts uses to
/// complain of broken ones. Only for so long, since a window's theme may have something to say
/// through GLib.
class QuietGLib {
 public:
  QuietGLib();
  ~QuietGLib();
  QuietGLib(const QuietGLib&) = delete;
  QuietGLib& operator=(const QuietGLib&) = delete;

 private:
  GLogFunc before_;
};

}  // namespace lunavox
