#include "tests/support/shown_boxes.h"
#include "window_bench.h"

#include <QAbstractButton>
#include <QAction>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTextBrowser>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::ShownBoxes;
using test::TempFolder;
using test::WindowBench;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The window's own boxes, answered with keys and clicks.
struct FilesWindowTest : testing::Test {
  static void SetUpTestSuite() {
    QSettings().setValue(QStringLiteral("notices/screen size"), true);
  }

  void trigger(const char* action) {
    bench.find<QAction>(action).trigger();
    WindowBench::settle();
  }

  void modify() {
    bench.editor.song.write_entry(1, 1, 5, "642499");
    bench.editor.flags.modified = true;
  }
  bool modified() const { return bench.editor.flags.modified; }
  std::string entry() { return bench.editor.song.notes.at(1, 1, 5); }

  std::string shown_file() {
    bench.window.refresh_status();
    return bench.find<QLabel>("statusfile").text().toStdString();
  }

  /// Types a name into the next file dialog.
  void type_name(const std::string& title, const std::string& name) {
    boxes.next<QFileDialog>([title, name](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), title);
      enter(dialog, name);
    });
  }
  static void enter(QFileDialog& dialog, const std::string& name) {
    auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->text().toStdString(), "");
    // What the dialog would offer as the rest of the name takes keys, sooner or later.
    field->setCompleter(nullptr);
    QTest::keyClicks(field, QString::fromStdString(name));
    for (QAbstractButton* button : dialog.findChild<QDialogButtonBox*>()->buttons()) {
      if (static_cast<QPushButton*>(button)->isDefault()) QTest::mouseClick(button, Qt::LeftButton);
    }
  }
  void cancel_file_dialog() {
    boxes.next<QFileDialog>([](QFileDialog& dialog) { dialog.close(); });
  }
  /// Presses a button of the next message.
  void answer(QMessageBox::StandardButton button, const std::string& title,
              const std::string& part) {
    boxes.next<QMessageBox>([button, title, part](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle().toStdString(), title);
      EXPECT_THAT(box.text().toStdString(), HasSubstr(part));
      ASSERT_NE(box.button(button), nullptr);
      box.button(button)->click();
    });
  }
  void answer_save_question(QMessageBox::StandardButton button, const std::string& title) {
    answer(button, title, "Do you want to save your music before ?");
  }

  /// Drags something over the notes and lets it go there.
  bool drop(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPoint place = bench.find<QWidget>("tracks").mapTo(&bench.window, QPoint(40, 60));
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(bench.window.windowHandle(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent dropped(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bench.window.windowHandle(), &dropped);
    return true;
  }
  bool drop(const std::string& file) {
    return drop(QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString(file))});
  }

  /// A song with one note, saved, and then gone from the window.
  void saved_song(const std::string& name) {
    modify();
    type_name("Save", name);
    trigger("menusaveas");
    trigger("menunew");
    ASSERT_EQ(entry(), "");
  }

  TempFolder folder;
  ShownBoxes boxes;
  WindowBench bench{1, LayoutSet::kQwerty, {}, WindowBench::Boxes::kShown};
};

TEST_F(FilesWindowTest, ASongIsSavedUnderATypedNameAndOpenedAgain) {
  modify();
  EXPECT_EQ(shown_file(), "new song \u2022");
  type_name("Save", folder.file("tune"));
  trigger("menusaveas");
  EXPECT_TRUE(folder.has("tune.lvx")) << "the extension is added";
  EXPECT_EQ(shown_file(), "tune.lvx");
  EXPECT_FALSE(modified());
  trigger("menunew");
  EXPECT_EQ(shown_file(), "new song");
  EXPECT_EQ(entry(), "");
  type_name("Open", folder.file("tune.lvx"));
  trigger("menuopen");
  EXPECT_EQ(entry(), "642499");
  EXPECT_EQ(shown_file(), "tune.lvx");
}

TEST_F(FilesWindowTest, EachDialogOffersItsKindOfFile) {
  const auto offers = [this](const char* action, const std::string& filter,
                             QFileDialog::FileMode mode = QFileDialog::AnyFile) {
    boxes.next<QFileDialog>([filter, mode](QFileDialog& dialog) {
      EXPECT_EQ(dialog.nameFilters().join(QStringLiteral("|")).toStdString(), filter);
      EXPECT_EQ(dialog.fileMode(), mode);
      dialog.close();
    });
    trigger(action);
  };
  offers("menuopen", "Lunavox (*.lvo *.lvx)", QFileDialog::ExistingFile);
  offers("menusaveas", "Lunavox 1.2 (*.lvx)");
  offers("menuexport", "midi file (*.mid)");
}

TEST_F(FilesWindowTest, SaveWritesToTheNameThatTheSongHasWithoutADialog) {
  saved_song(folder.file("tune"));
  type_name("Open", folder.file("tune.lvx"));
  trigger("menuopen");
  bench.editor.song.write_entry(1, 1, 6, "7F2699");
  bench.editor.flags.modified = true;
  trigger("menusave");
  EXPECT_THAT(folder.read("tune.lvx"), HasSubstr("642499\r\n7F2699\r\n"));
  EXPECT_FALSE(modified());
}

TEST_F(FilesWindowTest, AnOpenedSongsVoicesAreSent) {
  bench.editor.song.values.at(1, kInstrument, 1) = 24;
  saved_song(folder.file("tune"));
  bench.outputs.calls.clear();
  type_name("Open", folder.file("tune.lvx"));
  trigger("menuopen");
  EXPECT_EQ(bench.outputs.shorts(), (std::vector<std::uint32_t>{0x7F00B9, 0x20B9, 0x18C9, 0x3099}));
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "electro");
}

TEST_F(FilesWindowTest, ANewSongShowsItsOwnVoice) {
  bench.editor.song.values.at(1, kInstrument, 1) = 24;
  bench.editor.voice_name.refresh();
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "electro");
  trigger("menunew");
  EXPECT_EQ(bench.find<QLabel>("voicename").text().toStdString(), "standard 1");
}

TEST_F(FilesWindowTest, FileWorkStopsPlaying) {
  bench.editor.transport.playnotes_mouseup();
  ASSERT_TRUE(bench.editor.flags.playing);
  trigger("menunew");
  EXPECT_FALSE(bench.editor.flags.playing);
  EXPECT_TRUE(bench.editor.current_loop.is(bench.editor.listen));
}

TEST_F(FilesWindowTest, QuitClosesThePortsAndEndsTheProgram) {
  bench.outputs.calls.clear();
  trigger("menuquit");
  EXPECT_EQ(bench.shell.ended(), 0);
  using Call = test::RecordingOutput::Call;
  ASSERT_EQ(bench.outputs.calls.size(), 2U);
  EXPECT_EQ(bench.outputs.calls[0].kind, Call::kReset);
  EXPECT_EQ(bench.outputs.calls[1].kind, Call::kClose);
}

TEST_F(FilesWindowTest, AskingForTheInputIsWrittenForTheNextStart) {
  bench.home.write("config/lvconfig.ini", "input=3\r\nboot=1\r\n");
  trigger("menuask");
  EXPECT_EQ(bench.home.read("config/lvconfig.ini"), "input=\r\nboot=1\r\n");
}

TEST_F(FilesWindowTest, NothingIsOverwrittenUnasked) {
  folder.write("tune.lvx", "old");
  folder.write("tune.mid", "old");
  for (const char* name : {"tune.lvx", "tune"}) {
    type_name("Save", folder.file(name));
    answer(QMessageBox::No, "Save", "tune.lvx already exists");
    cancel_file_dialog();
    trigger("menusaveas");
  }
  type_name("Export", folder.file("tune"));
  answer(QMessageBox::No, "Export", "tune.mid already exists");
  cancel_file_dialog();
  trigger("menuexport");
  EXPECT_EQ(folder.read("tune.lvx"), "old");
  EXPECT_EQ(folder.read("tune.mid"), "old");

  type_name("Save", folder.file("tune"));
  answer(QMessageBox::Yes, "Save", "tune.lvx already exists");
  trigger("menusaveas");
  EXPECT_THAT(folder.read("tune.lvx"), StartsWith("2.0\r\n"));
}

TEST_F(FilesWindowTest, ASongIsExportedUnderATypedName) {
  modify();
  type_name("Export", folder.file("tune"));
  trigger("menuexport");
  EXPECT_THAT(folder.read("tune.mid"), StartsWith("MThd"));
  EXPECT_TRUE(modified());
  EXPECT_EQ(shown_file(), "new song \u2022");
}

TEST_F(FilesWindowTest, FileDialogsBeginInTheFolderOfTheLastFile) {
  std::filesystem::create_directory(folder.path() / "songs");
  std::filesystem::create_directory(folder.path() / "exports");
  const auto begins_in = [this](const char* action, const std::string& place) {
    boxes.next<QFileDialog>([place](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory().absolutePath().toStdString(), place);
      dialog.close();
    });
    trigger(action);
  };
  type_name("Save", folder.file("songs/tune"));
  trigger("menusaveas");
  begins_in("menuopen", folder.file("songs"));
  begins_in("menuexport", folder.file("songs"));
  type_name("Export", folder.file("exports/tune"));
  trigger("menuexport");
  begins_in("menuexport", folder.file("exports"));
}

TEST_F(FilesWindowTest, ACancelledOpenLeavesNoNameAndSavingAsksForOne) {
  saved_song(folder.file("tune"));
  type_name("Open", folder.file("tune.lvx"));
  trigger("menuopen");
  cancel_file_dialog();
  trigger("menuopen");
  EXPECT_EQ(shown_file(), "new song");
  EXPECT_EQ(entry(), "642499") << "the song stays";
  type_name("Save", folder.file("other"));
  trigger("menusave");
  EXPECT_EQ(shown_file(), "other.lvx");
}

TEST_F(FilesWindowTest, ARefusedFilesNameStays) {
  folder.write("newer.lvx", "3.0\r\n");
  type_name("Open", folder.file("newer.lvx"));
  answer(QMessageBox::Ok, "Lunavox", "");
  trigger("menuopen");
  EXPECT_EQ(shown_file(), "newer.lvx");
}

TEST_F(FilesWindowTest, TheSaveQuestionHasTheNameOfItsCommand) {
  modify();
  answer_save_question(QMessageBox::Cancel, "New");
  trigger("menunew");
  answer_save_question(QMessageBox::Cancel, "Open");
  trigger("menuopen");
  answer_save_question(QMessageBox::Cancel, "Quit");
  trigger("menuquit");
  answer_save_question(QMessageBox::Cancel, "Quit");
  EXPECT_FALSE(bench.window.close());
  EXPECT_TRUE(modified());
  EXPECT_EQ(entry(), "642499");
  EXPECT_FALSE(bench.shell.ended());

  answer_save_question(QMessageBox::Yes, "New");
  type_name("Save", folder.file("tune"));
  trigger("menunew");
  EXPECT_TRUE(folder.has("tune.lvx"));
  EXPECT_EQ(entry(), "");
}

TEST_F(FilesWindowTest, ADroppedSongIsOpenedAfterTheSaveQuestion) {
  saved_song(folder.file("tune"));
  modify();
  bench.editor.song.write_entry(1, 1, 5, "");
  EXPECT_TRUE(drop(folder.file("tune.lvx")));
  EXPECT_EQ(entry(), "") << "whoever drags is not kept waiting";
  answer_save_question(QMessageBox::No, "Open");
  WindowBench::settle();
  EXPECT_EQ(entry(), "642499");
  EXPECT_EQ(shown_file(), "tune.lvx");
}

TEST_F(FilesWindowTest, OnlyAFileCanBeDroppedAndOnlyWhileNoBoxIsOpen) {
  saved_song(folder.file("tune"));
  EXPECT_FALSE(drop(QList<QUrl>{}));
  EXPECT_FALSE(drop(QList<QUrl>{QUrl(QStringLiteral("https://example.org/tune.lvx"))}));
  boxes.next<QMessageBox>([this](QMessageBox& box) {
    EXPECT_FALSE(drop(folder.file("tune.lvx")));
    box.accept();
  });
  trigger("menuauthor");
  WindowBench::settle();
  EXPECT_EQ(entry(), "");
}

TEST_F(FilesWindowTest, RecentSongsStandAfterTheCommandsAndOpenAfterTheSaveQuestion) {
  saved_song(folder.file("this & that"));
  const QList<QAction*> entries = bench.find<QMenu>("menufile").actions();
  EXPECT_EQ(entries[5]->objectName().toStdString(), "menuquit");
  EXPECT_TRUE(entries[6]->isSeparator());
  EXPECT_EQ(entries[7]->text().toStdString(), "this && that.lvx");
  modify();
  answer_save_question(QMessageBox::Cancel, "Open");
  entries[7]->trigger();
  EXPECT_TRUE(modified());
  answer_save_question(QMessageBox::No, "Open");
  entries[7]->trigger();
  EXPECT_FALSE(modified());
  EXPECT_EQ(shown_file(), "this & that.lvx");

  std::filesystem::remove(folder.file("this & that.lvx"));
  answer(QMessageBox::Ok, "Open", "File not found: " + folder.file("this & that.lvx"));
  entries[7]->trigger();
  EXPECT_FALSE(entries[7]->isVisible());
}

TEST_F(FilesWindowTest, AboutTellsTheNameAndTheVersion) {
  boxes.next<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle().toStdString(), "About");
    EXPECT_THAT(box.text().toStdString(), StartsWith("Lunavox 2.1\n"));
    box.accept();
  });
  trigger("menuauthor");
}

TEST_F(FilesWindowTest, HelpOpensItsPageWithTheDesktopsProgram) {
  QTextBrowser program;
  QDesktopServices::setUrlHandler(QStringLiteral("file"), &program, "setSource");
  trigger("menuhelp");
  QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
  EXPECT_EQ(program.source().fileName().toStdString(), "readme.htm");
  EXPECT_THAT(program.toPlainText().toStdString(), HasSubstr("Lunavox"));
}

TEST_F(FilesWindowTest, ASaveThatFailsEndsTheProgramWithTheSongKept) {
  modify();
  const std::string file = folder.file("gone/tune.lvx");
  bench.editor.song_file.current_name = file;
  EXPECT_THROW(trigger("menusave"), RuntimeError);
  answer(
      QMessageBox::Ok, "Lunavox",
      "Path/File access error: " + file +
          "\n\nLunavox has to end. The song as it stands is kept and offered at the next start.");
  bench.shell.end_on_fault("Path/File access error: " + file);
  EXPECT_EQ(bench.shell.ended(), 1);
}

TEST_F(FilesWindowTest, TheWindowTellsOfWorkThatIsNotKept) {
  EXPECT_EQ(bench.find<QLabel>("statusoutput").text().toStdString(), "Synth");
  std::filesystem::remove_all(bench.home.path());
  modify();
  answer(QMessageBox::Ok, "Lunavox",
         "Disk full: tune.lvx\n\nLunavox has to end. The song as it stands could not be kept: "
         "Path/File access error: " +
             bench.home.file("state"));
  bench.shell.end_on_fault("Disk full: tune.lvx");
  bench.window.refresh_status();
  EXPECT_THAT(bench.find<QLabel>("statusoutput").text().toStdString(),
              StartsWith("Unsaved work is not kept: Path/File access error: "));
}

}  // namespace
}  // namespace lunavox
