#pragma once

#include <QHeaderView>

namespace lunavox {

/// The left edge of the voice grid: beside each row its program number, and beside the rows of a
/// General MIDI family the family's name, which stays in sight while any of its rows is.
class FamilyHeader : public QHeaderView {
 public:
  explicit FamilyHeader(QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paint_number(QPainter& painter, int program) const;
  void paint_family(QPainter& painter, int first_program) const;
};

}  // namespace lunavox
