#include "grid/ui/theme.h"

#include <QCheckBox>
#include <QImage>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(Theme, PicturesOfDialogsThatAreGoneDoNotPileUp) {
  EXPECT_EQ(QPixmapCache::cacheLimit(), 1024);  // kilobytes
}

TEST(Theme, ACheckBoxWithTheKeysIsMarkedAtItsTick) {
  QCheckBox box(QStringLiteral("Rec velocity"));
  box.show();
  const auto edge = [&] {
    const QImage picture = box.grab().toImage();
    return picture.pixelColor(5, (picture.height() - 13) / 2);  // the tick's square, 13 pixels high
  };
  box.clearFocus();
  EXPECT_NE(edge(), theme::kAccent);
  box.activateWindow();
  box.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  EXPECT_EQ(edge(), theme::kAccent);
  box.setChecked(true);
  EXPECT_EQ(edge(), QColor(Qt::white));
}

TEST(Theme, TheToolkitsOwnWarningsCarryAMarkInTheProgramsColour) {
  QMessageBox box;
  box.ensurePolished();
  box.setIcon(QMessageBox::Warning);
  const QImage mark = box.iconPixmap().toImage();
  EXPECT_EQ(mark.pixelColor(mark.width() / 2, mark.height() * 2 / 5), theme::kAccent);
}

TEST(Theme, ADefaultButtonThatCannotBePressedDoesNotLookAsIfItCould) {
  QPushButton button;
  button.setDefault(true);
  const auto ground = [&] {
    const QImage picture = button.grab().toImage();
    return picture.pixelColor(picture.width() / 2, picture.height() / 2);
  };
  EXPECT_EQ(ground(), theme::kAccent);
  button.setEnabled(false);
  EXPECT_EQ(ground(), theme::kPanel);
}

}  // namespace
}  // namespace lunavox
