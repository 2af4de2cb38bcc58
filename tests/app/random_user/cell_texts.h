#pragma once

#include "app/editor.h"
#include "user_action.h"

#include <map>
#include <optional>
#include <string>

namespace lunavox::test {

/// Compares the cells of `tracks` with the stores behind them. A few rules of the editor let a cell
/// read otherwise. Such cells are remembered with their texts from action to action, so that no
/// other cell and no other text may.
class CellTexts {
 public:
  /// To be told before an action.
  void remember(const Editor& editor, const Action& action);
  /// Another song has been begun: each of its cells is to agree.
  void forget() { odd_.clear(); }
  /// To be asked after the action.
  /// @return which cell reads what it may not, empty where none does
  std::string check(const Editor& editor);

 private:
  struct InGrid {
    bool operator()(CellPosition one, CellPosition other) const {
      return one.column != other.column ? one.column < other.column : one.row < other.row;
    }
  };
  using Texts = std::map<CellPosition, std::string, InGrid>;

  static Texts odd_cells(const Song& song);
  bool may_become_odd(const Song& song, CellPosition cell) const;

  Texts odd_;  ///< the cells that read otherwise

  // Of the action and what it found.
  Deed deed_ = Deed::kWait;
  CellPosition cursor_;
  bool typing_ = false;
  std::optional<CellRegion> block_;  ///< what is selected, where it is a block of note cells

  // Of the block copied last.
  int copied_rows_ = 0;
  int copied_columns_ = 0;
};

}  // namespace lunavox::test
