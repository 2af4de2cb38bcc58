#include "grid/ui/theme.h"

#include "grid/colour.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QPixmapCache>
#include <QScreen>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>

// The macro refuses to stand in a namespace.
static void register_pictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace lunavox::theme {
namespace {

constexpr int kCaptionPixels = 11;
constexpr qreal kDesignDpi = 96;
constexpr int kPictureCacheKb = 1024;

QPalette palette() {
  QPalette palette;
  palette.setColor(QPalette::Window, kWindow);
  palette.setColor(QPalette::WindowText, kText);
  palette.setColor(QPalette::Base, kField);
  palette.setColor(QPalette::AlternateBase, kPanel);
  palette.setColor(QPalette::Text, kText);
  palette.setColor(QPalette::PlaceholderText, kFaintText);
  palette.setColor(QPalette::Button, kPanel);
  palette.setColor(QPalette::ButtonText, kText);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, kPanel);
  palette.setColor(QPalette::ToolTipText, kText);
  palette.setColor(QPalette::Highlight, kAccent);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  palette.setColor(QPalette::Link, kAccent);
  palette.setColor(QPalette::Light, kEdge);
  palette.setColor(QPalette::Midlight, kEdge);
  palette.setColor(QPalette::Mid, kLine);
  palette.setColor(QPalette::Dark, kGrid);
  palette.setColor(QPalette::Shadow, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, kFaintText);
  }
  return palette;
}

// Item views keep the style's own painting: a style sheet's ground would stop them from scrolling
// by moving pixels.
constexpr const char* kStyleSheet = R"(
QMenuBar { background: #15171c; border-bottom: 1px solid #22262f; spacing: 2px; }
QMenuBar::item { padding: 4px 9px; color: #c3c8d1; background: transparent; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: #262a34; color: #ffffff; border-radius: 3px; }
QMenu { background: #1b1e25; border: 1px solid #30353f; padding: 4px 0; }
QMenu::item { padding: 5px 28px 5px 26px; color: #dadde3; }
QMenu::item:selected { background: #2b303b; color: #ffffff; }
QMenu::item:disabled { color: #585f6d; }
QMenu::separator { height: 1px; background: #30353f; margin: 4px 8px; }
QMenu::indicator { width: 8px; height: 8px; left: 9px; border-radius: 4px; }
QMenu::indicator:checked { background: #ffb454; }
QToolTip { background: #1b1e25; color: #dadde3; border: 1px solid #30353f; padding: 3px; }
QFrame[panel="true"] { background: #1b1e25; border: 1px solid #262b34; border-radius: 4px; }
QLabel[caption="true"] { color: #8d94a3; }
QLineEdit { background: #0f1115; color: #eceef2; border: 1px solid #30353f; border-radius: 3px;
  padding: 1px 4px; selection-background-color: #ffb454; selection-color: #000000; }
QLineEdit:focus { border-color: #ffb454; }
QLineEdit:disabled { color: #585f6d; border-color: #262b34; }
QComboBox { background: #0f1115; color: #dadde3; border: 1px solid #30353f; border-radius: 3px;
  padding: 1px 4px 1px 6px; combobox-popup: 0; }
QComboBox:focus, QComboBox:on { border-color: #ffb454; }
QComboBox::drop-down { width: 16px; border: none; }
QComboBox::down-arrow { image: url(:/lunavox/down.svg); width: 9px; height: 6px; }
QComboBox QAbstractItemView { background: #1b1e25; border: 1px solid #30353f; outline: none;
  selection-background-color: #3a404c; selection-color: #ffffff; }
QComboBox QAbstractItemView::item { height: 22px; padding: 0 6px; }
QCheckBox { color: #c3c8d1; spacing: 6px; background: transparent; outline: none; }
QCheckBox:focus { color: #ffffff; }
QCheckBox:disabled { color: #585f6d; }
QCheckBox::indicator { width: 11px; height: 11px; border: 1px solid #4a505d; border-radius: 3px;
  background: #0f1115; }
QCheckBox::indicator:hover, QCheckBox::indicator:focus { border-color: #ffb454; }
QCheckBox::indicator:checked { background: #ffb454; border-color: #ffb454;
  image: url(:/lunavox/tick.svg); }
QCheckBox::indicator:checked:focus { border-color: #ffffff; }
QPushButton { background: #262a34; color: #dadde3; border: 1px solid #393f4b; border-radius: 4px;
  padding: 5px 16px; min-width: 60px; }
QPushButton:hover { background: #2f3440; }
QPushButton:pressed { background: #1b1e25; }
QPushButton:focus { border-color: #ffb454; }
QPushButton:default { background: #ffb454; color: #17130c; border-color: #ffb454; }
QPushButton:default:hover { background: #ffc274; }
QPushButton:disabled { background: #1b1e25; color: #585f6d; border-color: #262b34; }
QScrollBar:vertical { background: #101217; width: 12px; margin: 0; border: none; }
QScrollBar:horizontal { background: #101217; height: 12px; margin: 0; border: none; }
QScrollBar::handle { background: #3a404c; border-radius: 3px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: #545c6b; }
QScrollBar::handle:pressed { background: #ffb454; }
QScrollBar::handle:disabled { background: #191c22; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox { messagebox-warning-icon: url(:/lunavox/warning.svg); }
QListWidget { outline: none; }
QListWidget::item { padding: 0 6px; border: none; background: transparent; color: #dadde3; }
QListWidget::item:selected { background: #ffb454; color: #000000; }
QGroupBox { border: 1px solid #30353f; border-radius: 4px; margin-top: 9px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: #8d94a3; }
)";

}  // namespace

QFont cell_font(int pixels) {
  static const QString kFamily = [] {
    for (const char* wanted : {"JetBrains Mono", "DejaVu Sans Mono"}) {
      if (QFontDatabase::hasFamily(QString::fromLatin1(wanted))) return QString::fromLatin1(wanted);
    }
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  }();
  QFont font(kFamily);
  font.setStyleHint(QFont::Monospace);
  font.setWeight(QFont::Medium);
  font.setPixelSize(std::max(pixels, 6));
  return font;
}

QFont caption_font(int step) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(scaled(kCaptionPixels + step));
  return font;
}

int scaled(int pixels) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const qreal dpi = screen != nullptr ? screen->logicalDotsPerInchY() : kDesignDpi;
  return static_cast<int>(std::lround(pixels * std::max(dpi / kDesignDpi, 1.0)));
}

QColor colour(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

void apply(QApplication& application) {
  register_pictures();
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette());
  QApplication::setFont(caption_font(1));
  application.setStyleSheet(QString::fromLatin1(kStyleSheet));
  // Every file dialog leaves a hundred kilobytes of small pictures in the cache, whose usual limit
  // is ten megabytes. The next dialog draws its own.
  QPixmapCache::setCacheLimit(kPictureCacheKb);
}

}  // namespace lunavox::theme
