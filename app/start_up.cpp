#include "app/start_up.h"

namespace lunavox {

void build_first_song(Editor& editor) {
  editor.flags.song_building = true;
  editor.tracks.adddrumtrack();
  editor.song_length.lengthchange();
  editor.song_length.calcultime();
  editor.song.tracks.set_cursor(1, 1);
  editor.song.actualtrack();
}

}  // namespace lunavox
