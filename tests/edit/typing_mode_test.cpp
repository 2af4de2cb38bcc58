#include "edit/typing_mode.h"

#include "edit/curves.h"
#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TypingModeTest : public SongFixture {
 protected:
  TypingModeTest() {
    curves.showeffect();
    song.tracks.set_cursor(1, 1);
    typing = std::make_unique<TypingMode>(song, flags, dialogs, curves);
    curves.set_hooks({{}, {}, [this] { typing->finish(); }});
  }

  void type(const std::string& characters) {
    for (const char c : characters) typing->key_press(std::string(1, c));
  }
  /// Empties the cell under the cursor and types into it.
  void overtype(const std::string& characters) {
    while (!song.tracks.text(song.tracks.row(), song.tracks.column()).empty()) type("\b");
    type(characters);
  }
  CellPosition cursor() const { return song.tracks.cursor(); }

  Curves curves{song, flags, dialogs, progress};
  std::unique_ptr<TypingMode> typing;
};

TEST_F(TypingModeTest, TheCursorEnteringAnEffectCellStartsTyping) {
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
  song.tracks.set_cursor(3, 9);
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(typing->savedcell(), "127");
}

TEST_F(TypingModeTest, NoteColumnsHeadersAndLineNumbersAreNotTypedInto) {
  for (const CellPosition place : {CellPosition{3, 8}, {3, 10}, {0, 9}, {3, 0}}) {
    song.tracks.set_cursor(place.row, place.column);
    EXPECT_EQ(typing->editmode(), EditMode::kNotes) << place.row << ", " << place.column;
    type("5");
    EXPECT_FALSE(typing->typing());
  }
  EXPECT_EQ(song.tracks.text(3, 8), "");
}

TEST_F(TypingModeTest, CharactersAreAppendedAndBackspaceTakesTheLastOff) {
  song.tracks.set_cursor(3, 9);
  type("x");
  EXPECT_EQ(typing->editmode(), EditMode::kTyped);
  EXPECT_EQ(song.tracks.text(3, 9), "127x");
  type("\b\b");
  EXPECT_EQ(song.tracks.text(3, 9), "12");
  type("\b\b\b\b");
  EXPECT_EQ(song.tracks.text(3, 9), "");
}

TEST_F(TypingModeTest, BackspaceTakesOffAWholeCharacter) {
  song.tracks.set_cursor(3, 9);
  typing->key_press("é");
  EXPECT_EQ(song.tracks.text(3, 9), "127é");
  type("\b");
  EXPECT_EQ(song.tracks.text(3, 9), "127");
}

TEST_F(TypingModeTest, ControlCharactersThatNobodySeesArePassedOver) {
  song.tracks.set_cursor(3, 9);
  type("\x1b\x03\x7f\t");
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(song.tracks.text(3, 9), "127");
}

TEST_F(TypingModeTest, EnterTakesTheValueAndRecomputesTheCurve) {
  song.tracks.set_cursor(5, 9);
  overtype("7\r");
  EXPECT_EQ(song.values.at(1, kVolume, 5), 7);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 1);
  EXPECT_EQ(song.tracks.cell(5, 9), (Cell{"7", {255, 0, 0}, {240, 240, 240}}));
  EXPECT_THAT(texts(9, 1, 7), ElementsAre("127", "97", "67", "37", "7", "7", "7"));
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
  EXPECT_EQ(cursor(), (CellPosition{16, 9}));
  EXPECT_TRUE(flags.modified);
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(TypingModeTest, EnterAloneMakesTheLinesPresentValueAKey) {
  song.tracks.set_cursor(5, 9);
  type("\r");
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 1);
  EXPECT_EQ(song.tracks.cell(5, 9).text_colour, kKeyValue);
}

TEST_F(TypingModeTest, AfterEnterKeysAreNotesUntilTheCursorEntersAnEffectCellAgain) {
  song.tracks.set_cursor(5, 9);
  type("\r5");
  EXPECT_EQ(song.tracks.text(16, 9), "127");
  song.tracks.set_cursor(15, 9);
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
}

TEST_F(TypingModeTest, LeavingTheCellTakesTheValueAndTheCursorGoesWhereItWasGoing) {
  song.tracks.set_cursor(5, 9);
  overtype("7");
  song.tracks.set_cursor(6, 9);
  EXPECT_EQ(song.values.at(1, kVolume, 5), 7);
  EXPECT_EQ(cursor(), (CellPosition{6, 9}));
  EXPECT_EQ(song.tracks.selection_end(), (CellPosition{6, 9}));
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(typing->savedcell(), "7");
}

TEST_F(TypingModeTest, LeavingForTheLineWhereTheCurvesWalkEndsEntersThatCell) {
  song.tracks.set_cursor(5, 9);
  overtype("7");
  song.tracks.set_cursor(16, 9);
  EXPECT_EQ(cursor(), (CellPosition{16, 9}));
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(typing->savedcell(), "7");
}

TEST_F(TypingModeTest, LeavingAnUntouchedCellMakesNoKeyButCountsAsAChange) {
  song.tracks.set_cursor(5, 9);
  EXPECT_FALSE(flags.modified);
  song.tracks.set_cursor(5, 10);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 0);
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
  EXPECT_TRUE(flags.modified);
}

TEST_F(TypingModeTest, AnEmptyTextClearsTheKey) {
  set_key(1, kVolume, 5, 7);
  song.tracks.set_cursor(1, 1);
  curves.showeffect();
  song.tracks.set_cursor(5, 9);
  overtype("\r");
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 0);
  EXPECT_EQ(song.tracks.cell(5, 9), (Cell{"127", {0, 0, 0}, {240, 240, 240}}));
  EXPECT_THAT(values(1, kVolume, 1, 16), Each(127));
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(TypingModeTest, TheFirstLinesKeyCannotBeCleared) {
  song.tracks.set_cursor(2, 9);
  song.tracks.set_cursor(1, 9);
  overtype("\r");
  EXPECT_THAT(
      dialogs.messages,
      ElementsAre(error_box("you can't delete key attribute for the first line !", "error")));
  EXPECT_EQ(song.tracks.text(1, 9), "127");
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 1), 1);
  EXPECT_EQ(song.tracks.cell(1, 9).text_colour, kKeyValue);
  EXPECT_EQ(song.effects.text(kVolume, 2), "127");
}

TEST_F(TypingModeTest, AValueOnTheFirstLineBecomesTheStartValueAsWell) {
  song.tracks.set_cursor(1, 18);
  curves.effects_click(6, kPan);
  song.tracks.set_cursor(1, 18);
  overtype("0\r");
  EXPECT_EQ(song.effects.text(kPan, 5), "0");
  EXPECT_EQ(song.effects.text(kVolume, 5), "127");
  EXPECT_THAT(values(2, kPan, 1, 16), Each(0));
}

TEST_F(TypingModeTest, AValueOnAnotherLineLeavesTheStartValueAlone) {
  song.tracks.set_cursor(2, 9);
  overtype("3\r");
  EXPECT_EQ(song.effects.text(kVolume, 2), "127");
}

TEST_F(TypingModeTest, AValueAbove127IsRefusedAndTheCellKeepsItsPreviousText) {
  song.tracks.set_cursor(5, 9);
  overtype("200\r");
  EXPECT_THAT(dialogs.messages, ElementsAre(error_box("Invalid value (0-127)", "error")));
  EXPECT_EQ(song.tracks.text(5, 9), "127");
  EXPECT_EQ(song.values.at(1, kVolume, 5), 127);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 0);
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
}

TEST_F(TypingModeTest, ARefusedValueInAKeyCellLeavesTheKey) {
  set_key(1, kVolume, 5, 7);
  curves.showeffect();
  song.tracks.set_cursor(5, 9);
  overtype("-1\r");
  EXPECT_THAT(dialogs.messages, ElementsAre(error_box("Invalid value (0-127)", "error")));
  EXPECT_EQ(song.tracks.cell(5, 9), (Cell{"7", {255, 0, 0}, {240, 240, 240}}));
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 1);
}

TEST_F(TypingModeTest, TheLeadingNumberCountsRoundedHalvesToEven) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"12abc", 12}, {"126.5", 126}, {"0.5", 0}, {"1.5", 2}, {"-0.4", 0}, {"loud", 0}, {"127", 127},
  };
  for (const auto& [text, value] : cases) {
    song.tracks.set_cursor(5, 1);
    song.tracks.set_cursor(5, 9);
    overtype(text + "\r");
    EXPECT_EQ(song.values.at(1, kVolume, 5), value) << text;
    EXPECT_EQ(song.tracks.text(5, 9), std::to_string(value)) << text;
  }
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(TypingModeTest, NumbersThatRoundOutOfTheRangeAreRefused) {
  for (const std::string text : {"127.5", "-0.6", "1e999", "99999999999"}) {
    song.tracks.set_cursor(5, 1);
    song.tracks.set_cursor(5, 9);
    overtype(text + "\r");
  }
  EXPECT_EQ(dialogs.messages.size(), 4U);
  EXPECT_EQ(song.values.at(1, kVolume, 5), 127);
}

TEST_F(TypingModeTest, TheValueGoesToTheEffectThatTheTrackShows) {
  curves.effects_click(6, kPan);
  song.tracks.set_cursor(5, 18);
  overtype("10");
  // Another curve is chosen while the text stands in the cell: it still belongs to the pan.
  curves.effects_click(6, kReverb);
  EXPECT_EQ(song.values.at(2, kPan, 5), 10);
  EXPECT_EQ(song.key_attributes.at(2, kPan, 5), 1);
  EXPECT_EQ(song.key_attributes.at(2, kReverb, 5), 0);
  EXPECT_EQ(song.tracks.text(5, 18), "40");
}

TEST_F(TypingModeTest, TheValueGoesToTheTrackUnderTheCursorWhateverTheCurrentOneWas) {
  song.tracks.set_cursor(5, 18);
  song.current_track = 1;
  overtype("7\r");
  EXPECT_EQ(song.values.at(2, kVolume, 5), 7);
  EXPECT_EQ(song.key_attributes.at(2, kVolume, 5), 1);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 0);
}

/// Dialogs that look at a cell while their box stands.
class WatchfulDialogs : public ScriptedDialogs {
 public:
  explicit WatchfulDialogs(const Song& song) : song_(song) {}
  Answer message(const Message& message) override {
    seen = song_.tracks.text(song_.tracks.row(), song_.tracks.column());
    return ScriptedDialogs::message(message);
  }
  std::string seen;

 private:
  const Song& song_;
};

TEST_F(TypingModeTest, TheCellHasItsPreviousTextBackWhileTheRefusalStands) {
  WatchfulDialogs watchful(song);
  typing = std::make_unique<TypingMode>(song, flags, watchful, curves);
  song.tracks.set_cursor(5, 9);
  overtype("200\r");
  EXPECT_EQ(watchful.seen, "127");
  EXPECT_THAT(watchful.messages, ElementsAre(error_box("Invalid value (0-127)", "error")));
}

TEST_F(TypingModeTest, ASettingClickedOverAnUntouchedCellCommitsNothing) {
  song.tracks.set_cursor(5, 9);
  curves.effects_click(3, kInstrument);
  EXPECT_EQ(cursor(), (CellPosition{5, 9}));
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_FALSE(flags.modified);
}

TEST_F(TypingModeTest, ProgramWalksThroughEffectCellsEndInTheLastOneEntered) {
  song.tracks.set_cursor(1, 9);
  curves.showeffect();
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(typing->savedcell(), "127");
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(TypingModeTest, NothingIsTypedOrTakenWhileASongIsBuiltOrLoaded) {
  flags.song_building = true;
  song.tracks.set_cursor(5, 9);
  song.tracks.set_cursor(6, 9);
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
  flags.song_building = false;
  song.tracks.set_cursor(5, 9);
  overtype("3");
  flags.modified = false;
  flags.song_loading = true;
  song.tracks.set_cursor(1, 1);
  flags.song_loading = false;
  EXPECT_EQ(typing->editmode(), EditMode::kNotes);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 5), 0);
  EXPECT_FALSE(flags.modified);
}

TEST_F(TypingModeTest, TypingIntoALineThatIsCutOffIsDropped) {
  song.tracks.set_cursor(16, 9);
  type("5");
  song.tracks.set_rows(9);
  EXPECT_EQ(cursor(), (CellPosition{8, 9}));
  EXPECT_EQ(typing->editmode(), EditMode::kEntered);
  EXPECT_EQ(song.key_attributes.at(1, kVolume, 8), 0);
}

TEST_F(TypingModeTest, WhoeverHoldsNotesIsToldThatTypingBegins) {
  int entered = 0;
  typing->on_enter([&] { ++entered; });
  song.tracks.set_cursor(5, 9);
  EXPECT_EQ(entered, 1);
  song.tracks.set_cursor(5, 1);
  EXPECT_EQ(entered, 1);
}

}  // namespace
}  // namespace lunavox::test
