#include "song_bounds.h"

#include "tests/support/editor_bench.h"

#include <functional>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

/// A song of two tracks.
class SongBounds : public ::testing::Test {
 protected:
  SongBounds() {
    bench_.start();
    bench_.editor.tracks.addinstrutrack();
  }

  std::string with(const std::function<void(Song&)>& fault) const {
    Song song = bench_.editor.song;
    fault(song);
    return test::out_of_bounds(song);
  }
  std::string with_entry(const std::string& entry) const {
    return with([&](Song& song) { song.write_entry(2, 8, 64, entry); });
  }

  test::EditorBench bench_;
};

TEST_F(SongBounds, ASongThatWasJustBegunIsWithinThem) {
  EXPECT_EQ(test::out_of_bounds(bench_.editor.song), "");
}

TEST_F(SongBounds, AnEntryIsANoteOfItsTracksChannelAStopOrNothing) {
  for (const char* good : {"", "stop", "7F7F90", "100090", "F7F90", "03C90", "7FEC90"}) {
    EXPECT_EQ(with_entry(good), "") << good;
  }
  for (const char* bad : {"643C91", "643C80", "803C90", "0F3C90", "648090", "64EB90", "64F090",
                          "3C90", "1643C90", "643c90", "halt", " "}) {
    EXPECT_EQ(with_entry(bad), "note entries of track 2") << bad;
  }
}

TEST_F(SongBounds, TheEffectColumnsEntriesAreLookedAtToo) {
  EXPECT_EQ(with([](Song& song) { song.notes.at(1, 0, 1) = "643C90"; }), "note entries of track 1");
}

TEST_F(SongBounds, ATracksChannelIsItsOwn) {
  EXPECT_EQ(with([](Song& song) { song.channel.at(2) = 1; }), "channel of track 2");
}

TEST_F(SongBounds, ABankIsASevenBitNumber) {
  EXPECT_EQ(with([](Song& song) { song.bank.at(2) = 127; }), "");
  EXPECT_EQ(with([](Song& song) { song.bank.at(2) = 128; }), "bank of track 2");
  EXPECT_EQ(with([](Song& song) { song.bank.at(1) = -1; }), "bank of track 1");
}

TEST_F(SongBounds, AValueIsASevenBitNumberOnEachLine) {
  EXPECT_EQ(with([](Song& song) { song.values.at(2, kPitch, 64) = 128; }), "values of track 2");
  EXPECT_EQ(with([](Song& song) { song.values.at(1, kInstrument, 1) = -1; }), "values of track 1");
}

TEST_F(SongBounds, AKeyAttributeIsThereOrNotOnEachLine) {
  EXPECT_EQ(with([](Song& song) { song.key_attributes.at(2, kPitch, 64) = 2; }),
            "key attributes of track 2");
}

TEST_F(SongBounds, AFieldHoldsAWholeNumberInItsRange) {
  EXPECT_EQ(with([](Song& song) { song.bpm.put("301"); }), "a field reads \"301\"");
  EXPECT_EQ(with([](Song& song) { song.length.put("3001"); }), "a field reads \"3001\"");
  EXPECT_EQ(with([](Song& song) { song.number.put("0"); }), "a field reads \"0\"");
  EXPECT_EQ(with([](Song& song) { song.step.put("-1"); }), "a field reads \"-1\"");
  EXPECT_EQ(with([](Song& song) { song.strength.put("12.5"); }), "a field reads \"12.5\"");
}

TEST_F(SongBounds, AnXgListHasTheItemOrNoneIsSelected) {
  EXPECT_EQ(with([](Song& song) { song.reverb = -1; }), "");
  EXPECT_EQ(with([](Song& song) { song.reverb = -2; }), "item -2 of an XG list");
  EXPECT_EQ(with([](Song& song) { song.chorus = 99; }), "item 99 of an XG list");
  EXPECT_EQ(with([](Song& song) { song.variation = 99; }), "item 99 of an XG list");
}

TEST_F(SongBounds, ABookmarkMarksALineThatASongCanHave) {
  const auto with_bookmark = [this](int row) {
    return with([row](Song& song) { song.bookmarks = std::vector<Bookmark>{{"here", row}}; });
  };
  EXPECT_EQ(with_bookmark(3000), "");
  EXPECT_EQ(with_bookmark(3001), "a bookmark's row");
  EXPECT_EQ(with_bookmark(0), "a bookmark's row");
}

TEST_F(SongBounds, TheCursorTheSelectionAndTheViewAreOnLinesAndTracks) {
  EXPECT_EQ(with([](Song& song) { song.tracks.set_cursor(0, 1); }), "the cursor's place");
  EXPECT_EQ(with([](Song& song) { song.tracks.set_selection_end(1, 0); }), "the selection's end");
}

}  // namespace
}  // namespace lunavox
