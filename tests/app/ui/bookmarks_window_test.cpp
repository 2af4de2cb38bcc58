#include "grid/ui/grid_view.h"
#include "grid/ui/picture_button.h"
#include "window_bench.h"

#include <QApplication>
#include <QComboBox>
#include <QScrollBar>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The bookmarks' list and its two buttons under the mouse. The list passes over the release of a
/// button within a double click's time of its opening, so that time is made nothing.
struct BookmarksWindowTest : testing::Test {
  BookmarksWindowTest() { QApplication::setDoubleClickInterval(0); }
  ~BookmarksWindowTest() override { QApplication::setDoubleClickInterval(interval); }

  PictureButton& button(const char* name) {
    return static_cast<PictureButton&>(bench.find<QAbstractButton>(name));
  }

  void press(const char* name) {
    QTest::mouseClick(&button(name), Qt::LeftButton);
    WindowBench::settle();
  }

  void add(const std::string& name, int row) {
    editor.song.tracks.set_cursor(row, 2);
    bench.dialogs.inputs = {name};
    press("Image1");
  }

  /// Opens the list and presses an entry of it.
  void choose(int entry) {
    QTest::mouseClick(&list, Qt::LeftButton);
    WindowBench::settle();
    const QModelIndex index = list.model()->index(entry, 0);
    QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {},
                      list.view()->visualRect(index).center());
    WindowBench::settle();
  }

  std::vector<std::string> entries() const {
    std::vector<std::string> found;
    for (int i = 0; i < list.count(); ++i) found.push_back(list.itemText(i).toStdString());
    return found;
  }

  WindowBench bench;
  Editor& editor = bench.editor;
  QComboBox& list = bench.find<QComboBox>("bookmark");
  int interval = QApplication::doubleClickInterval();
};

TEST_F(BookmarksWindowTest, BookmarksStandInTheListInTheOrderOfTheirAdding) {
  add("verse", 30);
  add("intro", 2);
  add("verse", 30);
  EXPECT_THAT(entries(), ElementsAre("verse", "intro", "verse"));
  EXPECT_EQ(bench.dialogs.questions.back(),
            (Question{"Enter a name for this bookmark", "Add a bookmark", "bookmark 3"}));
  EXPECT_EQ(list.currentIndex(), -1) << "adding selects nothing";
  EXPECT_TRUE(editor.flags.modified);
}

TEST_F(BookmarksWindowTest, ABookmarkWithoutANameIsRefused) {
  press("Image1");
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(error_box("You must enter a valide bookmark name", "error")));
  EXPECT_THAT(entries(), IsEmpty());
  EXPECT_EQ(button("Image1").picture(), "addbook1");
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(BookmarksWindowTest, AnEntryLeadsToItsLineAtTheTopEachTimeItIsChosen) {
  editor.song_length.length_validate("600");
  add("verse", 300);
  add("intro", 2);
  QScrollBar& bar = *bench.find<QTableView>("tracks").verticalScrollBar();
  for (int i = 0; i < 2; ++i) {
    editor.song.tracks.set_cursor(100, 5);
    choose(0);
    EXPECT_EQ(editor.song.tracks.cursor(), (CellPosition{300, 5}));
    EXPECT_EQ(editor.song.tracks.top_row(), 300);
    EXPECT_EQ(bar.value(), 299);
    EXPECT_EQ(list.currentText().toStdString(), "verse");
    EXPECT_TRUE(bench.find<QTableView>("tracks").hasFocus());
  }
  choose(1);
  EXPECT_EQ(editor.song.tracks.row(), 2);
  EXPECT_EQ(bar.value(), 1);
}

TEST_F(BookmarksWindowTest, ABookmarkPastTheEndLeadsToTheLastLine) {
  add("coda", 60);
  editor.song_length.length_validate("40");
  choose(0);
  EXPECT_EQ(editor.song.tracks.row(), 40);
  EXPECT_EQ(editor.song.bookmarks.get().front().row, 60) << "a longer song finds it again";
}

TEST_F(BookmarksWindowTest, TheSelectedBookmarkIsDeletedAndThenNoneIsSelected) {
  add("intro", 2);
  add("verse", 30);
  add("coda", 60);
  choose(1);
  QTest::mousePress(&button("Image2"), Qt::LeftButton);
  EXPECT_EQ(button("Image2").picture(), "delbook2");
  EXPECT_EQ(list.count(), 3);
  QTest::mouseRelease(&button("Image2"), Qt::LeftButton);
  EXPECT_EQ(button("Image2").picture(), "delbook1");
  EXPECT_THAT(entries(), ElementsAre("intro", "coda"));
  EXPECT_EQ(list.currentIndex(), -1);

  press("Image2");
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(error_box("You must first select a bookmark", "Error")));
  EXPECT_EQ(list.count(), 2);
}

}  // namespace
}  // namespace lunavox
