#pragma once

#include <QHash>
#include <QIcon>
#include <QString>
#include <filesystem>

namespace lunavox {

/// The bitmaps of the skin folder, each loaded when it is first asked for.
class SkinPictures {
 public:
  /// @param folder  holds play1.png, play1@2x.png and so on
  explicit SkinPictures(const std::filesystem::path& folder);

  /// A picture in the scales that there are; null where the folder has none of that name.
  /// @param name  without folder and extension, such as "play1"
  const QIcon& picture(const QString& name);

 private:
  QString folder_;
  QHash<QString, QIcon> loaded_;
};

}  // namespace lunavox
