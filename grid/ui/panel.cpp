#include "grid/ui/panel.h"

#include "grid/ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace lunavox {

QLabel* make_caption(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setProperty("caption", true);
  label->setFont(theme::caption_font(-1));
  return label;
}

Panel::Panel(const QString& name, const QString& caption, QWidget* parent)
    : QFrame(parent), row_(new QHBoxLayout) {
  setObjectName(name);
  setProperty("panel", true);
  setAccessibleName(caption);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(theme::scaled(7), theme::scaled(2), theme::scaled(7),
                             theme::scaled(3));
  column->setSpacing(theme::scaled(1));
  column->addWidget(make_caption(caption, this));
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(theme::scaled(5));
  column->addStretch();
  column->addLayout(row_);
  column->addStretch();
}

}  // namespace lunavox
