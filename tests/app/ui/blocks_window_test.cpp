#include "app/ui/song_views.h"
#include "window_bench.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>

#include <gmock/gmock.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Colour kVelocity100 = {200, 110, 56};

/// Blocks of the note grid under the mouse and the keys. Track 2 begins with the notes C 5, D 5 and
/// a note-off in its first column and E 5 in its second.
struct BlocksWindowTest : testing::Test {
  explicit BlocksWindowTest() {
    put(2, 1, 1, "643C90");
    put(2, 1, 2, "643E90");
    put(2, 1, 3, "stop");
    put(2, 2, 1, "644090");
  }

  void put(int track, int sub_column, int row, const std::string& entry) {
    editor.song.write_entry(track, sub_column, row, entry);
    editor.song.show_entry(track, sub_column, row);
    const int column = first_column_of(track) + sub_column - 1;
    if (entry != "stop") editor.song.tracks.set_text_colour(row, column, kVelocity100);
  }

  QPoint centre(CellPosition at) const { return tracks.cell_rect(at).center(); }

  void click(CellPosition at) {
    QTest::mouseClick(tracks.viewport(), Qt::LeftButton, {}, centre(at));
  }

  /// Selects from one cell to another with the button held.
  void drag(CellPosition from, CellPosition to) {
    QTest::mousePress(tracks.viewport(), Qt::LeftButton, {}, centre(from));
    QMouseEvent move(QEvent::MouseMove, centre(to), tracks.viewport()->mapToGlobal(centre(to)),
                     Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(tracks.viewport(), &move);
    QTest::mouseRelease(tracks.viewport(), Qt::LeftButton, {}, centre(to));
  }

  void shift(Qt::Key key, int times = 1) {
    for (int i = 0; i < times; ++i) QTest::keyClick(&tracks, key, Qt::ShiftModifier);
  }

  /// Opens the popup menu with the right button and presses an entry of it.
  void choose(const char* entry) {
    QTest::mouseClick(tracks.viewport(), Qt::RightButton, {}, centre({5, 3}));
    WindowBench::settle();
    ASSERT_TRUE(menu.isVisible());
    auto& action = bench.find<QAction>(entry);
    EXPECT_TRUE(action.isEnabled()) << entry;
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    WindowBench::settle();
    EXPECT_FALSE(menu.isVisible());
  }

  /// Opens the Edit menu of the menu bar, and tells which of its entries can be chosen.
  std::vector<std::string> offered() {
    QMenuBar& bar = *bench.window.menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
    WindowBench::settle();
    std::vector<std::string> found;
    for (const QAction* action : menu.actions() + trait.actions()) {
      if (action->isEnabled() && action->menu() == nullptr)
        found.push_back(action->text().toStdString());
    }
    menu.close();
    WindowBench::settle();
    return found;
  }

  /// What a menu shows from top to bottom, a separator as "-".
  static std::vector<std::string> captions(const QMenu& of) {
    std::vector<std::string> found;
    for (const QAction* action : of.actions()) {
      if (!action->isVisible()) continue;
      found.push_back(action->isSeparator() ? "-" : action->text().toStdString());
    }
    return found;
  }

  std::string entry(int track, int sub_column, int row) const {
    return editor.song.notes.at(track, sub_column, row);
  }
  CellPosition cursor() const { return editor.song.tracks.cursor(); }
  CellPosition selection_end() const { return editor.song.tracks.selection_end(); }

  WindowBench bench{2};
  Editor& editor = bench.editor;
  GridView& tracks = static_cast<GridView&>(bench.find<QTableView>("tracks"));
  QMenu& menu = bench.find<QMenu>("menuedit");
  QMenu& trait = bench.find<QMenu>("trait");
};

TEST_F(BlocksWindowTest, ABlockDraggedWithTheMouseIsCopiedToTheDrums) {
  drag({3, 11}, {1, 10});
  choose("menucopy");
  EXPECT_EQ(cursor(), (CellPosition{3, 11})) << "the selection stays as it was dragged";
  EXPECT_EQ(selection_end(), (CellPosition{1, 10}));
  EXPECT_FALSE(editor.flags.modified);

  click({9, 4});
  choose("menupaste");
  EXPECT_EQ(entry(1, 4, 9), "643C99") << "on the drums' channel";
  EXPECT_EQ(entry(1, 4, 10), "643E99");
  EXPECT_EQ(entry(1, 4, 11), "stop");
  EXPECT_EQ(entry(1, 5, 9), "644099");
  EXPECT_EQ(editor.song.tracks.text(9, 4), "C  5");
  EXPECT_EQ(editor.song.tracks.cell(9, 4).text_colour, kVelocity100);
  EXPECT_EQ(entry(2, 1, 1), "643C90") << "the original stays";
  EXPECT_EQ(cursor(), (CellPosition{9, 4}));
  EXPECT_EQ(selection_end(), (CellPosition{9, 4}));
  EXPECT_TRUE(editor.flags.modified);
  EXPECT_TRUE(tracks.hasFocus());
}

TEST_F(BlocksWindowTest, ABlockSelectedWithTheKeysIsCutAndPastedTwice) {
  click({3, 10});
  shift(Qt::Key_Up, 2);
  choose("menucut");
  EXPECT_EQ(entry(2, 1, 1), "");
  EXPECT_EQ(entry(2, 1, 3), "");
  EXPECT_EQ(entry(2, 2, 1), "644090") << "beside the selection";
  EXPECT_EQ(editor.song.tracks.text(2, 10), "");
  EXPECT_EQ(editor.song.tracks.cell(2, 10).text_colour, kVelocity100) << "kept by the empty cell";
  EXPECT_EQ(selection_end(), (CellPosition{1, 10}));
  for (const int row : {62, 20}) {
    click({20, 12});
    editor.song.tracks.set_row(row);
    choose("menupaste");
    EXPECT_EQ(entry(2, 3, row), "643C90");
    EXPECT_EQ(entry(2, 3, row + 2), "stop");
  }
}

TEST_F(BlocksWindowTest, OneCellIsABlockToo) {
  click({1, 10});
  choose("menucopy");
  click({5, 16});
  choose("menupaste");
  EXPECT_EQ(entry(2, 7, 5), "643C90");
  bench.dialogs.inputs = {"-12"};
  choose("menutrans");
  EXPECT_EQ(entry(2, 7, 5), "643090");
  EXPECT_EQ(editor.song.tracks.text(5, 16), "C  4");
  EXPECT_EQ(entry(2, 1, 1), "643C90");
}

TEST_F(BlocksWindowTest, TheToolsRewriteTheSelectionAndLeaveItSelected) {
  drag({1, 10}, {3, 11});
  bench.dialogs.inputs = {"5", "2000", "400", "1.5"};
  choose("menuvelval");
  EXPECT_EQ(entry(2, 1, 1), "53C90");
  EXPECT_EQ(editor.song.tracks.cell(1, 10).text_colour, (Colour{10, 22, 246}));
  choose("menuvelper");
  EXPECT_EQ(bench.dialogs.messages.back(),
            error_box("You must enter a value between 0 and 400 !", "Error"));
  choose("menuvelper");
  EXPECT_EQ(entry(2, 1, 2), "143E90");
  choose("menutrans");
  EXPECT_EQ(entry(2, 2, 1), "144190");
  EXPECT_EQ(editor.song.tracks.text(1, 11), "F  5");
  EXPECT_EQ(entry(2, 1, 3), "stop");
  EXPECT_EQ(cursor(), (CellPosition{1, 10}));
  EXPECT_EQ(selection_end(), (CellPosition{3, 11}));
}

TEST_F(BlocksWindowTest, ASelectionAcrossTracksOrOverAnEffectColumnIsRefused) {
  drag({1, 8}, {2, 10});
  for (const char* command : {"menucut", "menucopy", "menuvelval", "menuvelper", "menutrans"}) {
    choose(command);
  }
  click({4, 16});
  shift(Qt::Key_Right, 2);
  choose("menucut");
  EXPECT_EQ(bench.dialogs.messages.size(), 6U);
  EXPECT_THAT(
      bench.dialogs.messages,
      Each(error_box("You must select only in the same track, without the effects !", "Error")));
  EXPECT_THAT(bench.dialogs.questions, IsEmpty());
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(BlocksWindowTest, ABlockThatDoesNotFitIsRefused) {
  drag({1, 10}, {3, 11});
  choose("menucopy");
  click({5, 17});
  choose("menupaste");
  editor.song.tracks.set_cursor(63, 10);
  choose("menupaste");
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(error_box("Not enough space to paste selection", "Error"),
                          error_box("Not enough space to paste selection", "Error")));
  EXPECT_FALSE(editor.flags.modified);
}

TEST_F(BlocksWindowTest, TheWholeOfALongSongIsTransposedCopiedAndCut) {
  editor.song_length.length_validate("3000");
  put(2, 8, 3000, "647F90");
  editor.song.tracks.set_cursor(1, 10);
  shift(Qt::Key_End);
  shift(Qt::Key_Right, 7);
  EXPECT_EQ(selection_end(), (CellPosition{3000, 17}));
  bench.dialogs.inputs = {"12"};
  choose("menutrans");
  EXPECT_EQ(entry(2, 1, 1), "644890");
  EXPECT_EQ(entry(2, 8, 3000), "647F90") << "held at the highest note";
  choose("menucut");
  EXPECT_EQ(entry(2, 1, 2), "");
  EXPECT_EQ(entry(2, 8, 3000), "");
  EXPECT_EQ(cursor(), (CellPosition{1, 10}));
  EXPECT_EQ(selection_end(), (CellPosition{3000, 17}));

  QTest::keyClick(&tracks, Qt::Key_Home);
  editor.song.tracks.set_cursor(1, 1);
  editor.song.tracks.set_top_row(1);
  choose("menupaste");
  EXPECT_EQ(entry(1, 1, 1), "644899");
  EXPECT_EQ(entry(1, 8, 3000), "647F99");
  EXPECT_EQ(editor.song.tracks.text(3000, 8), "G  0");
  EXPECT_EQ(cursor(), (CellPosition{1, 1}));
  EXPECT_EQ(editor.song.tracks.top_row(), 1) << "the view does not run along";
}

TEST_F(BlocksWindowTest, OverTheGridTheToolsStandBehindASeparatorInTheMenuItself) {
  QTest::mousePress(tracks.viewport(), Qt::RightButton, {}, centre({5, 3}));
  EXPECT_FALSE(menu.isVisible()) << "not before the button is released";
  QTest::mouseRelease(tracks.viewport(), Qt::RightButton, {}, centre({5, 3}));
  EXPECT_TRUE(menu.isVisible());
  EXPECT_THAT(captions(menu), ElementsAre("Cut", "Copy", "Paste", "-", "Velocity: fixed value",
                                          "Velocity: percent", "Transpose"));
  menu.close();
}

TEST_F(BlocksWindowTest, InTheMenuBarTheToolsStandInTheirSubmenuAlsoAfterTheMenuWasOverTheGrid) {
  click({1, 10});
  bench.dialogs.inputs = {"1", "2"};
  choose("menutrans");
  QMenuBar& bar = *bench.window.menuBar();
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
  WindowBench::settle();
  EXPECT_THAT(captions(menu), ElementsAre("Cut", "Copy", "Paste", "Selected notes"));
  EXPECT_THAT(captions(trait),
              ElementsAre("Velocity: fixed value", "Velocity: percent", "Transpose"));
  menu.setActiveAction(trait.menuAction());
  QTest::keyClick(&menu, Qt::Key_Right);
  WindowBench::settle();
  ASSERT_TRUE(trait.isVisible());
  QAction& transpose = bench.find<QAction>("menutrans");
  QTest::mouseClick(&trait, Qt::LeftButton, {}, trait.actionGeometry(&transpose).center());
  EXPECT_EQ(entry(2, 1, 1), "643F90") << "by 1, then by 2 semitones";
}

TEST_F(BlocksWindowTest, TheRightButtonOpensTheMenuOverCaptionsAndLineNumbersToo) {
  click({3, 10});
  auto& view = static_cast<QTableView&>(tracks);
  for (QWidget* part : {view.horizontalHeader()->viewport(), view.verticalHeader()->viewport()}) {
    QTest::mouseClick(part, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(menu.isVisible());
    QTest::mouseClick(part, Qt::RightButton, {}, QPoint(8, 8));
    EXPECT_TRUE(menu.isVisible());
    menu.close();
  }
  EXPECT_EQ(cursor(), (CellPosition{3, 10}));
}

TEST_F(BlocksWindowTest, TheMenuKeyOpensTheMenuAtTheCursor) {
  click({3, 10});
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&tracks, &event);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_EQ(menu.pos(), tracks.viewport()->mapToGlobal(centre({3, 10})));
  menu.close();
}

TEST_F(BlocksWindowTest, TheEditMenuOffersWhatCanDoSomething) {
  click({20, 3});
  EXPECT_THAT(offered(), ElementsAre("Cut", "Copy"));
  click({1, 10});
  EXPECT_THAT(offered(), ElementsAre("Cut", "Copy", "Velocity: fixed value", "Velocity: percent",
                                     "Transpose"));
  choose("menucopy");
  click({20, 3});
  EXPECT_THAT(offered(), ElementsAre("Cut", "Copy", "Paste"));
  click({3, 10});
  EXPECT_THAT(offered(), ElementsAre("Cut", "Copy", "Paste")) << "a note-off is no note";
}

}  // namespace
}  // namespace lunavox
