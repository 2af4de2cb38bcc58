#include "undisturbed_tracks.h"

#include "tests/support/editor_bench.h"

#include <functional>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Deed;

/// An editor with three tracks and the cursor in the second.
class UndisturbedTracks : public ::testing::Test {
 protected:
  UndisturbedTracks() {
    bench_.start();
    editor_.tracks.addinstrutrack();
    editor_.tracks.addinstrutrack();
    editor_.song.tracks.set_cursor(1, first_column_of(2));
  }

  std::string check_around(Deed deed, const std::function<void()>& act, int a = 0) {
    test::UndisturbedTracks undisturbed;
    undisturbed.remember(editor_, {deed, a, 0});
    act();
    return undisturbed.check(editor_);
  }

  test::EditorBench bench_;
  Editor& editor_ = bench_.editor;
};

TEST_F(UndisturbedTracks, AKeyMayChangeTheTrackOfTheCursorAlone) {
  const auto write_note = [this](int track) {
    return [this, track] { editor_.song.write_entry(track, 1, 1, "643C90"); };
  };
  EXPECT_EQ(check_around(Deed::kPressKey, write_note(2)), "");
  EXPECT_EQ(check_around(Deed::kPressKey, write_note(3)), "the notes of track 3 changed");
}

TEST_F(UndisturbedTracks, APastedBlockMayRunOverIntoTheNextTrack) {
  const auto write_note = [this](int track) {
    return [this, track] { editor_.song.write_entry(track, 1, 1, "643C90"); };
  };
  editor_.song.tracks.set_cursor(1, first_column_of(1));
  EXPECT_EQ(check_around(Deed::kPaste, write_note(2)), "");
  EXPECT_EQ(check_around(Deed::kPaste, write_note(3)), "the notes of track 3 changed");
}

TEST_F(UndisturbedTracks, AClickMayChangeTheTrackWhoseSettingsItHits) {
  const int active3 = effects_column(3, Setting::kActive);
  const auto click = [&] { editor_.curves.effects_click(active3, kPan); };
  EXPECT_EQ(check_around(Deed::kClickEffects, click, active3), "");
  editor_.song.tracks.set_cursor(1, first_column_of(2));
  EXPECT_EQ(check_around(Deed::kClickEffects, click, 1), "the settings of track 3 changed");
}

TEST_F(UndisturbedTracks, WhatOnlyWritesFilesMayChangeNothing) {
  EXPECT_EQ(check_around(Deed::kExport, [this] { editor_.song.values.at(1, kPan, 5) = 3; }),
            "the curves of track 1 changed");
  EXPECT_EQ(check_around(Deed::kSave, [this] { editor_.song.tracks.set_text(4, 2, "C  4"); }),
            "the cells of track 1 changed");
}

TEST_F(UndisturbedTracks, WhatTakesNotesMayChangeTheTrackOfTheCursorWhileItRecords) {
  const auto write_note = [this](int track) {
    return [this, track] { editor_.song.write_entry(track, 1, 1, "643C90"); };
  };
  EXPECT_EQ(check_around(Deed::kReceive, write_note(2)), "the notes of track 2 changed");
  editor_.flags.recording = true;
  EXPECT_EQ(check_around(Deed::kWait, [this] { editor_.song.write_entry(2, 2, 1, "stop"); }), "");
  EXPECT_EQ(check_around(Deed::kWait, write_note(3)), "the notes of track 3 changed");
  EXPECT_EQ(check_around(Deed::kPlay, [this] { editor_.song.values.at(2, kPan, 5) = 3; }),
            "the curves of track 2 changed");
}

TEST_F(UndisturbedTracks, WhatIsTypedMayChangeTheTrackOfTheCursor) {
  editor_.song.tracks.set_cursor(4, effect_column_of(2));
  EXPECT_EQ(check_around(Deed::kPlay, [this] { editor_.song.values.at(2, kPan, 5) = 3; }), "");
}

TEST_F(UndisturbedTracks, AClickOnAnotherTracksSettingsLeavesTheTrackOfTheCursor) {
  EXPECT_EQ(check_around(
                Deed::kClickEffects, [this] { editor_.song.values.at(2, kPan, 5) = 3; },
                effects_column(3, Setting::kActive)),
            "the curves of track 2 changed");
}

TEST_F(UndisturbedTracks, AFieldMayChangeTheLengthAndNoLineThatStays) {
  const auto enter_length = [this](const char* text) {
    return [this, text] { editor_.song_length.length_validate(text); };
  };
  EXPECT_EQ(check_around(Deed::kEnterField, enter_length("90")), "");
  EXPECT_EQ(check_around(Deed::kEnterField, enter_length("5")), "");
  const auto shorten_and_change = [&] {
    enter_length("4")();
    editor_.song.key_attributes.at(1, kPan, 4) = 1;
  };
  EXPECT_EQ(check_around(Deed::kEnterField, shorten_and_change), "the curves of track 1 changed");
}

TEST_F(UndisturbedTracks, NothingElseMayChangeTheLengthOrTheNumberOfTracks) {
  const auto shorten = [this] { editor_.song_length.length_validate("60"); };
  EXPECT_EQ(check_around(Deed::kCut, shorten), "the length changed");
  EXPECT_EQ(check_around(Deed::kPaste, [this] { editor_.tracks.addinstrutrack(); }),
            "the number of tracks changed");
}

TEST_F(UndisturbedTracks, ANewTrackLeavesTheOthers) {
  EXPECT_EQ(check_around(Deed::kAddTrack, [this] { editor_.tracks.addinstrutrack(); }), "");
}

TEST_F(UndisturbedTracks, ANewSongMayChangeAll) {
  EXPECT_EQ(check_around(Deed::kNew, [this] { editor_.song.channel.at(1) = 4; }), "");
}

}  // namespace
}  // namespace lunavox
