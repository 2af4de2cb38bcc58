#include "grid/ui/skin_pictures.h"

#include "grid/ui/picture_button.h"
#include "tests/support/temp_folder.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

const std::filesystem::path kSkin = std::filesystem::path(LUNAVOX_SOURCE_DIR) / "skin";

QImage file_image(const std::string& name) {
  return QImage(QString::fromStdString((kSkin / name).string()));
}

/// What an icon draws into a button at a scale of the screen.
QImage drawn(const QIcon& icon, QSize button, qreal scale) {
  return icon.pixmap(button, scale).toImage();
}

bool same_pixels(QImage a, QImage b) {
  const auto format = QImage::Format_ARGB32_Premultiplied;  // as drawn
  a = a.convertToFormat(format);
  b = b.convertToFormat(format);
  a.setDevicePixelRatio(1);
  b.setDevicePixelRatio(1);
  return a == b;
}

TEST(SkinPictures, AllTwelveAreDrawnPixelForPixelAtOneAndTwoTimesScale) {
  SkinPictures skin(kSkin);
  struct Picture {
    const char* name;
    QSize button;
  };
  for (const Picture& picture : {Picture{"play1", {40, 32}},
                                 {"play2", {40, 32}},
                                 {"stop1", {40, 32}},
                                 {"stop2", {40, 32}},
                                 {"record1", {40, 32}},
                                 {"record2", {40, 32}},
                                 {"stoprec1", {40, 32}},
                                 {"stoprec2", {40, 32}},
                                 {"addbook1", {28, 28}},
                                 {"addbook2", {28, 28}},
                                 {"delbook1", {28, 28}},
                                 {"delbook2", {28, 28}}}) {
    const std::string name = picture.name;
    const QIcon& icon = skin.picture(QLatin1String(picture.name));
    const QImage once = file_image(name + ".png");
    const QImage twice = file_image(name + "@2x.png");
    EXPECT_EQ(once.size(), picture.button) << name;
    EXPECT_EQ(twice.size(), picture.button * 2) << name;
    EXPECT_TRUE(same_pixels(drawn(icon, picture.button, 1), once)) << name;
    EXPECT_TRUE(same_pixels(drawn(icon, picture.button, 2), twice)) << name;
    EXPECT_TRUE(std::filesystem::exists(kSkin / "sources" / (name + ".svg"))) << name;
  }
}

TEST(SkinPictures, AButtonThatGrowsWithTheTypeIsFilled) {
  SkinPictures skin(kSkin);
  const QImage grown = drawn(skin.picture(QStringLiteral("play1")), {60, 48}, 1);
  EXPECT_EQ(grown.size(), QSize(60, 48));
}

TEST(SkinPictures, APictureThatIsMissingIsNone) {
  SkinPictures skin("/nonexistent");
  EXPECT_TRUE(skin.picture(QStringLiteral("play1")).isNull());
}

TEST(SkinPictures, ASkinOfBitmapsIsShownToo) {
  const test::TempFolder folder;
  QImage bitmap(40, 32, QImage::Format_RGB32);
  bitmap.fill(Qt::red);
  ASSERT_TRUE(bitmap.save(QString::fromStdString(folder.file("play1.bmp"))));
  SkinPictures skin(folder.path());
  EXPECT_TRUE(same_pixels(drawn(skin.picture(QStringLiteral("play1")), {40, 32}, 1), bitmap));
}

TEST(SkinPictures, AButtonWithoutItsPictureShowsItsName) {
  const test::TempFolder empty;
  SkinPictures skin(empty.path());
  Property<std::string> picture{"play1"};
  const auto drawn_as = [&](const char* name) {
    PictureButton button(QLatin1String(name), skin, picture, {}, {80, 32});
    return button.grab().toImage();
  };
  EXPECT_NE(drawn_as("playnotes"), drawn_as("")) << "something is drawn";
  EXPECT_NE(drawn_as("playnotes"), drawn_as("recordnotes")) << "each its own name";
}

}  // namespace
}  // namespace lunavox
