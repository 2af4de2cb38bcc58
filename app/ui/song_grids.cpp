#include "app/ui/song_grids.h"

#include "app/ui/song_views.h"
#include "grid/ui/follow.h"
#include "grid/ui/theme.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace lunavox {
namespace {

// Measures at 96 dots an inch. The settings' twelve rows make up the height that the extended area
// gains.
constexpr int kLabelWidth = 78;
constexpr int kNarrowestTrack = 268;
constexpr int kFewestLines = 3;
constexpr int kBarThickness = 12;
constexpr int kChannelsHeight = 21;
constexpr GridView::Heights kSettingHeights = {16, 15, 12, 11};
constexpr GridView::Heights kNoteHeights = {18, 17, 15, 11};
static_assert(kSettingHeights.header + kLastEffect * kSettingHeights.row == Screen::kAreaHeight);

GridView::Heights scaled(const GridView::Heights& heights) {
  return {theme::scaled(heights.row), theme::scaled(heights.header), theme::scaled(heights.text),
          theme::scaled(heights.header_text)};
}

}  // namespace

SongGrids::SongGrids(const Model& model, NoteKeyboard& keyboard,
                     std::function<void(int column, int row)> effects_click)
    : model_(model),
      channels_(new ChannelsView(model.song)),
      effects_(new EffectsView(model.song, std::move(effects_click))),
      tracks_(new TracksView(model.song, model.flags, model.curs, keyboard)),
      defilchan_(new QScrollBar(Qt::Horizontal)) {
  const GridView::Heights header = {kChannelsHeight, 0, 13, 11};
  channels_->set_heights(scaled(header));
  channels_->setFixedHeight(theme::scaled(kChannelsHeight));
  effects_->set_heights(scaled(kSettingHeights));
  effects_->setFixedHeight(theme::scaled(kSettingHeights.header) +
                           kLastEffect * theme::scaled(kSettingHeights.row));
  tracks_->set_heights(scaled(kNoteHeights));
  tracks_->setMinimumHeight(theme::scaled(kNoteHeights.header + kFewestLines * kNoteHeights.row));
  tracks_->verticalScrollBar()->setFixedWidth(theme::scaled(kBarThickness));
  defilchan_->setObjectName(QStringLiteral("defilchan"));
  defilchan_->setFixedHeight(theme::scaled(kBarThickness));
  defilchan_->setFocusPolicy(Qt::NoFocus);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (QWidget* view : {static_cast<QWidget*>(channels_), static_cast<QWidget*>(effects_)}) {
    auto* row = new QHBoxLayout;
    row->addWidget(view);
    row->addSpacing(theme::scaled(kBarThickness));
    column->addLayout(row);
  }
  column->addWidget(tracks_, 1);
  auto* below = new QHBoxLayout;
  below->addSpacing(theme::scaled(kLabelWidth));
  below->addWidget(defilchan_);
  below->addSpacing(theme::scaled(kBarThickness));
  column->addLayout(below);

  follow(model_.screen.area, this, [this](bool extended) { effects_->setVisible(!extended); });
  follow(model_.screen.defilchan_max, this, [this](int) { fit_scroll_bar(); });
  follow(model_.screen.defilchan, this, [this](int value) { defilchan_->setValue(value); });
  connect(defilchan_, &QScrollBar::valueChanged, this,
          [this](int value) { model_.screen.defilchan = value; });
  model_.song.tracks.add_observer(this);
}

SongGrids::~SongGrids() {
  model_.song.tracks.remove_observer(this);
}

void SongGrids::cursor_moved(CellPosition /*from*/) {
  const int track = track_of_column(model_.song.tracks.column());
  const int first = model_.screen.defilchan;
  if (track < first) model_.screen.defilchan = track;
  const int last = first + tracks_shown() - 1;
  if (track > last) model_.screen.defilchan = first + track - last;
}

int SongGrids::tracks_shown() const {
  const int room = width() - theme::scaled(kLabelWidth + kBarThickness);
  const int across = std::max(model_.screen.tracks_across(), 1);
  return std::clamp(room / theme::scaled(kNarrowestTrack), 1, across);
}

void SongGrids::fit_scroll_bar() {
  // A window narrower than the screen shows fewer tracks than the screen would.
  const int hidden = model_.song.track_count - tracks_shown();
  const int maximum = std::max(model_.screen.defilchan_max.get(), hidden + 1);
  defilchan_->setRange(1, std::max(maximum, 1));
  defilchan_->setEnabled(maximum > 1);
  defilchan_->setPageStep(tracks_shown());
}

void SongGrids::lay_out() {
  const int label = theme::scaled(kLabelWidth);
  const int track = (width() - label - theme::scaled(kBarThickness)) / tracks_shown();
  for (GridView* view : {static_cast<GridView*>(channels_), static_cast<GridView*>(effects_),
                         static_cast<GridView*>(tracks_)}) {
    view->set_widths(label, track);
  }
  fit_scroll_bar();
}

void SongGrids::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  lay_out();
}

}  // namespace lunavox
