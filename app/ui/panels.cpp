#include "app/ui/panels.h"

#include "edit/bookmarks.h"
#include "grid/ui/file_text.h"
#include "grid/ui/follow.h"
#include "grid/ui/number_field_box.h"
#include "grid/ui/picture_button.h"
#include "grid/ui/skin_pictures.h"
#include "grid/ui/theme.h"
#include "midi/recorder.h"
#include "midi/transport.h"
#include "midi/xg_effects.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyledItemDelegate>

namespace lunavox {
namespace {

constexpr QSize kTransportButton{40, 32};
constexpr QSize kBookmarkButton{28, 28};

/// A list that gives the keys back to the note grid once an entry is chosen, and on Escape.
class PanelList : public QComboBox {
 public:
  PanelList(std::function<void()> done, QWidget* parent)
      : QComboBox(parent), done_(std::move(done)) {}

  void hidePopup() override {
    const bool was_open = view()->isVisible();
    QComboBox::hidePopup();
    if (was_open) done_();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape) return done_();
    QComboBox::keyPressEvent(event);
  }

 private:
  std::function<void()> done_;
};

QComboBox* make_list(const char* name, int width, const std::function<void()>& done, Panel& panel) {
  auto* list = new PanelList(done, &panel);
  list->setObjectName(QLatin1String(name));
  list->setAccessibleName(QLatin1String(name));
  list->setFont(theme::caption_font());
  list->setFixedSize(theme::scaled(width), theme::scaled(24));
  list->setMaxVisibleItems(24);
  list->setItemDelegate(new QStyledItemDelegate(list));  // the default one knows no style sheet
  return list;
}

}  // namespace

ControlsPanel::ControlsPanel(SkinPictures& skin, ButtonPictures& pictures, Transport& transport,
                             Recorder& recorder)
    : Panel(QStringLiteral("Frame14"), QStringLiteral("Controls")) {
  auto* play = new PictureButton(QStringLiteral("playnotes"), skin, pictures.playnotes,
                                 {[&transport] { transport.playnotes_mousedown(); },
                                  [&transport] { transport.playnotes_mouseup(); }},
                                 kTransportButton);
  play->setToolTip(QStringLiteral("Play (Ctrl key) and stop"));
  auto* record = new PictureButton(QStringLiteral("recordnotes"), skin, pictures.recordnotes,
                                   {[&recorder] { recorder.recordnotes_mousedown(); },
                                    [&recorder] { recorder.recordnotes_click(); }},
                                   kTransportButton);
  record->setToolTip(QStringLiteral("Record (space bar)"));
  row().addWidget(play);
  row().addWidget(record);
}

DurationPanel::DurationPanel(Property<std::string>& timemin)
    : Panel(QStringLiteral("Frame6"), QStringLiteral("Duration")) {
  auto* label = new QLabel(this);
  label->setObjectName(QStringLiteral("timemin"));
  label->setFont(theme::cell_font(theme::scaled(16)));
  label->setMinimumWidth(theme::scaled(54));
  row().addWidget(label);
  follow(timemin, label,
         [label](const std::string& text) { label->setText(QString::fromStdString(text)); });
}

NumberPanel::NumberPanel(const Field& field, NumberField& number,
                         std::function<bool(const std::string&)> enter,
                         const std::function<void()>& done)
    : Panel(QLatin1String(field.frame), QLatin1String(field.caption)) {
  auto* box =
      new NumberFieldBox(QLatin1String(field.name), number, field.digits, std::move(enter), this);
  box->on_done(done);
  setToolTip(QStringLiteral("%1 (%2-%3)")
                 .arg(QLatin1String(field.purpose))
                 .arg(number.minimum())
                 .arg(number.maximum()));
  row().addWidget(box);
  row().addStretch();
}

XgPanel::XgPanel(Song& song, XgEffects& effects, const std::function<void()>& done)
    : Panel(QStringLiteral("Frame11"), QStringLiteral("XG effects")) {
  struct List {
    const char* name;
    XgList list;
    Property<int>& choice;
    void (XgEffects::*click)(int);
  };
  const List lists[] = {
      {"reverb", XgList::kReverb, song.reverb, &XgEffects::reverb_click},
      {"chorus", XgList::kChorus, song.chorus, &XgEffects::chorus_click},
      {"variation", XgList::kVariation, song.variation, &XgEffects::variation_click},
  };
  for (const List& list : lists) {
    QComboBox* box = make_list(list.name, 104, done, *this);
    for (const std::string& name : xg_names(list.list)) box->addItem(QString::fromStdString(name));
    follow(list.choice, box, [box](int item) { box->setCurrentIndex(item); });
    connect(box, &QComboBox::activated, this, [&effects, done, click = list.click](int item) {
      (effects.*click)(item);
      done();
    });
    row().addWidget(box);
  }
}

VoicePanel::VoicePanel(Property<std::string>& voice_name)
    : Panel(QStringLiteral("Frame12"), QStringLiteral("Voice")) {
  auto* label = new QLabel(this);
  label->setObjectName(QStringLiteral("voicename"));
  label->setTextFormat(Qt::PlainText);
  label->setFont(theme::cell_font(theme::scaled(13)));
  label->setFixedWidth(theme::scaled(84));
  row().addWidget(label);
  follow(voice_name, label, [label](const std::string& name) { label->setText(file_text(name)); });
}

BookmarkPanel::BookmarkPanel(SkinPictures& skin, ButtonPictures& pictures, Song& song,
                             Bookmarks& bookmarks, const std::function<void()>& done)
    : Panel(QStringLiteral("Frame4"), QStringLiteral("Bookmarks")) {
  QComboBox* list = make_list("bookmark", 116, done, *this);
  auto* add = new PictureButton(QStringLiteral("Image1"), skin, pictures.addbook,
                                {[&bookmarks] { bookmarks.image1_mousedown(); },
                                 [&bookmarks] { bookmarks.image1_mouseup(); }},
                                kBookmarkButton);
  add->setToolTip(QStringLiteral("Add a bookmark at the cursor's line"));
  auto* remove = new PictureButton(QStringLiteral("Image2"), skin, pictures.delbook,
                                   {[&bookmarks] { bookmarks.image2_mousedown(); },
                                    [&bookmarks] { bookmarks.image2_mouseup(); }},
                                   kBookmarkButton);
  remove->setToolTip(QStringLiteral("Delete the selected bookmark"));
  row().addWidget(list);
  row().addWidget(add);
  row().addWidget(remove);
  follow(song.bookmarks, list, [list, &bookmarks](const std::vector<Bookmark>& marks) {
    list->clear();
    for (const Bookmark& mark : marks) list->addItem(file_text(mark.name));
    list->setCurrentIndex(bookmarks.selected);
  });
  follow(bookmarks.selected, list, [list](int index) { list->setCurrentIndex(index); });
  connect(list, &QComboBox::activated, this, [&bookmarks, done](int index) {
    bookmarks.bookmark_click(index);
    done();
  });
}

constexpr MiscPanel::CheckBox MiscPanel::kRealtime{
    "realtime", "Realtime record", "Record in time with the song, after a count-in", 0, 0};
constexpr MiscPanel::CheckBox MiscPanel::kBegin{
    "begin", "Play from beginning", "Start at the first line, wherever the cursor is", 0, 1};
constexpr MiscPanel::CheckBox MiscPanel::kVelocity{
    "velocity", "Rec velocity", "Keep the velocity that notes are played with", 1, 0};
constexpr MiscPanel::CheckBox MiscPanel::kCurs{
    "curs", "Follow the cursor", "Keep the playing line at the top of the grid", 1, 1};
constexpr MiscPanel::CheckBox MiscPanel::kArea{
    "area", "Extended area", "Hide the settings and give their room to the notes", 0, 2};

MiscPanel::MiscPanel(Song& song, RecordOptions& options, Property<bool>& area,
                     const Handlers& handlers)
    : Panel(QStringLiteral("Frame10"), QStringLiteral("Misc")) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(theme::scaled(12));
  grid->setVerticalSpacing(theme::scaled(2));
  QCheckBox* realtime = add_option(*grid, kRealtime, options.realtime);
  connect(realtime, &QCheckBox::clicked, this, [shown = handlers.realtime_checked](bool checked) {
    if (checked) shown();
  });
  add_option(*grid, kBegin, options.begin);
  add_option(*grid, kVelocity, options.velocity);
  add_option(*grid, kCurs, options.curs);
  QCheckBox* extended = add_check_box(*grid, kArea);
  follow(area, extended, [extended](bool checked) { extended->setChecked(checked); });
  connect(extended, &QCheckBox::clicked, this, handlers.area);

  auto* strength =
      new NumberFieldBox(QStringLiteral("strength"), song.strength, 3, handlers.strength, this);
  strength->on_done(handlers.done);
  strength->setToolTip(QStringLiteral("Velocity of entered notes (1-127)"));
  strength->setMaximumHeight(theme::scaled(20));
  follow(options.velocity, strength, [strength, &options](bool /*played*/) {
    strength->set_enabled(options.strength_enabled());
  });
  auto* velocity_row = new QHBoxLayout;
  velocity_row->setSpacing(theme::scaled(6));
  velocity_row->addWidget(make_caption(QStringLiteral("Velocity"), this));
  velocity_row->addWidget(strength);
  velocity_row->addStretch();
  grid->addLayout(velocity_row, 1, 2);
  row().addLayout(grid);
}

QCheckBox* MiscPanel::add_check_box(QGridLayout& grid, const CheckBox& plan) {
  auto* box = new QCheckBox(QLatin1String(plan.caption), this);
  box->setObjectName(QLatin1String(plan.name));
  box->setToolTip(QLatin1String(plan.tool_tip));
  box->setFont(theme::caption_font());
  box->setFocusPolicy(Qt::TabFocus);
  grid.addWidget(box, plan.row, plan.column);
  return box;
}

QCheckBox* MiscPanel::add_option(QGridLayout& grid, const CheckBox& plan, Property<bool>& option) {
  QCheckBox* box = add_check_box(grid, plan);
  follow(option, box, [box](bool checked) { box->setChecked(checked); });
  connect(box, &QCheckBox::toggled, this, [&option](bool checked) { option = checked; });
  return box;
}

}  // namespace lunavox
