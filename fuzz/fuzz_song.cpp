#include "files/midi_export.h"
#include "files/song_writer.h"
#include "fuzz/check.h"
#include "fuzz/quiet_desk.h"
#include "grid/runtime_error.h"

#include <cstddef>
#include <cstdint>

using lunavox::FieldReader;
using lunavox::RuntimeError;
using lunavox::TextGuard;
using lunavox::fuzz::check;
using lunavox::fuzz::QuietDesk;

namespace {

/// The song after it was written and read again.
std::string read_again(const std::string& text) {
  QuietDesk desk;
  FieldReader fields(text);
  desk.file.read(fields);
  return lunavox::song_text(desk.song, TextGuard::kQuotes);
}

void export_midi(const lunavox::Song& song) {
  try {
    lunavox::midi_file_bytes(song);
  } catch (const RuntimeError&) {
  }
}

}  // namespace

/// Any file is opened or refused, or ends in an error that leaves the song as it was. What has been
/// opened is the same song after it was saved and opened again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  QuietDesk desk;
  const std::string before = lunavox::song_text(desk.song);
  FieldReader fields({reinterpret_cast<const char*>(data), size});
  try {
    if (!desk.file.read(fields)) {
      check(lunavox::song_text(desk.song) == before, "a refused file changes nothing");
      return 0;
    }
  } catch (const RuntimeError&) {
    check(lunavox::song_text(desk.song) == before, "an error puts the song back");
    check(!desk.flags.song_loading, "an error lowers the loading flag");
    return 0;
  }
  export_midi(desk.song);
  // Once through the guard, which has no way to write a quote: from there on nothing may change.
  const std::string saved = read_again(lunavox::song_text(desk.song, TextGuard::kQuotes));
  check(read_again(saved) == saved, "a saved song opens as the same song");
  return 0;
}
