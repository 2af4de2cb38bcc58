#include "files/note_deltas.h"

#include "files/event_text.h"

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// The bytes of a line's first delta.
std::string first_delta(NoteDeltas& deltas, int row) {
  std::string bytes;
  deltas.begin_line();
  midwrite(deltas.next(row), bytes);
  return bytes;
}

TEST(NoteDeltas, TheFirstNoteOfALineCountsFromTheLineOfTheLastEvent) {
  NoteDeltas deltas;
  EXPECT_EQ(first_delta(deltas, 1), "\x01");
  EXPECT_EQ(first_delta(deltas, 2), "\x01");
  EXPECT_EQ(first_delta(deltas, 129), "\x7F");
}

TEST(NoteDeltas, FurtherNotesOfALineComeAtTheSameTime) {
  NoteDeltas deltas;
  deltas.begin_line();
  EXPECT_EQ(deltas.next(5), " 5");
  EXPECT_EQ(deltas.next(5), "00");
  EXPECT_EQ(deltas.next(5), "00");
}

TEST(NoteDeltas, AGapOf200LinesIsWrittenAsTwoBytes) {
  NoteDeltas deltas;
  first_delta(deltas, 10);
  EXPECT_EQ(first_delta(deltas, 210), "\x81\x49");
}

TEST(NoteDeltas, EachTrackCountsFromItsStart) {
  NoteDeltas deltas;
  first_delta(deltas, 10);
  deltas.begin_track();
  EXPECT_EQ(first_delta(deltas, 10), "\x0A");
}

}  // namespace
}  // namespace lunavox
