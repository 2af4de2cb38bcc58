#include "grid/ui/theme.h"

#include <QImage>
#include <QPixmapCache>
#include <QPushButton>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(Theme, PicturesOfDialogsThatAreGoneDoNotPileUp) {
  EXPECT_EQ(QPixmapCache::cacheLimit(), 1024);  // kilobytes
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
