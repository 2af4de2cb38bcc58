#include "midi/ui/count_in_dialog.h"

#include "tests/support/widgets.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::control;

class CountIn : public ::testing::Test {
 protected:
  CountIn() {
    // As the record loop does it: cancelling hides the window.
    dialog.set_hooks(
        [this] {
          ++cancelled;
          dialog.hide();
        },
        [this] { ++hidden; });
  }

  void show() {
    dialog.show("Record start in  4");
    test::wait_until_active(dialog);
  }

  CountInDialog dialog;
  int cancelled = 0;
  int hidden = 0;
};

TEST_F(CountIn, ShowsTheCaptionsThatItIsGiven) {
  EXPECT_EQ(dialog.objectName(), "Form9");
  EXPECT_EQ(control<QLabel>(dialog, "recordstartin").text(), "Record start in");
  show();
  EXPECT_EQ(control<QLabel>(dialog, "recordstartin").text(), "Record start in  4");
  dialog.set_caption("Record start in  3");
  EXPECT_EQ(control<QLabel>(dialog, "recordstartin").text(), "Record start in  3");
  EXPECT_EQ(control<QPushButton>(dialog, "Command1").text(), "CANCEL");
}

TEST_F(CountIn, StaysInFrontWithoutBlockingTheEditor) {
  show();
  EXPECT_FALSE(dialog.isModal());
  EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(CountIn, CancelEscapeAndClosingTheWindowCancelOnceEach) {
  show();
  QTest::mouseClick(&control<QPushButton>(dialog, "Command1"), Qt::LeftButton);
  EXPECT_EQ(cancelled, 1);
  EXPECT_FALSE(dialog.isVisible());
  show();
  test::press_key(dialog, Qt::Key_Escape);
  EXPECT_EQ(cancelled, 2);
  EXPECT_FALSE(dialog.isVisible());
  show();
  dialog.close();
  EXPECT_EQ(cancelled, 3);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(hidden, 3);
}

TEST_F(CountIn, EnterAndSpaceCancel) {
  show();
  test::press_key(dialog, Qt::Key_Return);
  EXPECT_EQ(cancelled, 1);
  show();
  test::press_key(dialog, Qt::Key_Space);
  EXPECT_EQ(cancelled, 2);
}

TEST_F(CountIn, TheEndOfTheCountInHidesItAndGivesTheKeysBack) {
  show();
  CountInWindow& window = dialog;
  window.hide();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(hidden, 1);
  EXPECT_EQ(cancelled, 0);
}

TEST_F(CountIn, StandsInTheMiddleOfItsWindow) {
  QWidget main_window;
  main_window.setGeometry(200, 100, 800, 500);
  main_window.show();
  test::wait_until_active(main_window);
  dialog.setParent(&main_window, dialog.windowFlags());
  show();
  const QPoint off = dialog.geometry().center() - main_window.geometry().center();
  EXPECT_LT(off.manhattanLength(), 60);
  dialog.setParent(nullptr);
}

}  // namespace
}  // namespace lunavox
