#include "edit/bookmarks.h"

#include "edit/clipboard.h"
#include "tests/support/song_fixture.h"

#include <gmock/gmock.h>

namespace lunavox::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BookmarksTest : public SongFixture {
 protected:
  void add(const std::string& name, int row) {
    song.tracks.set_row(row);
    dialogs.inputs = {name};
    bookmarks.image1_mouseup();
  }
  const std::vector<Bookmark>& list() const { return song.bookmarks.get(); }

  ButtonPictures pictures;
  Bookmarks bookmarks{song, flags, dialogs, pictures};
};

TEST_F(BookmarksTest, APressedButtonShowsItsPressedPictureUntilItIsReleased) {
  bookmarks.image1_mousedown();
  EXPECT_EQ(pictures.addbook.get(), "addbook2");
  bookmarks.image1_mouseup();
  EXPECT_EQ(pictures.addbook.get(), "addbook1");
  bookmarks.image2_mousedown();
  EXPECT_EQ(pictures.delbook.get(), "delbook2");
  bookmarks.image2_mouseup();
  EXPECT_EQ(pictures.delbook.get(), "delbook1");
}

/// Dialogs that look at the two buttons while their box stands.
class WatchfulDialogs : public ScriptedDialogs {
 public:
  explicit WatchfulDialogs(const ButtonPictures& pictures) : pictures_(pictures) {}
  std::string input(const Question& question) override {
    seen.push_back(pictures_.addbook);
    return ScriptedDialogs::input(question);
  }
  Answer message(const Message& message) override {
    seen.push_back(pictures_.delbook);
    return ScriptedDialogs::message(message);
  }
  std::vector<std::string> seen;

 private:
  const ButtonPictures& pictures_;
};

TEST_F(BookmarksTest, AReleasedButtonShowsItsNormalPictureBeforeAnythingIsAskedOrTold) {
  WatchfulDialogs watchful(pictures);
  Bookmarks marks(song, flags, watchful, pictures);
  watchful.inputs = {"a"};
  marks.image1_mousedown();
  marks.image1_mouseup();
  marks.image2_mousedown();
  marks.image2_mouseup();
  EXPECT_THAT(watchful.seen, ElementsAre("addbook1", "delbook1"));
}

TEST_F(BookmarksTest, ABookmarkIsAddedAtTheCursorsLine) {
  add("chorus", 7);
  EXPECT_THAT(list(), ElementsAre(Bookmark{"chorus", 7}));
  EXPECT_TRUE(flags.modified);
  EXPECT_EQ(bookmarks.selected.get(), -1);
}

TEST_F(BookmarksTest, TheNameOfferedCountsTheBookmarks) {
  add("a", 1);
  add("b", 2);
  dialogs.questions.clear();
  add("c", 3);
  EXPECT_THAT(dialogs.questions, ElementsAre(Question{"Enter a name for this bookmark",
                                                      "Add a bookmark", "bookmark 3"}));
}

TEST_F(BookmarksTest, CancellingTheNameIsAnsweredWithAMessage) {
  add("", 3);
  EXPECT_THAT(dialogs.messages,
              ElementsAre(error_box("You must enter a valide bookmark name", "error")));
  EXPECT_THAT(list(), IsEmpty());
  EXPECT_FALSE(flags.modified);
}

TEST_F(BookmarksTest, TwoBookmarksMayShareNameAndLine) {
  add("same", 3);
  add("same", 3);
  EXPECT_THAT(list(), ElementsAre(Bookmark{"same", 3}, Bookmark{"same", 3}));
}

TEST_F(BookmarksTest, TheSelectedBookmarkIsDeleted) {
  add("a", 1);
  add("b", 2);
  add("c", 3);
  bookmarks.bookmark_click(1);
  flags.modified = false;
  bookmarks.image2_mouseup();
  EXPECT_THAT(list(), ElementsAre(Bookmark{"a", 1}, Bookmark{"c", 3}));
  EXPECT_TRUE(flags.modified);
  EXPECT_EQ(bookmarks.selected.get(), -1);
}

TEST_F(BookmarksTest, DeletingWithoutASelectionIsAnsweredWithAMessage) {
  add("a", 1);
  flags.modified = false;
  bookmarks.image2_mouseup();
  EXPECT_THAT(dialogs.messages,
              ElementsAre(error_box("You must first select a bookmark", "Error")));
  EXPECT_EQ(list().size(), 1U);
  EXPECT_FALSE(flags.modified);
}

TEST_F(BookmarksTest, ANamelessBookmarkOfAFileReadsLikeNoSelection) {
  song.bookmarks = std::vector<Bookmark>{{"", 4}};
  bookmarks.bookmark_click(0);
  bookmarks.image2_mouseup();
  EXPECT_THAT(dialogs.messages,
              ElementsAre(error_box("You must first select a bookmark", "Error")));
  EXPECT_EQ(list().size(), 1U);
}

TEST_F(BookmarksTest, ChoosingABookmarkGoesToItsLineAndPutsItAtTheTop) {
  add("a", 7);
  song.tracks.set_cursor(2, 5);
  flags.modified = false;
  bookmarks.bookmark_click(0);
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{7, 5}));
  EXPECT_EQ(song.tracks.top_row(), 7);
  EXPECT_EQ(bookmarks.selected.get(), 0);
  EXPECT_FALSE(flags.modified);
}

TEST_F(BookmarksTest, ABookmarkPastTheEndGoesToTheLastLineAndKeepsItsOwn) {
  add("end", 16);
  resize(8);
  bookmarks.bookmark_click(0);
  EXPECT_EQ(song.tracks.row(), 8);
  EXPECT_EQ(song.tracks.top_row(), 8);
  EXPECT_EQ(list().front().row, 16);
}

TEST_F(BookmarksTest, BookmarksKeepTheirLinesWhateverBecomesOfTheLines) {
  add("verse", 7);
  add("coda", 16);
  song.write_entry(1, 2, 7, "643C99");
  song.show_entry(1, 2, 7);
  song.tracks.select({5, 1}, {9, 8});
  Clipboard clipboard(song, flags, dialogs);
  clipboard.cutproc();
  song.tracks.set_cursor(1, 1);
  clipboard.pasteproc();
  resize(12);
  resize(32);
  EXPECT_THAT(list(), ElementsAre(Bookmark{"verse", 7}, Bookmark{"coda", 16}));
  bookmarks.bookmark_click(1);
  EXPECT_EQ(song.tracks.row(), 16);
}

TEST_F(BookmarksTest, ABookmarkBeforeTheFirstLineOfAFileGoesToTheFirst) {
  song.bookmarks = std::vector<Bookmark>{{"zero", 0}, {"less", -5}};
  song.tracks.set_row(5);
  bookmarks.bookmark_click(0);
  EXPECT_EQ(song.tracks.row(), 1);
  bookmarks.bookmark_click(1);
  EXPECT_EQ(song.tracks.row(), 1);
}

TEST_F(BookmarksTest, ChoosingNothingDoesNothing) {
  add("a", 7);
  song.tracks.set_row(2);
  bookmarks.bookmark_click(-1);
  bookmarks.bookmark_click(1);
  EXPECT_EQ(song.tracks.row(), 2);
  EXPECT_EQ(bookmarks.selected.get(), -1);
}

TEST_F(BookmarksTest, AnEmptiedListHasNoSelection) {
  add("a", 7);
  bookmarks.bookmark_click(0);
  song.bookmarks = std::vector<Bookmark>{};
  EXPECT_EQ(bookmarks.selected.get(), -1);
}

}  // namespace
}  // namespace lunavox::test
