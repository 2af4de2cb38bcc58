#include "app/ui/widgets/skin_pictures.h"

#include <QFileInfo>

namespace lunavox {

SkinPictures::SkinPictures(const std::filesystem::path& folder)
    : folder_(QString::fromStdString(folder.string())) {}

const QIcon& SkinPictures::picture(const QString& name) {
  const auto known = loaded_.constFind(name);
  if (known != loaded_.constEnd()) return *known;
  QIcon icon;
  // The larger scale, "play1@2x.png", is found by the icon itself. Skins of old have .bmp files.
  for (const char* extension : {".png", ".bmp"}) {
    const QString file = folder_ + QLatin1Char('/') + name + QLatin1String(extension);
    if (icon.isNull() && QFileInfo::exists(file)) icon.addFile(file);
  }
  return *loaded_.insert(name, icon);
}

}  // namespace lunavox
