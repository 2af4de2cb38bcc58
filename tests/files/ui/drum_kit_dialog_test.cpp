#include "files/ui/drum_kit_dialog.h"

#include "tests/support/voice_bench.h"
#include "tests/support/widgets.h"

#include <QListWidget>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::control;
using test::press_key;
using ::testing::IsEmpty;
using ::testing::Not;

class DrumKitDialogTest : public test::VoiceBench {
 protected:
  DrumKitDialogTest() {
    song().current_track = kDrumTrack;
    song().values.at(kDrumTrack, kInstrument, 1) = 16;
    show();
  }

  void show() {
    dialog.open();
    test::wait_until_active(dialog);
  }

  int program() { return song().values.at(kDrumTrack, kInstrument, 1); }
  QPoint place_of(int kit) { return drumlist.visualItemRect(drumlist.item(kit)).center(); }
  void click_ok() { QTest::mouseClick(&control<QPushButton>(dialog, "drumok"), Qt::LeftButton); }

  DrumKitDialog dialog{drums};
  QListWidget& drumlist = control<QListWidget>(dialog, "drumlist");
};

TEST_F(DrumKitDialogTest, ListsTheNineKitsWithTheirPrograms) {
  EXPECT_EQ(dialog.objectName(), "Form4");
  ASSERT_EQ(drumlist.count(), 9);
  EXPECT_EQ(drumlist.item(0)->text(), "standard 1");
  EXPECT_EQ(drumlist.item(4)->text(), "electro");
  EXPECT_EQ(drumlist.item(4)->data(Qt::UserRole).toInt(), 24);
  EXPECT_EQ(drumlist.item(8)->text(), "classic");
  EXPECT_EQ(drumlist.item(8)->data(Qt::UserRole).toInt(), 48);
}

TEST_F(DrumKitDialogTest, OpensWithTheTracksKitSelectedEachTime) {
  EXPECT_EQ(drumlist.currentItem()->text(), "rock");
  EXPECT_TRUE(drumlist.hasFocus());
  dialog.reject();
  song().values.at(kDrumTrack, kInstrument, 1) = 48;
  show();
  EXPECT_EQ(drumlist.currentItem()->text(), "classic");
}

TEST_F(DrumKitDialogTest, AKitThatTheListDoesNotHaveLeavesNothingToConfirm) {
  dialog.reject();
  song().values.at(kDrumTrack, kInstrument, 1) = 99;
  show();
  EXPECT_THAT(drumlist.selectedItems(), IsEmpty());
  EXPECT_FALSE(control<QPushButton>(dialog, "drumok").isEnabled());
  press_key(dialog, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  press_key(dialog, Qt::Key_Down);
  EXPECT_EQ(drumlist.currentItem()->text(), "standard 1");
  EXPECT_TRUE(control<QPushButton>(dialog, "drumok").isEnabled());
}

TEST_F(DrumKitDialogTest, OkTakesTheKitAndMarksTheSongModified) {
  QTest::mouseClick(drumlist.viewport(), Qt::LeftButton, {}, place_of(6));
  click_ok();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(program(), 32);
  EXPECT_EQ(voice_name.get(), "jazz");
  EXPECT_TRUE(modified());
  EXPECT_THAT(output.calls, Not(IsEmpty()));
}

TEST_F(DrumKitDialogTest, ADoubleClickTakesTheKitAndLeavesTheSongUnmodified) {
  QTest::mouseClick(drumlist.viewport(), Qt::LeftButton, {}, place_of(7));
  QTest::mouseDClick(drumlist.viewport(), Qt::LeftButton, {}, place_of(7));
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(program(), 40);
  EXPECT_EQ(voice_name.get(), "brush");
  EXPECT_FALSE(modified());
  EXPECT_THAT(output.calls, Not(IsEmpty()));
}

TEST_F(DrumKitDialogTest, CancelAndEscapeChangeNothing) {
  press_key(dialog, Qt::Key_Down);
  QTest::mouseClick(&control<QPushButton>(dialog, "drumcancel"), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
  show();
  press_key(dialog, Qt::Key_Down);
  press_key(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(program(), 16);
  EXPECT_FALSE(modified());
  EXPECT_THAT(output.calls, IsEmpty());
}

TEST_F(DrumKitDialogTest, TheKeysAloneChooseAKitAndMarkTheSongModified) {
  press_key(dialog, Qt::Key_Down);
  press_key(dialog, Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(program(), 24);
  EXPECT_TRUE(modified());
}

TEST_F(DrumKitDialogTest, AKitIsFoundByTypingItsName) {
  test::type(dialog, "br");
  EXPECT_EQ(drumlist.currentItem()->text(), "brush");
}

TEST_F(DrumKitDialogTest, ShowsAllKitsWithoutScrolling) {
  EXPECT_TRUE(drumlist.viewport()->rect().contains(drumlist.visualItemRect(drumlist.item(0))));
  EXPECT_TRUE(drumlist.viewport()->rect().contains(drumlist.visualItemRect(drumlist.item(8))));
}

}  // namespace
}  // namespace lunavox
