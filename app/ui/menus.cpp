#include "app/ui/menus.h"

#include "files/recent_files.h"
#include "grid/ui/follow.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QPoint>

namespace lunavox {
namespace {

QMenu& add_menu(QMenuBar& bar, const char* name, const char* caption) {
  QMenu* menu = bar.addMenu(QLatin1String(caption));
  menu->setObjectName(QLatin1String(name));
  return *menu;
}

QAction& add(QMenu& menu, const char* name, const char* caption, std::function<void()> command) {
  QAction* action = menu.addAction(QLatin1String(caption));
  action->setObjectName(QLatin1String(name));
  action->setEnabled(command != nullptr);
  QObject::connect(action, &QAction::triggered, &menu, [command = std::move(command)] {
    if (command) command();
  });
  return *action;
}

/// The menu `menuedit`. In the menu bar the tools for the selected notes stand in its submenu
/// `trait`; over the note grid, where the hand is on the mouse, behind a separator of its own.
class EditMenu : public QMenu {
 public:
  EditMenu(const MenuCommands& commands, QWidget* parent) : QMenu(parent) {
    setObjectName(QStringLiteral("menuedit"));
    setTitle(QStringLiteral("&Edit"));
    add(*this, "menucut", "Cut", commands.menucut);
    add(*this, "menucopy", "Copy", commands.menucopy);
    QAction& paste = add(*this, "menupaste", "Paste", commands.menupaste);
    separator_ = addSeparator();
    trait_ = addMenu(QStringLiteral("Selected notes"));
    trait_->setObjectName(QStringLiteral("trait"));
    add(*trait_, "menuvelval", "Velocity: fixed value", commands.menuvelval);
    add(*trait_, "menuvelper", "Velocity: percent", commands.menuvelper);
    add(*trait_, "menutrans", "Transpose", commands.menutrans);
    arrange();
    connect(this, &QMenu::aboutToShow, this,
            [this, &paste, can_paste = commands.can_paste,
             can_change_notes = commands.can_change_notes] {
              arrange();
              paste.setEnabled(can_paste());
              for (QAction* tool : trait_->actions()) tool->setEnabled(can_change_notes());
            });
  }

  /// Opens the menu at a point of the screen.
  void open_over_grid(QPoint at) {
    over_grid_ = true;
    popup(at);
    over_grid_ = false;
  }

 private:
  void arrange() {
    separator_->setVisible(over_grid_);
    trait_->menuAction()->setVisible(!over_grid_);
    for (QAction* tool : trait_->actions()) {
      if (over_grid_) {
        addAction(tool);
      } else {
        removeAction(tool);
      }
    }
  }

  QAction* separator_;
  QMenu* trait_;
  bool over_grid_ = false;
};

/// The menu `menuoutput` with its sixteen items; those without a device are hidden.
void build_output_menu(QMenuBar& bar, const MenuCommands& commands,
                       Property<std::vector<OutputItem>>& outputs) {
  QMenu& menu = add_menu(bar, "menuoutput", "&Output device");
  std::vector<QAction*> items;
  for (int index = 0; index < OutputChoice::kItems; ++index) {
    QAction& item = add(menu, "", "", [choose = commands.outputdev, index] { choose(index); });
    item.setObjectName(QStringLiteral("output%1").arg(index));
    item.setCheckable(true);
    items.push_back(&item);
  }
  const auto show = [items](const std::vector<OutputItem>& shown) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      const bool there = i < shown.size();
      items[i]->setVisible(there);
      if (!there) continue;
      QString caption = QString::fromStdString(shown[i].caption);
      items[i]->setText(caption.replace(QLatin1Char('&'), QStringLiteral("&&")));
      items[i]->setChecked(shown[i].checked);
    }
  };
  follow(outputs, &menu, show);
  // Choosing the checked item again unchecks it on the screen: it stays the chosen one.
  QObject::connect(&menu, &QMenu::triggered, &menu, [show, &outputs] { show(outputs.get()); });
  QObject::connect(&menu, &QMenu::aboutToShow, &menu, [list = commands.list_outputs] {
    if (list) list();
  });
}

/// The latest songs, after the file commands. Their folders show over them, for two songs may bear
/// one name.
void add_recent_songs(QMenu& menu, const MenuCommands& commands,
                      Property<std::vector<std::string>>& recent) {
  menu.setToolTipsVisible(true);
  QAction* separator = menu.addSeparator();
  std::vector<QAction*> items;
  for (std::size_t index = 0; index < RecentFiles::kMost; ++index) {
    QAction& item = add(menu, "", "", [&recent, open = commands.open_recent, index] {
      const auto& names = recent.get();
      if (index < names.size()) open(std::string(names[index]));
    });
    item.setObjectName(QStringLiteral("recent%1").arg(index));
    items.push_back(&item);
  }
  follow(recent, &menu, [separator, items](const std::vector<std::string>& names) {
    separator->setVisible(!names.empty());
    for (std::size_t i = 0; i < items.size(); ++i) {
      items[i]->setVisible(i < names.size());
      if (i >= names.size()) continue;
      const QString name = QString::fromStdString(names[i]);
      QString caption = QFileInfo(name).fileName();
      items[i]->setText(caption.replace(QLatin1Char('&'), QStringLiteral("&&")));
      items[i]->setToolTip(QStringLiteral("<p style='white-space:pre'>") + name.toHtmlEscaped());
    }
  });
}

}  // namespace

std::function<void(QPoint)> build_menus(QMenuBar& bar, const MenuCommands& commands,
                                        Property<std::vector<OutputItem>>& outputs,
                                        Property<std::vector<std::string>>& recent) {
  QMenu& file = add_menu(bar, "menufile", "&File");
  add(file, "menunew", "New", commands.menunew);
  add(file, "menuopen", "Open", commands.menuopen);
  add(file, "menusave", "Save", commands.menusave);
  add(file, "menusaveas", "Save as", commands.menusaveas);
  add(file, "menuexport", "Export as .mid", commands.menuexport);
  add(file, "menuquit", "Quit", commands.menuquit);
  add_recent_songs(file, commands, recent);
  auto* edit = new EditMenu(commands, &bar);
  bar.addMenu(edit);
  QMenu& input = add_menu(bar, "menuinput", "&Input device");
  add(input, "menuask", "Ask for input device next launch", commands.menuask);
  build_output_menu(bar, commands, outputs);
  QMenu& track = add_menu(bar, "menutrack", "&Track");
  add(track, "menuaddinstru", "add instrument track", commands.menuaddinstru);
  add(track, "menudeltrack", "del last track", commands.menudeltrack);
  QMenu& about = add_menu(bar, "menuabout", "&Help");
  add(about, "menuhelp", "All you have to know", commands.menuhelp);
  add(about, "menuauthor", "About Lunavox", commands.menuauthor);
  return [edit](QPoint at) { edit->open_over_grid(at); };
}

}  // namespace lunavox
