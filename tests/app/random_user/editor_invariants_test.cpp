#include "editor_invariants.h"

#include "tests/support/editor_bench.h"

#include <functional>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// What is found in an editor with a drum track once something in it has gone wrong.
std::string with(const std::function<void(Editor&)>& fault) {
  test::EditorBench bench;
  bench.start();
  test::EditorInvariants invariants;
  invariants.remember(bench.editor, {});
  fault(bench.editor);
  return invariants.check(bench.editor);
}

TEST(EditorInvariants, AnEditorThatWasJustStartedIsInOrder) {
  EXPECT_EQ(with([](Editor&) {}), "");
}

TEST(EditorInvariants, TheGridsAndTheStoresHaveTheSongsShape) {
  EXPECT_EQ(with([](Editor& e) { e.song.track_count = 11; }), "there are 1 to 10 tracks");
  EXPECT_EQ(with([](Editor& e) { e.song.length.put("63"); }), "`tracks` has a row for each line");
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_columns(9); }), "columns of `tracks`");
  EXPECT_EQ(with([](Editor& e) { e.song.effects.set_columns(3); }), "columns of `effects`");
  EXPECT_EQ(with([](Editor& e) { e.song.channels.set_columns(3); }), "columns of `channels`");
  EXPECT_EQ(with([](Editor& e) { e.song.values.resize_keeping(64); }),
            "the stores reach one row past the last line");
}

TEST(EditorInvariants, WhatIsInTheSongIsWithinItsBounds) {
  EXPECT_EQ(with([](Editor& e) { e.song.bank.at(1) = 128; }), "out of bounds: bank of track 1");
}

TEST(EditorInvariants, TheEditorIsInAStateThatItKnows) {
  EXPECT_EQ(with([](Editor& e) { e.flags.playing = true; }), "what plays is no listening");
  EXPECT_EQ(with([](Editor& e) { e.flags.song_loading = true; }), "no song is being built");
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_redraw(false); }), "`tracks` is redrawn");
  EXPECT_EQ(with([](Editor& e) { e.song.current_track = 2; }), "the current track");
  EXPECT_EQ(with([](Editor& e) { e.song.current_sub_column = 2; }), "the current sub-column");
  EXPECT_EQ(with([](Editor& e) { e.bookmarks.selected = 0; }), "the selected bookmark is there");
}

TEST(EditorInvariants, LinesAreNumberedAndBeatsMarked) {
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_text(17, 0, "16"); }), "line numbers");
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_background(5, 0, kBlack); }),
            "beat mark of row 5");
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_background(4, 0, kBeat); }),
            "beat mark of row 4");
}

TEST(EditorInvariants, TheSettingsAreWhatTheGridSays) {
  EXPECT_EQ(with([](Editor& e) { e.song.shown_effect.at(1) = kInstrument; }), "a curve is shown");
  EXPECT_EQ(with([](Editor& e) { e.song.used_columns.at(1) = 9; }), "used columns");
  EXPECT_EQ(with([](Editor& e) { e.song.notes.at(1, 1, 1) = "stop"; }),
            "a column with an entry counts as used");
  EXPECT_EQ(with([](Editor& e) { e.song.active.at(1)[kPan] = true; }), "the Active column");
  EXPECT_EQ(with([](Editor& e) { e.song.shown_effect.at(1) = kPan; }), "the Show column");
  EXPECT_EQ(with([](Editor& e) { e.song.key_attributes.at(1, kPan, 1) = 0; }),
            "the first line is always a key");
}

TEST(EditorInvariants, TheCellsReadAsTheStores) {
  EXPECT_EQ(with([](Editor& e) { e.song.tracks.set_text(2, 1, "stop"); }),
            "cell in row 2, column 1 reads \"stop\"");
}

}  // namespace
}  // namespace lunavox
