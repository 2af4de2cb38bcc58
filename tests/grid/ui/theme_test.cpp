#include "grid/ui/theme.h"

#include <QPixmapCache>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(Theme, PicturesOfDialogsThatAreGoneDoNotPileUp) {
  EXPECT_EQ(QPixmapCache::cacheLimit(), 1024);  // kilobytes
}

}  // namespace
}  // namespace lunavox
