#include "cell_texts.h"

#include "tests/support/editor_bench.h"

#include <functional>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::Deed;

constexpr int kEffectColumn = 9;  // of the first track

/// An editor with two tracks, whose cells were looked at once.
class CellTexts : public ::testing::Test {
 protected:
  CellTexts() {
    bench_.start();
    editor_.tracks.addinstrutrack();
    tracks_.set_cursor(1, 1);
    EXPECT_EQ(check_around(Deed::kWait, [] {}), "");
  }

  std::string check_around(Deed deed, const std::function<void()>& act) {
    cells_.remember(editor_, {deed, 0, 0});
    act();
    return cells_.check(editor_);
  }
  /// Writes into a cell past the store.
  std::function<void()> write(int row, int column, const std::string& text) {
    return [this, row, column, text] { tracks_.set_text(row, column, text); };
  }
  /// Leaves the cursor in an effect cell whose typing has ended: on the curve's last line.
  void end_typing() {
    tracks_.set_cursor(4, kEffectColumn);
    editor_.typing_mode.key_press("\r");
    ASSERT_EQ(tracks_.row(), 64);
  }
  void record(int row, int column, const std::string& entry) {
    editor_.song.write_entry(track_of_column(column), sub_column_of(column), row, entry);
    editor_.song.show_entry(track_of_column(column), sub_column_of(column), row);
  }

  test::EditorBench bench_;
  Editor& editor_ = bench_.editor;
  CellGrid& tracks_ = bench_.editor.song.tracks;
  test::CellTexts cells_;
};

TEST_F(CellTexts, ANoteCellReadsAsItsEntry) {
  EXPECT_EQ(check_around(Deed::kReceive, [this] { record(2, 3, "643C99"); }), "");
  EXPECT_EQ(check_around(Deed::kReceive, write(2, 3, "C# 5")),
            "cell in row 2, column 3 reads \"C# 5\"");
}

TEST_F(CellTexts, ASoftNoteMayBeMisread) {
  EXPECT_EQ(check_around(Deed::kReceive, [this] { record(2, 3, "A3C99"); }), "");
  EXPECT_EQ(check_around(Deed::kReceive, write(2, 3, "D  5")),
            "cell in row 2, column 3 reads \"D  5\"");
}

TEST_F(CellTexts, AMisreadNoteThatIsMadeLouderKeepsItsText) {
  record(2, 3, "A3C99");
  const std::string misread = tracks_.text(2, 3);
  tracks_.set_cursor(2, 3);
  const auto make_loud = [this] { editor_.song.write_entry(1, 3, 2, "643C99"); };
  EXPECT_EQ(check_around(Deed::kVelocityValue, make_loud), "");
  EXPECT_EQ(check_around(Deed::kWait, [] {}), "");
  EXPECT_EQ(check_around(Deed::kVelocityValue, write(2, 3, "D  5")),
            "cell in row 2, column 3 reads \"D  5\"");
}

TEST_F(CellTexts, OnlyASelectedNoteIsMadeLouder) {
  record(2, 3, "A3C99");
  tracks_.set_cursor(1, 3);
  const std::string wrong =
      check_around(Deed::kVelocityPercent, [this] { editor_.song.write_entry(1, 3, 2, "643C99"); });
  EXPECT_EQ(wrong, "cell in row 2, column 3 reads \"" + tracks_.text(2, 3) + "\"");
}

TEST_F(CellTexts, AnEffectCellReadsAsItsValue) {
  EXPECT_EQ(check_around(Deed::kOpen, write(4, kEffectColumn, " 127")), "");
  EXPECT_EQ(check_around(Deed::kOpen, write(4, kEffectColumn, "127 ")),
            "cell in row 4, column 9 reads \"127 \"");
}

TEST_F(CellTexts, AKeyMayEmptyOrEndTheEffectCellAtTheCursorWhoseTypingHasEnded) {
  end_typing();
  EXPECT_EQ(check_around(Deed::kPressKey, write(64, kEffectColumn, "stop")), "");
  EXPECT_EQ(check_around(Deed::kPressKey, write(64, kEffectColumn, "")), "");
  EXPECT_EQ(check_around(Deed::kPressKey, write(64, kEffectColumn, "C  5")),
            "cell in row 64, column 9 reads \"C  5\"");
}

TEST_F(CellTexts, AKeyMayWriteIntoNoOtherEffectCell) {
  end_typing();
  EXPECT_EQ(check_around(Deed::kPressKey, write(63, kEffectColumn, "stop")),
            "cell in row 63, column 9 reads \"stop\"");
}

TEST_F(CellTexts, AKeyMayWriteIntoNoEffectCellWhileItIsTypedInto) {
  tracks_.set_cursor(4, kEffectColumn);
  ASSERT_TRUE(editor_.typing_mode.typing());
  EXPECT_EQ(check_around(Deed::kPressKey, write(4, kEffectColumn, "12")), "");
  const auto leave = [this] {
    editor_.typing_mode.key_press("\r");
    tracks_.set_text(4, kEffectColumn, "stop");
  };
  EXPECT_EQ(check_around(Deed::kPressKey, leave), "cell in row 4, column 9 reads \"stop\"");
}

TEST_F(CellTexts, AnotherDeedMayWriteIntoNoEffectCell) {
  end_typing();
  EXPECT_EQ(check_around(Deed::kCut, write(64, kEffectColumn, "stop")),
            "cell in row 64, column 9 reads \"stop\"");
}

TEST_F(CellTexts, AnotherTextIsAllowedAnew) {
  end_typing();
  EXPECT_EQ(check_around(Deed::kPressKey, write(64, kEffectColumn, "stop")), "");
  EXPECT_EQ(check_around(Deed::kWait, [] {}), "");
  EXPECT_EQ(check_around(Deed::kWait, write(64, kEffectColumn, "")),
            "cell in row 64, column 9 reads \"\"");
}

TEST_F(CellTexts, NoCellOfAnotherSongReadsOtherwise) {
  end_typing();
  EXPECT_EQ(check_around(Deed::kPressKey, write(64, kEffectColumn, "stop")), "");
  cells_.forget();
  EXPECT_EQ(check_around(Deed::kWait, [] {}), "cell in row 64, column 9 reads \"stop\"");
}

/// Three columns and two rows are in the clipboard, and are pasted at row 3, column 8.
class PastedCellTexts : public CellTexts {
 protected:
  PastedCellTexts() {
    tracks_.set_selection_end(2, 3);
    EXPECT_EQ(check_around(Deed::kCopy, [this] { editor_.clipboard.copyproc(); }), "");
    tracks_.set_cursor(3, 8);
  }
};

TEST_F(PastedCellTexts, ABlockMayCoverTheEffectCellsThatItIsPastedOver) {
  EXPECT_EQ(check_around(Deed::kPaste, [this] { editor_.clipboard.pasteproc(); }), "");
  EXPECT_EQ(tracks_.text(4, kEffectColumn), "");
}

TEST_F(PastedCellTexts, ABlockMayCoverNoCellAboveOrBelowIt) {
  EXPECT_EQ(check_around(Deed::kPaste, write(2, kEffectColumn, "")),
            "cell in row 2, column 9 reads \"\"");
  EXPECT_EQ(check_around(Deed::kPaste, write(5, kEffectColumn, "")),
            "cell in row 5, column 9 reads \"\"");
}

TEST_F(PastedCellTexts, ABlockMayCoverNoCellBesideIt) {
  EXPECT_EQ(check_around(Deed::kPaste, write(3, 7, "x")), "cell in row 3, column 7 reads \"x\"");
  EXPECT_EQ(check_around(Deed::kPaste, write(3, 11, "x")), "cell in row 3, column 11 reads \"x\"");
}

}  // namespace
}  // namespace lunavox
