#include "edit/bookmarks.h"

#include "grid/runtime_numbers.h"

#include <algorithm>

namespace lunavox {

Bookmarks::Bookmarks(Song& song, Flags& flags, Dialogs& dialogs, ButtonPictures& pictures)
    : song_(song), flags_(flags), dialogs_(dialogs), pictures_(pictures) {
  song_.bookmarks.on_change([this](const std::vector<Bookmark>&) {
    if (selected >= count()) selected = -1;
  });
}

void Bookmarks::image1_mouseup() {
  pictures_.addbook = "addbook1";
  add();
}

void Bookmarks::image2_mouseup() {
  pictures_.delbook = "delbook1";
  remove_selected();
}

void Bookmarks::add() {
  const std::string name = dialogs_.input(
      {"Enter a name for this bookmark", "Add a bookmark", "bookmark" + print_number(count() + 1)});
  if (name.empty()) {
    dialogs_.error("You must enter a valide bookmark name", "error");
    return;
  }
  flags_.modified = true;
  song_.bookmarks.update([&](std::vector<Bookmark>& bookmarks) {
    bookmarks.push_back({name, song_.tracks.row()});
  });
}

// An entry without a name, which only a file can bring, reads like no selection at all.
void Bookmarks::remove_selected() {
  const int index = selected;
  if (index < 0 || song_.bookmarks.get()[static_cast<std::size_t>(index)].name.empty()) {
    dialogs_.error("You must first select a bookmark", "Error");
    return;
  }
  selected = -1;
  song_.bookmarks.update(
      [&](std::vector<Bookmark>& bookmarks) { bookmarks.erase(bookmarks.begin() + index); });
  flags_.modified = true;
}

void Bookmarks::bookmark_click(int index) {
  if (index < 0 || index >= count()) return;
  selected = index;
  const std::int32_t marked = song_.bookmarks.get()[static_cast<std::size_t>(index)].row;
  const int row = std::clamp<int>(marked, 1, song_.last_row());
  song_.tracks.set_row(row);
  song_.tracks.set_top_row(row);
}

}  // namespace lunavox
