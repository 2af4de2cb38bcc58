#include "grid/ui/skin_pictures.h"

#include <QImage>
#include <QPixmap>

namespace lunavox {
namespace {

/// Adds a picture file, if there is one, as just so many pixels. Left to itself an icon would take
/// the larger scale on a screen of two times scale only; large type asks for it as well.
void add_pixels(QIcon& icon, const QString& file) {
  QPixmap pixels = QPixmap::fromImage(QImage(file));
  pixels.setDevicePixelRatio(1);
  icon.addPixmap(pixels);
}

}  // namespace

SkinPictures::SkinPictures(const std::filesystem::path& folder)
    : folder_(QString::fromStdString(folder.string())) {}

const QIcon& SkinPictures::picture(const QString& name) {
  const auto known = loaded_.constFind(name);
  if (known != loaded_.constEnd()) return *known;
  QIcon icon;
  const QString file = folder_ + QLatin1Char('/') + name;
  add_pixels(icon, file + QStringLiteral(".png"));
  add_pixels(icon, file + QStringLiteral("@2x.png"));
  if (icon.isNull()) add_pixels(icon, file + QStringLiteral(".bmp"));  // skins of old
  return *loaded_.insert(name, icon);
}

}  // namespace lunavox
