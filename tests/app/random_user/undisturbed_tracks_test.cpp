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

TEST_F(UndisturbedTracks, ANewTrackLeavesTheOthers) {
  EXPECT_EQ(check_around(Deed::kAddTrack, [this] { editor_.tracks.addinstrutrack(); }), "");
}

TEST_F(UndisturbedTracks, ANewSongMayChangeAll) {
  EXPECT_EQ(check_around(Deed::kNew, [this] { editor_.song.channel.at(1) = 4; }), "");
}

}  // namespace
}  // namespace lunavox
