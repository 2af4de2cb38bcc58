#pragma once

#include "grid/colour.h"

#include <string>
#include <string_view>

// A note is kept and passed as the hexadecimal text of its packed note-on message, most significant
// byte first: velocity (one or two digits), note (two digits), "9", channel digit. 643C90 is note
// 60 at velocity 100 on channel index 0.
namespace lunavox {

/// Stands in the note store and in the cell for a note-off.
inline constexpr std::string_view kStop = "stop";

/// The text of a note-on.
/// @param velocity 1..127, written without a leading zero; note 0..127; channel index 0..15.
std::string note_text(int velocity, int note, int channel);

/// All characters before the last four, read as hexadecimal: the velocity. 0 for shorter texts.
int velocity_of(std::string_view note_text);

/// The first two of the last four characters, read as hexadecimal: the note number.
int note_of(std::string_view note_text);

/// True for an entry that holds a note: neither empty nor "stop".
bool is_note(std::string_view entry);

/// "C  ", "C#" ... "B  " for note index 0..11: natural notes are padded to three characters.
std::string_view note_name(int note_index);

/// How a note entry reads on the screen.
struct ShownNote {
  int octave = 0;
  int note_index = 0;  ///< 0..11 from C
  /// Name and octave: "C  4", "C#4".
  std::string text() const;
};

/// Reads the note of an entry for showing. Characters 3 and 4 of the entry are taken as its note
/// number, which is right for velocities of 16 and more and taken as it comes for softer notes.
ShownNote shown_note(std::string_view entry);

/// The colour of a note cell's text: blue for soft notes, green in the middle, red for loud ones.
/// With d = 2 * velocity: red d, green 256 - 2 * |127 - d|, blue 256 - d, each at most 255. A
/// negative component (velocities above 127 come from damaged files) counts as 0.
Colour velocity_colour(int velocity);

/// The channel index as one upper-case hexadecimal digit.
char channel_digit(int channel);

}  // namespace lunavox
