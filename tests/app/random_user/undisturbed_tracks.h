#pragma once

#include "app/editor.h"
#include "user_action.h"

#include <optional>
#include <string>

namespace lunavox::test {

/// Compares, around an action, the tracks that it has no business with: their notes, curves,
/// settings, voice and cells are what they were.
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
  int at_cursor_ = 0;           ///< the track of the cursor where the action may change it, else 0
  int pasted_over_ = 0;         ///< the track that a pasted block may run over into, 0 for none
  int clicked_ = 0;             ///< the track whose settings are clicked, 0 for none
};

}  // namespace lunavox::test
