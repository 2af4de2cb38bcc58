#pragma once

#include "grid/property.h"
#include "midi/output_choice.h"

#include <functional>
#include <string>
#include <vector>

class QMenuBar;
class QPoint;

namespace lunavox {

/// What the menu commands do.
struct MenuCommands {
  std::function<void()> menunew;
  std::function<void()> menuopen;
  std::function<void()> menusave;
  std::function<void()> menusaveas;
  std::function<void()> menuexport;
  std::function<void()> menuquit;
  std::function<void(const std::string& name)> open_recent;
  std::function<void()> menucut;
  std::function<void()> menucopy;
  std::function<void()> menupaste;
  std::function<void()> menuvelval;
  std::function<void()> menuvelper;
  std::function<void()> menutrans;
  std::function<void()> menuask;
  std::function<void(int index)> outputdev;
  std::function<void()> menuaddinstru;
  std::function<void()> menudeltrack;
  std::function<void()> menuhelp;
  std::function<void()> menuauthor;

  // Whether the block commands have something to work on.
  std::function<bool()> can_paste;
  std::function<bool()> can_change_notes;
  std::function<void()> list_outputs;  ///< lists the machine's outputs afresh
};

/// Fills the menu bar.
/// @param recent  names of the songs that were last opened or saved, the latest first
/// @return opens the menu `menuedit` over the note grid, at a point of the screen
std::function<void(QPoint)> build_menus(QMenuBar& bar, const MenuCommands& commands,
                                        Property<std::vector<OutputItem>>& outputs,
                                        Property<std::vector<std::string>>& recent);

}  // namespace lunavox
