#include "files/ui/voice_table.h"

#include "files/ui/family_header.h"
#include "files/ui/voice_delegate.h"
#include "files/ui/voice_table_model.h"
#include "grid/ui/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace lunavox {
namespace {

constexpr int kRowHeight = 22;
// Wide enough for eight letters of the usual size.
constexpr int kFullColumn = 78;
constexpr int kForgetMs = 1500;

bool is_letter(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return modifiers == Qt::NoModifier && !event.text().isEmpty() && event.text().at(0).isPrint();
}

/// A character may take several bytes.
std::string without_last_character(const std::string& text) {
  QString characters = QString::fromStdString(text);
  characters.chop(!characters.isEmpty() && characters.back().isLowSurrogate() ? 2 : 1);
  return characters.toStdString();
}

/// A key that only changes what others mean, as Shift does for a capital letter.
bool is_modifier(const QKeyEvent& event) {
  const bool modifier = event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
  return modifier || event.key() == Qt::Key_AltGr;
}

}  // namespace

VoiceTable::VoiceTable(const VoiceBanks& banks, QWidget* parent)
    : QTableView(parent), banks_(banks) {
  setObjectName(QStringLiteral("instrulist"));
  setAccessibleName(QStringLiteral("Voices"));
  setModel(new VoiceTableModel(banks, this));
  setItemDelegate(new VoiceDelegate(this));
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  set_look();
  forget_.setSingleShot(true);
  forget_.setInterval(kForgetMs);
  connect(&forget_, &QTimer::timeout, this, [this] { end_search(); });
}

void VoiceTable::set_look() {
  setShowGrid(false);
  setWordWrap(false);
  viewport()->setAttribute(Qt::WA_Hover);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  auto* families = new FamilyHeader(this);
  families->setDefaultSectionSize(theme::scaled(kRowHeight));
  setVerticalHeader(families);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->hide();
  // The families' names move within their families: what is on the screen cannot just be shifted.
  connect(verticalScrollBar(), &QScrollBar::valueChanged, families->viewport(),
          qOverload<>(&QWidget::update));
}

VoiceCell VoiceTable::selected() const {
  return {currentIndex().row(), currentIndex().column()};
}

void VoiceTable::select(VoiceCell cell) {
  end_search();
  const QModelIndex index = model()->index(cell.program, cell.column);
  setCurrentIndex(index);
  scrollTo(index, PositionAtCenter);
}

void VoiceTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (current.isValid()) handlers_.changed();
}

void VoiceTable::press(VoiceCell cell) {
  release();
  held_ = true;
  handlers_.down(cell);
}

void VoiceTable::release() {
  if (!held_) return;
  held_ = false;
  handlers_.up();
}

void VoiceTable::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    if (!event->isAutoRepeat() && currentIndex().isValid()) press(selected());
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->ignore();  // for the dialog's OK
  } else if (!is_modifier(*event) && !take_search_key(*event)) {
    end_search();
    QTableView::keyPressEvent(event);
  }
}

void VoiceTable::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) release();
}

bool VoiceTable::take_search_key(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace && !sought_.empty()) {
    sought_ = without_last_character(sought_);
    search(SearchFrom::kHere);
  } else if (event.key() == Qt::Key_F3 && !sought_.empty()) {
    search(SearchFrom::kNext);
  } else if (is_letter(event)) {
    sought_ += event.text().toStdString();
    search(SearchFrom::kHere);
  } else {
    return false;
  }
  return true;
}

void VoiceTable::search(SearchFrom from) {
  forget_.start();
  const auto cell = find_voice(banks_, sought_, selected(), from);
  found_ = cell.has_value();
  if (cell) setCurrentIndex(model()->index(cell->program, cell->column));
  handlers_.changed();
}

void VoiceTable::end_search() {
  forget_.stop();
  if (sought_.empty()) return;
  sought_.clear();
  handlers_.changed();
}

void VoiceTable::mousePressEvent(QMouseEvent* event) {
  QTableView::mousePressEvent(event);
  const QModelIndex index = indexAt(event->pos());
  if (event->button() != Qt::LeftButton || !index.isValid()) return;
  end_search();
  press({index.row(), index.column()});
}

// The second press of two quick ones is a press too.
void VoiceTable::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

// The voice that is heard stays the selected one while the mouse strays with its button held.
void VoiceTable::mouseMoveEvent(QMouseEvent* event) {
  if (!held_) QTableView::mouseMoveEvent(event);
}

void VoiceTable::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) release();
}

void VoiceTable::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  release();
}

// On a small screen the names are set smaller rather than cut short.
void VoiceTable::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  const int column_width = viewport()->width() / VoiceBanks::kColumns;
  setFont(theme::caption_font(column_width < theme::scaled(kFullColumn) ? 0 : 1));
}

void VoiceTable::hideEvent(QHideEvent* event) {
  QTableView::hideEvent(event);
  release();
}

}  // namespace lunavox
