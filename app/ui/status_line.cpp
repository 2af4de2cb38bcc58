#include "app/ui/status_line.h"

#include "grid/ui/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace lunavox {
namespace {

struct SectionPlan {
  const char* name;
  int stretch;
  const char* widest;  ///< text of a section that does not stretch
};

constexpr std::array<SectionPlan, StatusLine::kSections> kPlan = {{
    {"statusfile", 2, ""},
    {"statusoutput", 7, ""},
    {"statusline", 0, "Line 2999 of 3000   Beat 3000"},
    {"statuscell", 0, "Track 10 #8: G#10 velocity 127"},
    {"statusoctave", 0, "Octave +4"},
}};

/// A label whose text ends in dots where it does not fit.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
  }
};

void set_warning(QLabel& label, bool warning) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::WindowText, warning ? theme::kAccent : theme::kDimText);
  label.setPalette(palette);
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("status"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(theme::scaled(8), 0, theme::scaled(8), 0);
  row->setSpacing(theme::scaled(12));
  for (std::size_t i = 0; i < kPlan.size(); ++i) {
    auto* label = new ElidedLabel(this);
    label->setObjectName(QLatin1String(kPlan[i].name));
    label->setFont(theme::caption_font());
    label->setTextFormat(Qt::PlainText);
    // The text must not decide on the width, or the sections would shift with it.
    label->setSizePolicy(kPlan[i].stretch > 0 ? QSizePolicy::Ignored : QSizePolicy::Fixed,
                         QSizePolicy::Fixed);
    if (kPlan[i].stretch == 0) {
      label->setFixedWidth(label->fontMetrics().horizontalAdvance(QLatin1String(kPlan[i].widest)));
    }
    set_warning(*label, false);
    row->addWidget(label, kPlan[i].stretch);
    labels_[i] = label;
  }
  setFixedHeight(theme::scaled(21));
}

void StatusLine::show_text(Section section, const QString& text) {
  QLabel& label = *labels_[section];
  if (label.text() == text) return;
  label.setText(text);
  label.setToolTip(text);
  set_warning(label, false);
}

void StatusLine::show_warning(Section section, const QString& text) {
  show_text(section, text);
  set_warning(*labels_[section], true);
}

}  // namespace lunavox
