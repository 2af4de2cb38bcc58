#pragma once

#include "app/editor.h"
#include "cell_texts.h"
#include "user_action.h"

#include <string>

namespace lunavox::test {

/// What holds in an editor whatever its user has done.
class EditorInvariants {
 public:
  /// To be told before an action.
  void remember(const Editor& editor, const Action& action) { cells_.remember(editor, action); }
  /// Another song has been begun.
  void forget() { cells_.forget(); }
  /// @return what is broken, empty where nothing is
  std::string check(const Editor& editor);

 private:
  CellTexts cells_;
};

}  // namespace lunavox::test
