#include "files/ui/instrument_dialog.h"

#include "tests/support/voice_bench.h"
#include "tests/support/widgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::control;
using test::press_key;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class InstrumentDialogTest : public test::VoiceBench {
 protected:
  InstrumentDialogTest() {
    song().values.at(2, kInstrument, 1) = 4;
    song().bank.at(2) = 32;
    show();
  }

  void show() {
    dialog.open();
    test::wait_until_active(dialog);
  }

  QString cell_text(int program, int column) {
    return instrulist.model()->index(program, column).data().toString();
  }
  QString selected() { return instrulist.currentIndex().data().toString(); }
  QPoint place_of(int program, int column) {
    const QModelIndex index = instrulist.model()->index(program, column);
    instrulist.scrollTo(index);
    return instrulist.visualRect(index).center();
  }
  void press(int program, int column) {
    const QPoint place = place_of(program, column);
    QTest::mousePress(instrulist.viewport(), Qt::LeftButton, {}, place);
  }
  void release() { QTest::mouseRelease(instrulist.viewport(), Qt::LeftButton); }
  void click(int program, int column) {
    press(program, column);
    release();
    output.calls.clear();
  }
  void click_button(const char* name) {
    QTest::mouseClick(&control<QPushButton>(dialog, name), Qt::LeftButton);
  }
  void click_preview() {
    QTest::mouseClick(&preview, Qt::LeftButton, {}, {8, preview.height() / 2});
  }
  void type_octave(const QString& octave) {
    text1.setFocus();
    text1.selectAll();
    QTest::keyClicks(&text1, octave);
    QTest::keyClick(&text1, Qt::Key_Return);
  }
  QColor octave_colour() { return text1.palette().color(QPalette::Text); }

  InstrumentDialog dialog{voices};
  QTableView& instrulist = control<QTableView>(dialog, "instrulist");
  QCheckBox& preview = control<QCheckBox>(dialog, "preview");
  QLineEdit& text1 = control<QLineEdit>(dialog, "Text1");
  QScrollBar& oct = control<QScrollBar>(dialog, "oct");
  QLabel& details = control<QLabel>(dialog, "details");
};

TEST_F(InstrumentDialogTest, HasItsCaptions) {
  EXPECT_EQ(dialog.objectName(), "Form5");
  EXPECT_EQ(preview.text(), "Preview (play a note when an instrument is clicked)");
  EXPECT_TRUE(preview.isChecked());
  QStringList labels;
  for (const auto* label : dialog.findChildren<QLabel*>()) labels += label->text();
  EXPECT_TRUE(labels.contains("Octave:"));
  EXPECT_TRUE(labels.contains("Basic Midi"));
  EXPECT_TRUE(labels.contains("XG Midi"));
}

TEST_F(InstrumentDialogTest, ShowsARowForEachProgramAndAColumnForEachOfItsVoices) {
  EXPECT_EQ(instrulist.model()->rowCount(), 128);
  EXPECT_EQ(instrulist.model()->columnCount(), 9);
  EXPECT_EQ(cell_text(0, 0), "GrandPno");
  EXPECT_EQ(cell_text(0, 4), "Dream");
  EXPECT_EQ(cell_text(0, 5), "--------");
  EXPECT_EQ(cell_text(127, 0), "Gunshot");
}

TEST_F(InstrumentDialogTest, AColumnIs1200TwipsWideWhereTheScreenHasRoom) {
  QCoreApplication::processEvents();
  for (int column = 0; column < 9; ++column) {
    EXPECT_EQ(instrulist.columnWidth(column), 80) << column;  // 1200 * 0.06667, rounded
  }
}

TEST_F(InstrumentDialogTest, TheFrameOfTheBasicVoicesStandsAboveTheFirstColumnAndXgAboveTheOthers) {
  const auto left = [](const QWidget& widget) { return widget.mapToGlobal(QPoint()).x(); };
  const auto& basic = control<QLabel>(dialog, "Frame1");
  const auto& xg = control<QLabel>(dialog, "Frame2");
  EXPECT_EQ(basic.text(), "Basic Midi");
  EXPECT_EQ(left(basic), left(*instrulist.viewport()));
  EXPECT_EQ(left(xg), left(*instrulist.viewport()) + instrulist.columnWidth(0));
  EXPECT_EQ(left(xg) + xg.width(), left(*instrulist.viewport()) + instrulist.viewport()->width());
  dialog.resize(dialog.width() + 90, dialog.height());
  QCoreApplication::processEvents();
  EXPECT_EQ(left(xg), left(*instrulist.viewport()) + instrulist.columnWidth(0));
}

TEST_F(InstrumentDialogTest, OpensWithTheTracksVoiceSelectedAndInSightEachTime) {
  EXPECT_EQ(selected(), "Chor.EP1");
  EXPECT_TRUE(instrulist.hasFocus());
  dialog.reject();
  song().values.at(2, kInstrument, 1) = 100;
  song().bank.at(2) = 0;
  show();
  EXPECT_EQ(instrulist.currentIndex().row(), 100);
  const QRect cell = instrulist.visualRect(instrulist.currentIndex());
  EXPECT_TRUE(instrulist.viewport()->rect().contains(cell));
}

TEST_F(InstrumentDialogTest, PressingACellPlaysAndReleasingItEnds) {
  press(0, 4);
  EXPECT_EQ(selected(), "Dream");
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x0000BFU, 0x2920BFU, 0x00CFU, 0x7E3C9FU));
  release();
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
}

TEST_F(InstrumentDialogTest, TheNoteEndsWhereverTheMouseIsReleasedAndTheVoiceStaysSelected) {
  press(0, 4);
  output.calls.clear();
  QTest::mouseMove(instrulist.viewport(), place_of(3, 1));
  QTest::mouseRelease(instrulist.viewport(), Qt::LeftButton, {}, {-20, -20});
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
  EXPECT_EQ(selected(), "Dream");
}

TEST_F(InstrumentDialogTest, ADoubleClickPlaysTwiceAndDoesNotChoose) {
  const QPoint place = place_of(0, 0);
  QTest::mouseClick(instrulist.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(instrulist.viewport(), Qt::LeftButton, {}, place);
  release();
  EXPECT_TRUE(dialog.isVisible());
  int starts = 0;
  int ends = 0;
  for (const std::uint32_t packed : output.take_shorts()) {
    if (packed == 0x7E3C9FU) ++starts;
    if (packed == 0x003C9FU) ++ends;
  }
  EXPECT_GE(starts, 2);
  EXPECT_EQ(starts, ends);
}

TEST_F(InstrumentDialogTest, PressingACellWithoutAVoiceSendsNothing) {
  press(0, 5);
  release();
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(InstrumentDialogTest, OnlyTheLeftButtonPlays) {
  QTest::mouseClick(instrulist.viewport(), Qt::RightButton, {}, place_of(0, 4));
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(InstrumentDialogTest, SpacePlaysWhileItIsHeld) {
  click(0, 4);
  QTest::keyPress(&instrulist, Qt::Key_Space);
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x0000BFU, 0x2920BFU, 0x00CFU, 0x7E3C9FU));
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
  QCoreApplication::sendEvent(&instrulist, &repeated);
  QKeyEvent repeated_release(QEvent::KeyRelease, Qt::Key_Space, {}, QStringLiteral(" "), true);
  QCoreApplication::sendEvent(&instrulist, &repeated_release);
  EXPECT_THAT(output.calls, IsEmpty());
  QTest::keyRelease(&instrulist, Qt::Key_Space);
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
}

TEST_F(InstrumentDialogTest, ANoteThatIsHeldEndsWhenTheDialogClosesOrTheKeysGoElsewhere) {
  click(0, 0);
  QTest::keyPress(&instrulist, Qt::Key_Space);
  output.calls.clear();
  control<QPushButton>(dialog, "instruok").setFocus();
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
  press(0, 0);
  output.calls.clear();
  dialog.reject();
  EXPECT_THAT(output.take_shorts(), ElementsAre(0x003C9FU));
}

TEST_F(InstrumentDialogTest, APressEndsTheNoteThatIsStillHeld) {
  click(0, 4);
  QTest::keyPress(&instrulist, Qt::Key_Space);
  output.calls.clear();
  press(1, 0);
  EXPECT_THAT(output.take_shorts(),
              ElementsAre(0x003C9FU, 0x0000BFU, 0x0020BFU, 0x01CFU, 0x7E3C9FU));
}

TEST_F(InstrumentDialogTest, WithPreviewUntickedNothingSoundsAndTheOctaveIsGrey) {
  click_preview();
  EXPECT_FALSE(text1.isEnabled());
  EXPECT_FALSE(oct.isEnabled());
  EXPECT_EQ(octave_colour(), QColor(64, 64, 64));
  press(0, 0);
  release();
  EXPECT_THAT(output.calls, IsEmpty());
  click_preview();
  EXPECT_TRUE(text1.isEnabled());
  EXPECT_TRUE(oct.isEnabled());
  EXPECT_EQ(octave_colour(), QColor(255, 255, 255));
}

TEST_F(InstrumentDialogTest, TheOctaveIsTypedOneToSixAndMovesTheScrollBar) {
  EXPECT_EQ(oct.minimum(), 1);
  EXPECT_EQ(oct.maximum(), 6);
  type_octave("6");
  EXPECT_EQ(oct.value(), 6);
  press(0, 0);
  EXPECT_EQ(output.take_shorts().back(), 0x7E549FU);
  release();
  type_octave("1");
  press(0, 0);
  release();
  EXPECT_EQ(output.take_shorts().back(), 0x00189FU);
  EXPECT_THAT(dialogs().messages, IsEmpty());
}

TEST_F(InstrumentDialogTest, AnOctaveOutOfRangeIsRefusedAndTheLastReturns) {
  type_octave("2");
  type_octave("7");
  EXPECT_THAT(dialogs().messages, ElementsAre(test::error_box("Invalid value (1-6)")));
  EXPECT_EQ(text1.text(), "2");
  type_octave("0");
  EXPECT_EQ(dialogs().messages.size(), 2U);
  EXPECT_EQ(text1.text(), "2");
  EXPECT_EQ(oct.value(), 2);
}

TEST_F(InstrumentDialogTest, MovingTheScrollBarWritesTheOctave) {
  QTest::mouseClick(&oct, Qt::LeftButton, {}, {oct.width() / 2, 3});
  EXPECT_EQ(text1.text(), "5");
  EXPECT_EQ(voices.octave.value(), 5);
}

TEST_F(InstrumentDialogTest, EnterInTheOctaveGivesTheKeysBackToTheGridAndChoosesNothing) {
  type_octave("3");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(instrulist.hasFocus());
}

TEST_F(InstrumentDialogTest, EscapeTakesBackAHalfTypedOctaveWithoutAWord) {
  text1.setFocus();
  text1.selectAll();
  QTest::keyClicks(&text1, "9");
  QTest::keyClick(&text1, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_THAT(dialogs().messages, IsEmpty());
  EXPECT_EQ(text1.text(), "4");
}

TEST_F(InstrumentDialogTest, OkTakesTheVoice) {
  click(1, 1);
  click_button("instruok");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(song().values.at(2, kInstrument, 1), 1);
  EXPECT_EQ(song().bank.at(2), 1);
  EXPECT_EQ(voice_name.get(), "BritPnoK");
  EXPECT_TRUE(modified());
  EXPECT_THAT(output.calls, Not(IsEmpty()));
}

TEST_F(InstrumentDialogTest, OkOnACellWithoutAVoiceIsRefusedAndChangesNothing) {
  click(0, 5);
  click_button("instruok");
  EXPECT_THAT(dialogs().messages,
              ElementsAre(test::error_box("you must select a valid instrument", "error")));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_FALSE(modified());
  EXPECT_EQ(song().values.at(2, kInstrument, 1), 4);
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(InstrumentDialogTest, CancelAndEscapeChangeNothing) {
  click(1, 1);
  click_button("instrucancel");
  EXPECT_FALSE(dialog.isVisible());
  show();
  click(1, 1);
  press_key(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(song().values.at(2, kInstrument, 1), 4);
  EXPECT_FALSE(modified());
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(InstrumentDialogTest, TheKeysAloneChooseAVoice) {
  press_key(dialog, Qt::Key_Down);
  press_key(dialog, Qt::Key_Left);
  press_key(dialog, Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(song().values.at(2, kInstrument, 1), 5);
  EXPECT_TRUE(modified());
}

TEST_F(InstrumentDialogTest, AVoiceIsFoundByTypingItsName) {
  test::type(dialog, "panf");
  EXPECT_EQ(selected(), "PanFlute");
  EXPECT_TRUE(details.text().contains("panf"));
  press_key(dialog, Qt::Key_Backspace);
  press_key(dialog, Qt::Key_Backspace);
  EXPECT_EQ(selected(), "PanFlute");
}

TEST_F(InstrumentDialogTest, BackspaceTakesBackAWholeCharacterOfTheName) {
  QKeyEvent typed(QEvent::KeyPress, Qt::Key_Eacute, {}, QStringLiteral("\u00e9"));
  QCoreApplication::sendEvent(&instrulist, &typed);
  EXPECT_TRUE(details.text().contains(QStringLiteral("\u00e9")));
  press_key(dialog, Qt::Key_Backspace);
  EXPECT_FALSE(details.text().contains(QStringLiteral("Find"))) << details.text().toStdString();
}

TEST_F(InstrumentDialogTest, WhatIsTypedIsShownAsItIsTyped) {
  test::type(dialog, "<b>");
  EXPECT_EQ(details.textFormat(), Qt::PlainText);
}

TEST_F(InstrumentDialogTest, F3GoesOnToTheNextVoiceOfThatName) {
  test::type(dialog, "harps");
  EXPECT_EQ(selected(), "Harpsi.");
  press_key(dialog, Qt::Key_F3);
  EXPECT_EQ(selected(), "Harpsi.K");
}

TEST_F(InstrumentDialogTest, ANameThatNoVoiceHasIsSaidAndLeavesTheSelection) {
  test::type(dialog, "zz");
  EXPECT_EQ(selected(), "Jazz Gtr");
  test::type(dialog, "z");
  EXPECT_EQ(selected(), "Jazz Gtr");
  EXPECT_TRUE(details.text().contains("no such voice"));
}

TEST_F(InstrumentDialogTest, AnArrowKeyEndsTheSearch) {
  test::type(dialog, "panf");
  press_key(dialog, Qt::Key_Down);
  EXPECT_FALSE(details.text().contains("panf"));
  test::type(dialog, "grandp");
  EXPECT_EQ(selected(), "GrandPno");
}

TEST_F(InstrumentDialogTest, AKeyThatOnlyChangesOthersDoesNotEndTheSearch) {
  test::type(dialog, "pan");
  for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_AltGr}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&instrulist, &press);
    EXPECT_TRUE(details.text().contains("pan"));
  }
  test::type(dialog, "F");
  EXPECT_EQ(selected(), "PanFlute");
}

TEST_F(InstrumentDialogTest, SaysWhatTheSelectedCellIs) {
  EXPECT_EQ(details.text(), "Chor.EP1 \u2014 program 4, bank 32, Piano");
  click(0, 5);
  EXPECT_EQ(details.text(), "No voice");
}

}  // namespace
}  // namespace lunavox
