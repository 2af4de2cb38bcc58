#include "grid/ui/qt_dialogs.h"

#include "grid/ui/file_text.h"
#include "grid/ui/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPainter>
#include <QSettings>
#include <QTreeView>

namespace lunavox {
namespace {

constexpr int kIconSize = 36;
constexpr int kInputWidth = 300;  // leaves the longest title its room
constexpr QSize kFileDialogSize{760, 480};
constexpr int kPlaceIconSize = 16;
constexpr QColor kCriticalColour{0xf0, 0x5a, 0x4a};

QString shown(const std::string& text) {
  QString lines = file_text(text);
  return lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// The critical icon in the window's own style, where the toolkit would show its stock picture.
QPixmap critical_mark() {
  const int size = theme::scaled(kIconSize);
  QPixmap pixmap(QSize(size, size) * 2);
  pixmap.setDevicePixelRatio(2);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kCriticalColour, 2));
  painter.drawEllipse(QRectF(2, 2, size - 4, size - 4));
  QFont font = theme::caption_font(8);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QStringLiteral("!"));
  return pixmap;
}

/// The toolkit's own dialog opens too small to show what its columns hold.
void lay_out(QFileDialog& dialog) {
  dialog.resize(theme::scaled(kFileDialogSize.width()), theme::scaled(kFileDialogSize.height()));
  if (auto* places = dialog.findChild<QListView*>(QStringLiteral("sidebar"))) {
    places->setIconSize(QSize(kPlaceIconSize, kPlaceIconSize));
  }
  auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (files == nullptr) return;  // the desktop's own dialog
  files->header()->setStretchLastSection(false);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

Answer answer_of(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    case QMessageBox::Ok:
      return Answer::kOk;
    default:
      return Answer::kCancel;
  }
}

}  // namespace

QString file_filter(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
  const QString name = parts.first().section(QLatin1Char('('), 0, 0).trimmed();
  QString patterns = parts.last();
  return QStringLiteral("%1 (%2)").arg(name, patterns.replace(QLatin1Char(';'), QLatin1Char(' ')));
}

QString first_suffix(const std::string& filter) {
  const QString pattern =
      QString::fromStdString(filter).section(QLatin1Char('|'), -1).section(QLatin1Char(';'), 0, 0);
  return pattern.startsWith(QStringLiteral("*.")) ? pattern.mid(2) : QString();
}

QWidget* QtDialogs::asking() const {
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : window_.data();
}

Answer QtDialogs::message(const Message& message) {
  const QString notice = QStringLiteral("notices/") + QString::fromStdString(message.notice);
  if (!message.notice.empty() && QSettings().value(notice).toBool()) return Answer::kOk;
  QMessageBox box(asking());
  box.setObjectName(QStringLiteral("message"));
  box.setWindowTitle(message.title.empty() ? QStringLiteral("Lunavox")
                                           : QString::fromStdString(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(shown(message.text));
  const bool asks = message.buttons == Buttons::kYesNoCancel;
  if (message.icon == Icon::kCritical) {
    box.setIconPixmap(critical_mark());
    auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    // One line of text stands at the mark's middle.
    if (text != nullptr) text->setMinimumHeight(theme::scaled(kIconSize));
  }
  box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                              : QMessageBox::StandardButtons(QMessageBox::Ok));
  box.setDefaultButton(asks ? QMessageBox::Yes : QMessageBox::Ok);
  QCheckBox* seen = nullptr;
  if (!message.notice.empty()) {
    seen = new QCheckBox(QStringLiteral("Don't show again"), &box);
    seen->setObjectName(QStringLiteral("dontshow"));
    box.setCheckBox(seen);
  }
  const int button = box.exec();
  if (seen != nullptr && seen->isChecked()) QSettings().setValue(notice, true);
  return asks ? answer_of(button) : Answer::kOk;
}

std::string QtDialogs::input(const Question& question) {
  QInputDialog box(asking());
  box.setObjectName(QStringLiteral("input"));
  box.setWindowTitle(QString::fromStdString(question.title));
  box.setLabelText(QString::fromStdString(question.prompt));
  box.setTextValue(file_text(question.default_text));
  if (auto* text = box.findChild<QLineEdit*>()) {
    text->setMinimumWidth(theme::scaled(kInputWidth));
    text->selectAll();
  }
  return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : std::string();
}

QString QtDialogs::folder() const {
  return folder_ ? QString::fromStdString(folder_()) : QString();
}

std::string QtDialogs::chosen_file(QFileDialog& dialog) const {
  lay_out(dialog);
  const bool chosen = dialog.exec() == QDialog::Accepted;
  if (long_work_begins_) long_work_begins_();
  return chosen ? dialog.selectedFiles().value(0).toStdString() : std::string();
}

std::string QtDialogs::open_file(const FileQuestion& question) {
  QFileDialog dialog(window_, QString::fromStdString(question.title), folder(),
                     file_filter(question.filter));
  dialog.setObjectName(QStringLiteral("openfile"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosen_file(dialog);
}

std::string QtDialogs::save_file(const FileQuestion& question) {
  QFileDialog dialog(window_, QString::fromStdString(question.title), folder(),
                     file_filter(question.filter));
  dialog.setObjectName(QStringLiteral("savefile"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(first_suffix(question.filter));
  return chosen_file(dialog);
}

}  // namespace lunavox
