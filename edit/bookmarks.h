#pragma once

#include "grid/button_pictures.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/property.h"
#include "grid/song.h"

namespace lunavox {

/// The list `bookmark` of named jump marks and its two picture buttons: `Image1` adds a bookmark at
/// the cursor, `Image2` deletes the selected one. Lives as long as the song.
class Bookmarks {
 public:
  Bookmarks(Song& song, Flags& flags, Dialogs& dialogs, ButtonPictures& pictures);

  // Mouse button pressed and released on the picture buttons.
  void image1_mousedown() { pictures_.addbook = "addbook2"; }
  void image1_mouseup();
  void image2_mousedown() { pictures_.delbook = "delbook2"; }
  void image2_mouseup();

  /// An entry of the list was chosen: the cursor goes to its line, which becomes the top one. A
  /// line past the end of the song stands for the last line.
  /// @param index 0..number of bookmarks - 1; others do nothing
  void bookmark_click(int index);

  /// The list's current entry, -1 for none: what its text shows.
  Property<int> selected{-1};

 private:
  void add();
  void remove_selected();
  int count() const { return static_cast<int>(song_.bookmarks.get().size()); }

  Song& song_;
  Flags& flags_;
  Dialogs& dialogs_;
  ButtonPictures& pictures_;
};

}  // namespace lunavox
