#pragma once

#include "app/editor.h"
#include "user_action.h"

#include <set>
#include <string>
#include <utility>

namespace lunavox::test {

/// What holds in an editor whatever its user has done. Cells that may rightly read otherwise than
/// what stands behind them are remembered from action to action, so that no other may.
class EditorInvariants {
 public:
  /// @param last the action just done
  /// @return what is broken, empty where nothing is
  std::string check(const Editor& editor, const Action& last);

 private:
  using Cells = std::set<std::pair<int, int>>;  ///< row and column of `tracks`

  void check_shape(const Editor& editor);
  void check_state(const Editor& editor);
  void check_line_numbers(const Song& song);
  void check_curves(const Song& song);
  void check_settings(const Song& song, int track);
  void check_cells(const Editor& editor, const Action& last);
  Cells odd_cells(const Song& song) const;
  bool may_become_odd(const Editor& editor, CellPosition cell, const Action& last) const;
  void expect(bool held, const std::string& what);

  Cells odd_;
  std::string broken_;
};

}  // namespace lunavox::test
