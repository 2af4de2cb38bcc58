#pragma once

#include "grid/button_pictures.h"
#include "grid/flags.h"
#include "grid/song.h"
#include "midi/clock.h"
#include "midi/input_loop.h"
#include "midi/loop.h"
#include "midi/output_port.h"
#include "midi/record_options.h"

namespace lunavox {

/// What playing and recording both work on, handed to the loops and to the buttons that start and
/// stop them.
struct Stage {
  Song& song;
  Flags& flags;
  Clock& clock;
  OutputPort& port;
  CurrentLoop& current;
  InputLoop& listen;
  ButtonPictures& pictures;
  const RecordOptions& options;
};

}  // namespace lunavox
