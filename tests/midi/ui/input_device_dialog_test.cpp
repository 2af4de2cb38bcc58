#include "midi/ui/input_device_dialog.h"

#include "tests/support/scripted_dialogs.h"
#include "tests/support/widgets.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::control;
using test::press_key;
using ::testing::ElementsAre;

class InputDialog : public ::testing::Test {
 protected:
  InputDialog() {
    dialog.open();
    test::wait_until_active(dialog);
  }

  test::ScriptedDialogs dialogs;
  InputDeviceDialog dialog{{"Keystation 61", "Through port", "Pad bank"}, dialogs};
  QListWidget& list1 = control<QListWidget>(dialog, "List1");
};

TEST_F(InputDialog, HasItsCaptionsAndTheDevicesInOrder) {
  EXPECT_EQ(dialog.objectName(), "Form2");
  EXPECT_EQ(dialog.windowTitle(), "Midi input");
  EXPECT_EQ(control<QGroupBox>(dialog, "Frame1").title(), "Select an Midi input device");
  EXPECT_EQ(control<QPushButton>(dialog, "Command1").text(), "OK");
  EXPECT_EQ(control<QPushButton>(dialog, "Command2").text(), "Quit Lunavox");
  QStringList labels;
  for (const auto* label : dialog.findChildren<QLabel*>()) labels += label->text();
  EXPECT_TRUE(labels.contains("(even if you don't have midi keyboard)"));
  ASSERT_EQ(list1.count(), 3);
  EXPECT_EQ(list1.item(0)->text(), "Keystation 61");
  EXPECT_EQ(list1.item(2)->text(), "Pad bank");
}

TEST_F(InputDialog, ConfirmingWithoutAChoiceIsRefusedAndTheDialogStays) {
  QTest::mouseClick(&control<QPushButton>(dialog, "Command1"), Qt::LeftButton);
  EXPECT_THAT(dialogs.messages, ElementsAre(test::error_box("You must select an input device")));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.device(), -1);
}

TEST_F(InputDialog, EnterWithoutAChoiceIsRefusedToo) {
  press_key(dialog, Qt::Key_Return);
  EXPECT_THAT(dialogs.messages, ElementsAre(test::error_box("You must select an input device")));
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(InputDialog, AClickedEntryIsConfirmedByTheButton) {
  QTest::mouseClick(list1.viewport(), Qt::LeftButton, {},
                    list1.visualItemRect(list1.item(1)).center());
  QTest::mouseClick(&control<QPushButton>(dialog, "Command1"), Qt::LeftButton);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.device(), 1);
}

TEST_F(InputDialog, TheKeysAloneChooseADevice) {
  EXPECT_TRUE(list1.hasFocus());
  press_key(dialog, Qt::Key_Down);
  EXPECT_EQ(dialog.device(), 0);
  press_key(dialog, Qt::Key_Down);
  press_key(dialog, Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.device(), 1);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(InputDialog, ADeviceIsFoundByTypingItsName) {
  test::type(dialog, "pad");
  EXPECT_EQ(dialog.device(), 2);
}

TEST_F(InputDialog, ADoubleClickChoosesADevice) {
  const QPoint third = list1.visualItemRect(list1.item(2)).center();
  QTest::mouseClick(list1.viewport(), Qt::LeftButton, {}, third);
  QTest::mouseDClick(list1.viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.device(), 2);
}

TEST_F(InputDialog, QuitEscapeAndClosingTheWindowLeaveWithoutADevice) {
  QTest::mouseClick(&control<QPushButton>(dialog, "Command2"), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
  dialog.open();
  press_key(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
  dialog.open();
  dialog.close();
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace lunavox
