#include "midi/ports/quiet_libraries.h"

#include <cstdlib>
#include <mutex>

#include <alsa/asoundlib.h>
#include <fluidsynth.h>
#include <jack/jack.h>

namespace lunavox {
namespace {

void ignore_jack(const char*) {}
void ignore_alsa(const char*, int, const char*, int, const char*, ...) {}
void ignore_fluidsynth(int, const char*, void*) {}

void ignore_glib(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

}  // namespace

void quieten_libraries() {
  static std::once_flag done;
  std::call_once(done, [] {
    setenv("JACK_NO_START_SERVER", "1", 1);
    jack_set_error_function(ignore_jack);
    jack_set_info_function(ignore_jack);
    snd_lib_error_set_handler(ignore_alsa);
    for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level) {
      fluid_set_log_function(level, ignore_fluidsynth, nullptr);
    }
  });
}

QuietGLib::QuietGLib() : before_(g_log_set_default_handler(ignore_glib, nullptr)) {}

QuietGLib::~QuietGLib() {
  g_log_set_default_handler(before_, nullptr);
}

}  // namespace lunavox
