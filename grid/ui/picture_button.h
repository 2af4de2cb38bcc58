#pragma once

#include "grid/property.h"

#include <QAbstractButton>
#include <functional>
#include <string>

namespace lunavox {

class SkinPictures;

/// A button that is a picture of the skin, or its own name where the skin lacks the picture. It
/// tells of the mouse button going down and up apart, since the picture changes between the two.
class PictureButton : public QAbstractButton {
 public:
  struct Handlers {
    std::function<void()> down;
    std::function<void()> up;
  };

  /// @param picture  the name of the picture to show
  PictureButton(const QString& name, SkinPictures& skin, Property<std::string>& picture,
                Handlers handlers, QSize size, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  /// The picture shown, by its name.
  const std::string& picture() const { return picture_.get(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  SkinPictures& skin_;
  const Property<std::string>& picture_;
  Handlers handlers_;
  QSize size_;
};

}  // namespace lunavox
