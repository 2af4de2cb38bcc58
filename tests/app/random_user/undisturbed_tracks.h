#pragma once

#include "app/editor.h"
#include "user_action.h"

#include <optional>
#include <string>

namespace lunavox::test {

/// Compares, around an action, the tracks that it has no business with: their notes, curves,
/// settings, voice and cells are what they were. Where the length is changed, that is so on the
/// lines that were there and still are.
class UndisturbedTracks {
 public:
  /// To be told before an action.
  void remember(const Editor& editor, const Action& action);
  /// To be asked after it.
  /// @return which track was changed, empty where none was
  std::string check(const Editor& editor) const;

 private:
  bool has_business_with(int track) const;

  std::optional<Song> before_;  ///< none where the action is one on the whole song
  Deed deed_ = Deed::kWait;
  int cursor_track_ = 0;
  bool at_cursor_ = false;  ///< whether the action may change the track of the cursor
  int clicked_ = 0;         ///< the track whose settings are clicked, 0 for none
};

}  // namespace lunavox::test
