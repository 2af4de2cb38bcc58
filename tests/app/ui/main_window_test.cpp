#include "app/ui/song_views.h"
#include "grid/ui/picture_button.h"
#include "tests/support/shown_boxes.h"
#include "window_bench.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QScrollBar>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::error_box;
using test::WindowBench;

struct MainWindowTest : testing::Test {
  explicit MainWindowTest(int track_count = 1) : bench(track_count) {}

  /// The captions of a menu's visible entries; "-" for a separator.
  std::vector<std::string> captions(const char* menu) {
    std::vector<std::string> found;
    for (const QAction* action : bench.find<QMenu>(menu).actions()) {
      if (!action->isVisible()) continue;
      found.push_back(action->isSeparator() ? "-" : action->text().toStdString());
    }
    return found;
  }

  std::string caption_of_panel(const char* frame) {
    return bench.find<QFrame>(frame).findChild<QLabel*>()->text().toStdString();
  }

  void trigger(const char* action) {
    bench.find<QAction>(action).trigger();
    WindowBench::settle();
  }

  QLineEdit& field(const char* name) { return bench.find<QLineEdit>(name); }

  void type(const char* name, const char* text) {
    field(name).setFocus();
    field(name).selectAll();
    QTest::keyClicks(&field(name), QLatin1String(text));
  }

  void enter(const char* name, const char* text) {
    type(name, text);
    QTest::keyClick(&field(name), Qt::Key_Return);
  }

  std::string picture(const char* button) {
    return static_cast<PictureButton&>(bench.find<QAbstractButton>(button)).picture();
  }

  GridView& grid(const char* name) { return static_cast<GridView&>(bench.find<QTableView>(name)); }

  WindowBench bench;
  Editor& editor = bench.editor;
};

TEST_F(MainWindowTest, TheWindowIsForm1WithItsCaption) {
  EXPECT_EQ(bench.window.objectName().toStdString(), "Form1");
  EXPECT_EQ(bench.window.windowTitle().toStdString(), "Lunavox 2.1");
}

TEST_F(MainWindowTest, MenusHoldTheirEntriesInOrder) {
  EXPECT_EQ(bench.find<QMenu>("menufile").title().toStdString(), "&File");
  EXPECT_EQ(captions("menufile"),
            (std::vector<std::string>{"New", "Open", "Save", "Save as", "Export as .mid", "Quit"}));
  EXPECT_EQ(bench.find<QMenu>("menuedit").title().toStdString(), "&Edit");
  EXPECT_EQ(captions("menuedit"),
            (std::vector<std::string>{"Cut", "Copy", "Paste", "Selected notes"}));
  EXPECT_EQ(captions("trait"),
            (std::vector<std::string>{"Velocity: fixed value", "Velocity: percent", "Transpose"}));
  EXPECT_EQ(bench.find<QMenu>("menuinput").title().toStdString(), "&Input device");
  EXPECT_EQ(captions("menuinput"), (std::vector<std::string>{"Ask for input device next launch"}));
  EXPECT_EQ(bench.find<QMenu>("menutrack").title().toStdString(), "&Track");
  EXPECT_EQ(captions("menutrack"),
            (std::vector<std::string>{"add instrument track", "del last track"}));
  EXPECT_EQ(bench.find<QMenu>("menuabout").title().toStdString(), "&Help");
  EXPECT_EQ(captions("menuabout"),
            (std::vector<std::string>{"All you have to know", "About Lunavox"}));
}

TEST_F(MainWindowTest, MenuEntriesAreFoundByTheirNames) {
  const std::pair<const char*, const char*> entries[] = {
      {"menunew", "New"},
      {"menuopen", "Open"},
      {"menusave", "Save"},
      {"menusaveas", "Save as"},
      {"menuexport", "Export as .mid"},
      {"menuquit", "Quit"},
      {"menucut", "Cut"},
      {"menucopy", "Copy"},
      {"menupaste", "Paste"},
      {"menuvelval", "Velocity: fixed value"},
      {"menuvelper", "Velocity: percent"},
      {"menutrans", "Transpose"},
      {"menuask", "Ask for input device next launch"},
      {"output0", "System default"},
      {"menuaddinstru", "add instrument track"},
      {"menudeltrack", "del last track"},
      {"menuhelp", "All you have to know"},
      {"menuauthor", "About Lunavox"},
  };
  for (const auto& [name, caption] : entries) {
    EXPECT_EQ(bench.find<QAction>(name).text().toStdString(), caption);
  }
  EXPECT_EQ(bench.find<QMenu>("menuoutput").title().toStdString(), "&Output device");
}

TEST_F(MainWindowTest, NoMenuEntryHasAKeyOfItsOwn) {
  for (const QAction* action : bench.window.findChildren<QAction*>()) {
    EXPECT_TRUE(action->shortcut().isEmpty()) << action->objectName().toStdString();
  }
}

TEST_F(MainWindowTest, PanelsHaveTheirCaptions) {
  EXPECT_EQ(caption_of_panel("Frame6"), "Duration");
  EXPECT_EQ(caption_of_panel("Frame2"), "Length");
  EXPECT_EQ(caption_of_panel("Frame1"), "BPM");
  EXPECT_EQ(caption_of_panel("Frame3"), "LPB");
  EXPECT_EQ(caption_of_panel("Frame5"), "Rec step");
  EXPECT_EQ(caption_of_panel("Frame11"), "XG effects");
  EXPECT_EQ(caption_of_panel("Frame4"), "Bookmarks");
  EXPECT_EQ(caption_of_panel("Frame10"), "Misc");
  EXPECT_EQ(caption_of_panel("Frame14"), "Controls");
}

TEST_F(MainWindowTest, CheckBoxesHaveTheirCaptions) {
  EXPECT_EQ(bench.find<QCheckBox>("realtime").text().toStdString(), "Realtime record");
  EXPECT_EQ(bench.find<QCheckBox>("begin").text().toStdString(), "Play from beginning");
  EXPECT_EQ(bench.find<QCheckBox>("velocity").text().toStdString(), "Rec velocity");
  EXPECT_EQ(bench.find<QCheckBox>("curs").text().toStdString(), "Follow the cursor");
  EXPECT_EQ(bench.find<QCheckBox>("area").text().toStdString(), "Extended area");
}

TEST_F(MainWindowTest, TheOutputMenuOffersTheDefaultAndEachDevice) {
  EXPECT_EQ(captions("menuoutput"),
            (std::vector<std::string>{"System default", "Synth", "Module"}));
  EXPECT_TRUE(bench.find<QAction>("output1").isChecked());
  EXPECT_FALSE(bench.find<QAction>("output15").isVisible());
}

TEST_F(MainWindowTest, ChoosingAnOutputOpensItAndMarksItAlone) {
  trigger("output0");
  EXPECT_EQ(editor.output.current_device(), -1);
  EXPECT_TRUE(bench.find<QAction>("output0").isChecked());
  EXPECT_FALSE(bench.find<QAction>("output1").isChecked());
  trigger("output0");
  EXPECT_TRUE(bench.find<QAction>("output0").isChecked()) << "chosen once more, it stays chosen";
}

TEST_F(MainWindowTest, FieldsShowTheNewSong) {
  EXPECT_EQ(field("bpm").text().toStdString(), "120");
  EXPECT_EQ(field("length").text().toStdString(), "64");
  EXPECT_EQ(field("number").text().toStdString(), "4");
  EXPECT_EQ(field("step").text().toStdString(), "1");
  EXPECT_EQ(field("strength").text().toStdString(), "127");
  EXPECT_EQ(bench.find<QLabel>("timemin").text().toStdString(), " 0:08");
  EXPECT_EQ(bench.find<QScrollBar>("bpms").value(), 120);
}

TEST_F(MainWindowTest, ATypedTextCountsOnEnterAndNotBefore) {
  type("bpm", "300");
  EXPECT_EQ(editor.song.bpm.text(), "120");
  QTest::keyClick(&field("bpm"), Qt::Key_Return);
  EXPECT_EQ(editor.song.bpm.text(), "300");
  EXPECT_EQ(bench.find<QScrollBar>("bpms").value(), 300);
  EXPECT_TRUE(editor.flags.modified);
  EXPECT_TRUE(grid("tracks").hasFocus()) << "the keys go back to the notes";
}

TEST_F(MainWindowTest, ATypedTextCountsWhenTheFieldIsLeftByAClick) {
  type("length", "32");
  QTest::mouseClick(&bench.find<QAbstractButton>("Image2"), Qt::LeftButton);
  EXPECT_EQ(editor.song.tracks.rows(), 33);
}

TEST_F(MainWindowTest, ABadEntryIsToldAndTheLastTextReturns) {
  enter("bpm", "301");
  EXPECT_EQ(bench.dialogs.messages, (std::vector<Message>{error_box("Invalid value (30-300)")}));
  EXPECT_EQ(field("bpm").text().toStdString(), "120");
  enter("bpm", "abc");
  EXPECT_EQ(bench.dialogs.messages.size(), 2U);
  EXPECT_EQ(field("bpm").text().toStdString(), "120");
}

/// The button is released over the box, which takes the release for itself.
TEST_F(MainWindowTest, AClickThatLeavesABadEntryEndsWithItsMessage) {
  WindowBench shown(1, LayoutSet::kQwerty, {}, WindowBench::Boxes::kShown);
  test::ShownBoxes boxes;
  boxes.next<QMessageBox>([](QMessageBox& box) { box.accept(); });
  auto& bpm = shown.find<QLineEdit>("bpm");
  bpm.setFocus();
  bpm.setText(QStringLiteral("301"));
  auto& play = shown.find<QAbstractButton>("playnotes");
  QTest::mousePress(&play, Qt::LeftButton);
  EXPECT_EQ(static_cast<PictureButton&>(play).picture(), "play1") << "it would stay pressed";
  EXPECT_EQ(bpm.text().toStdString(), "120");
  QTest::mouseClick(&play, Qt::LeftButton);
  EXPECT_TRUE(shown.editor.flags.playing);
}

TEST_F(MainWindowTest, TheScrollBarsWriteTheirFields) {
  bench.find<QScrollBar>("numbers").setValue(8);
  EXPECT_EQ(field("number").text().toStdString(), "8");
  EXPECT_EQ(editor.song.tracks.cell(9, 0).background, kBeat);
  EXPECT_EQ(editor.song.tracks.cell(5, 0).background, kBlack);
  bench.find<QScrollBar>("steps").setValue(0);
  EXPECT_EQ(editor.song.step.text(), "0");
}

TEST_F(MainWindowTest, TheUpperHalfOfAScrollBarMakesTheNumberLarger) {
  QScrollBar& bar = bench.find<QScrollBar>("bpms");
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, 2));
  EXPECT_EQ(editor.song.bpm.text(), "121");
  QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, bar.height() - 2));
  EXPECT_EQ(editor.song.bpm.text(), "120");
}

TEST_F(MainWindowTest, ASmoothlyTurnedWheelStepsANumberOnceForEachNotch) {
  QScrollBar& bar = bench.find<QScrollBar>("bpms");
  const auto turn = [&bar](int eighths_of_a_degree) {
    QWheelEvent event({2, 2}, bar.mapToGlobal(QPointF(2, 2)), {}, {0, eighths_of_a_degree},
                      Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&bar, &event);
  };
  for (int i = 0; i < 16; ++i) turn(15);
  EXPECT_EQ(editor.song.bpm.text(), "122");
  turn(-120);
  EXPECT_EQ(editor.song.bpm.text(), "121");
}

TEST_F(MainWindowTest, RecordedVelocityTakesTheStrengthFieldAway) {
  QTest::mouseClick(&bench.find<QCheckBox>("velocity"), Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_TRUE(editor.options.velocity);
  EXPECT_FALSE(field("strength").isEnabled());
  EXPECT_FALSE(bench.find<QScrollBar>("strengths").isEnabled());
}

TEST_F(MainWindowTest, TheExtendedAreaHidesTheSettingsAndGivesTheirHeightToTheNotes) {
  const int before = grid("tracks").height();
  QTest::mouseClick(&bench.find<QCheckBox>("area"), Qt::LeftButton, {}, QPoint(6, 8));
  WindowBench::settle();
  EXPECT_FALSE(grid("effects").isVisible());
  EXPECT_EQ(grid("tracks").height(), before + 191);
  QTest::mouseClick(&bench.find<QCheckBox>("area"), Qt::LeftButton, {}, QPoint(6, 8));
  WindowBench::settle();
  EXPECT_TRUE(grid("effects").isVisible());
  EXPECT_EQ(grid("tracks").height(), before);
}

TEST_F(MainWindowTest, TracksAreAddedAndRemovedByTheMenu) {
  trigger("menuaddinstru");
  EXPECT_EQ(editor.song.track_count, 2);
  EXPECT_EQ(grid("channels").model()->columnCount(), 2);
  trigger("menudeltrack");
  trigger("menudeltrack");
  EXPECT_EQ(bench.dialogs.messages,
            (std::vector<Message>{error_box("you can't del drum track", "error")}));
}

TEST_F(MainWindowTest, XgListsSendTheirChoice) {
  QComboBox& reverb = bench.find<QComboBox>("reverb");
  EXPECT_EQ(reverb.currentText().toStdString(), "Hall 1");
  EXPECT_EQ(reverb.count(), 11);
  reverb.setFocus();
  QTest::keyClick(&reverb, Qt::Key_End);
  EXPECT_EQ(bench.outputs.sysexes().back(),
            (SysExBytes{0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x00, 0x13, 0x00, 0xF7}));
  EXPECT_TRUE(editor.flags.modified);
  trigger("output2");
  EXPECT_EQ(reverb.currentText().toStdString(), "Hall 1");
}

TEST_F(MainWindowTest, EscapeLeavesAListToTheNotes) {
  for (const char* name : {"reverb", "chorus", "variation", "bookmark"}) {
    QComboBox& list = bench.find<QComboBox>(name);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Escape);
    EXPECT_TRUE(grid("tracks").hasFocus()) << name;
  }
  EXPECT_TRUE(bench.outputs.sysexes().empty());
}

TEST_F(MainWindowTest, EscapeClosesAnOpenListAndLeavesItToTheNotes) {
  QComboBox& reverb = bench.find<QComboBox>("reverb");
  reverb.setFocus();
  reverb.showPopup();
  QTest::keyClick(reverb.view(), Qt::Key_Escape);
  WindowBench::settle();
  EXPECT_FALSE(reverb.view()->isVisible());
  EXPECT_TRUE(grid("tracks").hasFocus());
  EXPECT_TRUE(bench.outputs.sysexes().empty());
}

TEST_F(MainWindowTest, TheRealtimeOptionsComeToTheFrontEachTimeTheBoxIsChecked) {
  QCheckBox& realtime = bench.find<QCheckBox>("realtime");
  QDialog& options = bench.find<QDialog>("Form8");
  QTest::mouseClick(&realtime, Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&options));
  bench.window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&bench.window));
  QTest::mouseClick(&realtime, Qt::LeftButton, {}, QPoint(6, 8));
  QTest::mouseClick(&realtime, Qt::LeftButton, {}, QPoint(6, 8));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&options));
}

TEST_F(MainWindowTest, TheCountInStaysOnTop) {
  EXPECT_TRUE(bench.find<QDialog>("Form9").windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(MainWindowTest, BookmarksAreAddedChosenAndDeletedWithTheirButtons) {
  editor.song.tracks.set_cursor(20, 1);
  bench.dialogs.inputs = {"chorus"};
  QAbstractButton& add = bench.find<QAbstractButton>("Image1");
  QTest::mousePress(&add, Qt::LeftButton);
  EXPECT_EQ(picture("Image1"), "addbook2");
  QTest::mouseRelease(&add, Qt::LeftButton);
  EXPECT_EQ(picture("Image1"), "addbook1");
  QComboBox& list = bench.find<QComboBox>("bookmark");
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.itemText(0).toStdString(), "chorus");

  editor.song.tracks.set_cursor(1, 1);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(editor.song.tracks.row(), 20);
  EXPECT_EQ(editor.song.tracks.top_row(), 20);
  QTest::mouseClick(&bench.find<QAbstractButton>("Image2"), Qt::LeftButton);
  EXPECT_EQ(list.count(), 0);
  EXPECT_TRUE(bench.dialogs.messages.empty());
}

TEST_F(MainWindowTest, ClosingAnUnchangedSongAsksNothing) {
  EXPECT_TRUE(bench.window.close());
  EXPECT_TRUE(bench.dialogs.messages.empty());
  EXPECT_EQ(bench.shell.ended(), 0);
  EXPECT_FALSE(editor.output.is_open());
}

TEST_F(MainWindowTest, ClosingAChangedSongAsksAndCancelKeepsTheWindow) {
  editor.flags.modified = true;
  bench.dialogs.answers = {Answer::kCancel};
  EXPECT_FALSE(bench.window.close());
  EXPECT_EQ(bench.dialogs.messages,
            (std::vector<Message>{{"Do you want to save your music before ?",
                                   "Quit",
                                   Icon::kNone,
                                   Buttons::kYesNoCancel,
                                   {}}}));
  EXPECT_TRUE(bench.window.isVisible());
  EXPECT_TRUE(editor.output.is_open());
  bench.dialogs.answers = {Answer::kNo};
  EXPECT_TRUE(bench.window.close());
}

TEST_F(MainWindowTest, TheStatusLineTellsOfTheSongTheDeviceAndTheCursor) {
  EXPECT_EQ(bench.find<QLabel>("statusfile").text().toStdString(), "new song");
  EXPECT_EQ(bench.find<QLabel>("statusoutput").text().toStdString(), "Synth");
  editor.song.write_entry(1, 2, 10, "643C99");
  editor.song.show_entry(1, 2, 10);
  editor.song.tracks.set_cursor(10, 2);
  EXPECT_EQ(bench.find<QLabel>("statusline").text().toStdString(), "Line 9 of 64   Beat 3");
  EXPECT_EQ(bench.find<QLabel>("statuscell").text().toStdString(), "Track 1 #2: C5 velocity 100");
  EXPECT_EQ(bench.find<QLabel>("statusoctave").text().toStdString(), "Octave 0");
  QTest::keyClick(&grid("tracks"), Qt::Key_F6);
  EXPECT_EQ(bench.find<QLabel>("statusoctave").text().toStdString(), "Octave +2");
}

TEST_F(MainWindowTest, TheStatusLineKeepsUpWithTheSongsLengthAndBeat) {
  editor.song.tracks.set_cursor(10, 2);
  editor.song.tracks.set_rows(201);
  EXPECT_EQ(bench.find<QLabel>("statusline").text().toStdString(), "Line 9 of 200   Beat 3");
  enter("number", "2");
  EXPECT_EQ(bench.find<QLabel>("statusline").text().toStdString(), "Line 9 of 200   Beat 5");
}

TEST_F(MainWindowTest, TheStatusLineHasRoomForTheLastLineOfTheLongestSong) {
  const auto fits = [&](const char* name) {
    const QLabel& label = bench.find<QLabel>(name);
    return label.fontMetrics().horizontalAdvance(label.text()) <= label.width();
  };
  enter("length", "3000");
  enter("number", "1");
  editor.song.write_entry(1, 8, 3000, "7F7F99");
  editor.song.show_entry(1, 8, 3000);
  editor.song.tracks.set_cursor(3000, 8);
  EXPECT_EQ(bench.find<QLabel>("statusline").text().toStdString(), "Line 2999 of 3000   Beat 3000");
  EXPECT_TRUE(fits("statusline"));
  EXPECT_TRUE(fits("statuscell")) << bench.find<QLabel>("statuscell").text().toStdString();
  EXPECT_TRUE(fits("statusoctave"));
}

TEST_F(MainWindowTest, TheVoiceFieldFollowsTheCurrentTrack) {
  trigger("menuaddinstru");
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "GrandPno");
  editor.song.tracks.set_cursor(1, 1);
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "standard 1");
}

struct ManyTracksTest : MainWindowTest {
  ManyTracksTest() : MainWindowTest(10) {}
};

TEST_F(ManyTracksTest, ATracksPartsStandInLineInAllThreeGrids) {
  const GridView& channels = grid("channels");
  const GridView& effects = grid("effects");
  const GridView& tracks = grid("tracks");
  for (const int first : {1, 3}) {
    bench.find<QScrollBar>("defilchan").setValue(first);
    WindowBench::settle();
    for (int track = first; track < first + 2; ++track) {
      const int left = channels.columnViewportPosition(track - 1);
      EXPECT_EQ(left, (track - first) * channels.track_width());
      EXPECT_EQ(effects.columnViewportPosition(3 * (track - 1)), left) << track;
      EXPECT_EQ(tracks.columnViewportPosition(9 * (track - 1)), left) << track;
    }
    EXPECT_EQ(effects.viewport()->mapTo(&bench.window, QPoint(0, 0)).x(),
              tracks.viewport()->mapTo(&bench.window, QPoint(0, 0)).x());
  }
}

TEST_F(ManyTracksTest, EachTrackCanBeScrolledIntoViewHoweverNarrowTheWindow) {
  for (const int width : {820, 1024, 1600}) {
    bench.window.resize(width, 700);
    WindowBench::settle();
    QScrollBar& bar = bench.find<QScrollBar>("defilchan");
    bar.setValue(bar.maximum());
    WindowBench::settle();
    const GridView& tracks = grid("tracks");
    const int right = tracks.columnViewportPosition(89) + tracks.columnWidth(89);
    EXPECT_LE(right, tracks.viewport()->width()) << width;
    EXPECT_GT(right, 0);
  }
}

TEST_F(ManyTracksTest, ACursorThatWalksOutOfViewBringsItsTrackAlong) {
  editor.song.tracks.set_column(90);
  WindowBench::settle();
  const GridView& tracks = grid("tracks");
  EXPECT_LT(tracks.columnViewportPosition(89), tracks.viewport()->width());
  QTest::keyClick(&grid("tracks"), Qt::Key_Home);
  editor.song.tracks.set_column(1);
  EXPECT_EQ(editor.screen.defilchan.get(), 1);
}

TEST_F(ManyTracksTest, SettingsAreSwitchedByAClick) {
  GridView& effects = grid("effects");
  const QPoint pan_active = effects.cell_rect({3, 4}).center();
  QTest::mouseClick(effects.viewport(), Qt::LeftButton, {}, pan_active);
  EXPECT_EQ(editor.song.effects.text(3, 4), "yes");
  EXPECT_TRUE(editor.song.active.at(2)[kPan]);
  EXPECT_EQ(editor.song.tracks.column(), 18);
  EXPECT_FALSE(effects.hasFocus()) << "the keys stay with the notes";
}

}  // namespace
}  // namespace lunavox
