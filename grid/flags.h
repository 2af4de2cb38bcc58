#pragma once

#include "grid/property.h"

namespace lunavox {

/// What the whole editor is doing, shared by the components.
struct Flags {
  Property<bool> playing;      ///< the play loop or the realtime record loop runs
  Property<bool> recording;    ///< the record button is engaged, step or realtime
  Property<bool> modified;     ///< the song has changed since it was saved, opened or created
  bool song_building = false;  ///< a song is being set up; every line is filled afresh
  /// A song file is being read; grid and field events are not edits, and the stores may not fit
  /// the grids yet.
  Property<bool> song_loading;
  bool no_input = false;  ///< the machine has no MIDI input device
};

}  // namespace lunavox
