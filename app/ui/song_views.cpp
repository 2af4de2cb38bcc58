#include "app/ui/song_views.h"

#include "edit/ui/note_keyboard.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace lunavox {

TracksView::TracksView(Song& song, const Flags& flags, const Property<bool>& curs,
                       NoteKeyboard& keyboard)
    : GridView(song.tracks, HeaderRow::kHeader, kColumnsPerTrack),
      flags_(flags),
      curs_(curs),
      keyboard_(keyboard) {
  setObjectName(QStringLiteral("tracks"));
  setAccessibleName(QStringLiteral("tracks"));
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  for (QWidget* part : fixed_parts()) part->installEventFilter(this);
}

void TracksView::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (event->modifiers() & (Qt::AltModifier | Qt::MetaModifier)) {
    event->ignore();  // the menus'
    return;
  }
  keyboard_.key_down(*event);
  navigate(*event);
}

void TracksView::keyReleaseEvent(QKeyEvent* event) {
  event->accept();
  keyboard_.key_up(*event);
}

void TracksView::mouseReleaseEvent(QMouseEvent* event) {
  GridView::mouseReleaseEvent(event);
  popup_for(*event);
}

// The captions and the line numbers are the grid too.
bool TracksView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) popup_for(*static_cast<QMouseEvent*>(event));
  return GridView::eventFilter(watched, event);
}

void TracksView::popup_for(const QMouseEvent& released) {
  if (released.button() == Qt::RightButton && popup_) popup_(released.globalPosition().toPoint());
}

// The menu key opens the menu at the cursor; the mouse's button has opened it by then.
void TracksView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  const QPoint at = cell_rect(grid().cursor()).center();
  if (by_key && popup_) popup_(viewport()->mapToGlobal(at));
}

void TracksView::focusOutEvent(QFocusEvent* event) {
  GridView::focusOutEvent(event);
  keyboard_.keys_lost();
}

bool TracksView::focusNextPrevChild(bool next) {
  return QWidget::focusNextPrevChild(next);
}

// While a song plays the cursor is the play position; who does not follow it looks elsewhere.
bool TracksView::follows_cursor() const {
  return !flags_.playing || curs_;
}

bool TracksView::is_beat_line(int row) const {
  return grid().cell(row, 0).background == kBeat;
}

EffectsView::EffectsView(Song& song, std::function<void(int column, int row)> click)
    : GridView(song.effects, HeaderRow::kHeader, kSettingsPerTrack), click_(std::move(click)) {
  setObjectName(QStringLiteral("effects"));
  setAccessibleName(QStringLiteral("effects"));
  // A click leaves the keys with the notes.
  setFocusPolicy(Qt::TabFocus);
  refresh_cursor();
}

void EffectsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Space) {
    event->accept();
    cell_pressed();
    return;
  }
  GridView::keyPressEvent(event);
}

// The cursor stands outside the settings until one is chosen. Whoever comes by the Tab key is to
// see where the keys have gone.
void EffectsView::focusInEvent(QFocusEvent* event) {
  if (grid().row() < 1 || grid().column() < 1) grid().set_cursor(1, 1);
  GridView::focusInEvent(event);
}

void EffectsView::cell_pressed() {
  click_(grid().column(), grid().row());
}

bool EffectsView::is_switch_column(int column) const {
  return column % kSettingsPerTrack != static_cast<int>(Setting::kStartValue);
}

ChannelsView::ChannelsView(Song& song) : GridView(song.channels, HeaderRow::kNone, 1) {
  setObjectName(QStringLiteral("channels"));
  setAccessibleName(QStringLiteral("channels"));
  setFocusPolicy(Qt::NoFocus);
  refresh_cursor();
}

void ChannelsView::mousePressEvent(QMouseEvent* event) {
  event->accept();  // a header: there is nothing to choose
}

}  // namespace lunavox
