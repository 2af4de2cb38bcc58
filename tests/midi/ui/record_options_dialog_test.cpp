#include "midi/ui/record_options_dialog.h"

#include "tests/support/scripted_dialogs.h"
#include "tests/support/widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::control;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RecordDialog : public ::testing::Test {
 protected:
  RecordDialog() {
    dialog.show();
    test::wait_until_active(dialog);
  }

  void type_beats(const QString& text) {
    before.setFocus();
    before.selectAll();
    QTest::keyClicks(&before, text);
    QTest::keyClick(&before, Qt::Key_Return);
  }

  test::ScriptedDialogs dialogs;
  RecordOptions options;
  RecordOptionsDialog dialog{options, dialogs};
  QLineEdit& before = control<QLineEdit>(dialog, "before");
  QScrollBar& befores = control<QScrollBar>(dialog, "befores");
  QCheckBox& metronome = control<QCheckBox>(dialog, "metronome");
};

TEST_F(RecordDialog, HasItsCaptionsAndDoesNotBlockTheEditor) {
  EXPECT_EQ(dialog.objectName(), "Form8");
  EXPECT_EQ(dialog.windowTitle(), "Realtime record");
  EXPECT_EQ(metronome.text(), "Metronome while recording");
  EXPECT_EQ(control<QPushButton>(dialog, "Command2").text(), "Close");
  QStringList labels;
  for (const auto* label : dialog.findChildren<QLabel*>()) labels += label->text();
  EXPECT_TRUE(labels.contains("Number of beats before record start :"));
  EXPECT_FALSE(dialog.isModal());
}

TEST_F(RecordDialog, TheMetronomeBoxIsTheOption) {
  QTest::mouseClick(&metronome, Qt::LeftButton, {}, {8, metronome.height() / 2});
  EXPECT_TRUE(options.metronome);
  QTest::keyClick(&metronome, Qt::Key_Space);
  EXPECT_FALSE(options.metronome);
  options.metronome = true;
  EXPECT_TRUE(metronome.isChecked());
}

TEST_F(RecordDialog, BeatsFromZeroToEightAreTakenAndMoveTheScrollBar) {
  type_beats("8");
  EXPECT_EQ(options.before.value(), 8);
  EXPECT_EQ(befores.value(), 8);
  type_beats("0");
  EXPECT_EQ(options.before.value(), 0);
  EXPECT_EQ(befores.value(), 0);
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

TEST_F(RecordDialog, NineBeatsAreRefusedAndTheLastNumberReturns) {
  type_beats("3");
  type_beats("9");
  EXPECT_THAT(dialogs.messages, ElementsAre(test::error_box("Invalid value (0-8)")));
  EXPECT_EQ(before.text(), "3");
  EXPECT_EQ(befores.value(), 3);
  EXPECT_EQ(options.before.value(), 3);
}

TEST_F(RecordDialog, ATextThatIsNoNumberIsRefusedAndTheLastNumberReturns) {
  type_beats("two");
  EXPECT_THAT(dialogs.messages, ElementsAre(test::error_box("Invalid value (0-8)")));
  EXPECT_EQ(before.text(), "4");
}

TEST_F(RecordDialog, MovingTheScrollBarWritesTheText) {
  EXPECT_EQ(befores.minimum(), 0);
  EXPECT_EQ(befores.maximum(), 8);
  QTest::mouseClick(&befores, Qt::LeftButton, {}, {befores.width() / 2, 3});
  EXPECT_EQ(before.text(), "5");
  EXPECT_EQ(options.before.value(), 5);
  QTest::mouseClick(&befores, Qt::LeftButton, {}, {befores.width() / 2, befores.height() - 3});
  EXPECT_EQ(before.text(), "4");
}

TEST_F(RecordDialog, EnterInTheNumberLeavesTheDialogOpen) {
  type_beats("2");
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(RecordDialog, ClosingHidesItAndItsSettingsStay) {
  type_beats("2");
  metronome.setChecked(true);
  QTest::mouseClick(&control<QPushButton>(dialog, "Command2"), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(options.before.value(), 2);
  EXPECT_TRUE(options.metronome);
  dialog.show();
  EXPECT_EQ(before.text(), "2");
  EXPECT_TRUE(metronome.isChecked());
}

TEST_F(RecordDialog, EscapeHidesItAndTakesBackAHalfTypedNumber) {
  before.setFocus();
  before.selectAll();
  QTest::keyClicks(&before, "99");
  QTest::keyClick(&before, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(before.text(), "4");
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace lunavox
