#pragma once

#include <QWidget>
#include <vector>

namespace lunavox {

/// The panels above the grids, side by side in as many rows as the window's width asks for.
class PanelStrip : public QWidget {
 public:
  explicit PanelStrip(QWidget* parent = nullptr);

  void add(QWidget* panel);

  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// Places of the panels in a width, row by row.
  std::vector<QRect> places(int width) const;
  /// As they come, each row filled before the next begins.
  std::vector<QRect> rows_within(int width) const;
  int panel_height() const;
  int height_for(const std::vector<QRect>& places) const;

  std::vector<QWidget*> panels_;
};

}  // namespace lunavox
