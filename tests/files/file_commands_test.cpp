#include "files/file_commands.h"

#include "grid/runtime_error.h"
#include "tests/support/song_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::SongBench;
using test::TempFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class FileMenu : public ::testing::Test {
 protected:
  FileMenu() {
    commands.set_hooks({[this] { ++stops; }, [this] { ++quits; },
                        [this](const std::filesystem::path& document) { opened = document; },
                        [this] { ++songs; }});
  }

  static Message save_question(const std::string& command) {
    return {"Do you want to save your music before ?", command, Icon::kNone, Buttons::kYesNoCancel};
  }
  /// Saves a song of some lines elsewhere.
  std::string other_song(const std::string& name, int lines) {
    SongBench other(lines);
    other.file.current_name = folder.file(name);
    other.file.procsave();
    return folder.file(name);
  }

  TempFolder folder;
  SongBench bench{16};
  MidiExport exporter{bench.song, bench.progress};
  RecentFiles recent{folder.file("settings/recent")};
  FileCommands commands{{bench.song, bench.flags, bench.tracks, bench.length, bench.file, exporter,
                         recent, bench.dialogs},
                        "/share/readme.htm"};
  int stops = 0;
  int quits = 0;
  int songs = 0;
  std::filesystem::path opened;
};

TEST_F(FileMenu, NothingIsAskedWhileNothingIsUnsaved) {
  commands.menunew_click();
  commands.menuopen_click();
  commands.menuquit_click();
  EXPECT_THAT(bench.dialogs.messages, IsEmpty());
  EXPECT_EQ(quits, 1);
}

TEST_F(FileMenu, EachCommandAsksUnderItsOwnName) {
  bench.flags.modified = true;
  commands.menunew_click();
  commands.menuopen_click();
  commands.menuquit_click();
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(save_question("New"), save_question("Open"), save_question("Quit")));
  EXPECT_EQ(quits, 0) << "cancelled";
  EXPECT_THAT(bench.dialogs.opened, IsEmpty());
  EXPECT_EQ(bench.song.length.text(), "16");
  EXPECT_TRUE(bench.flags.modified);
}

TEST_F(FileMenu, NoGoesOnWithoutSaving) {
  bench.file.current_name = folder.file("song.lvx");
  bench.flags.modified = true;
  bench.dialogs.answers = {Answer::kNo};
  commands.menuquit_click();
  EXPECT_EQ(quits, 1);
  EXPECT_FALSE(folder.has("song.lvx"));
}

TEST_F(FileMenu, YesSavesAndGoesOn) {
  bench.file.current_name = folder.file("song.lvx");
  bench.flags.modified = true;
  bench.dialogs.answers = {Answer::kYes};
  commands.menuquit_click();
  EXPECT_EQ(quits, 1);
  EXPECT_TRUE(folder.has("song.lvx"));
}

TEST_F(FileMenu, ASaveAsCancelledInsideTheQuestionStillGoesOn) {
  bench.flags.modified = true;
  bench.dialogs.answers = {Answer::kYes};
  commands.menuquit_click();
  EXPECT_EQ(bench.dialogs.saved.size(), 1U);
  EXPECT_EQ(quits, 1);
}

TEST_F(FileMenu, NewResetsTheSong) {
  bench.tracks.addinstrutrack();
  Song& song = bench.song;
  song.write_entry(1, 1, 1, "642499");
  song.show_entry(1, 1, 1);
  song.write_entry(2, 8, 16, "643C90");
  song.values.at(2, kPan, 5) = 3;
  song.bank.at(2) = 7;
  song.shown_effect.fill(5);
  song.bookmarks = std::vector<Bookmark>{{"verse", 3}};
  song.reverb = 3;
  song.chorus = 4;
  song.variation = 5;
  song.bpm.put("99");
  song.number.put("3");
  song.step.put("3");
  song.tracks.set_cursor(9, 12);
  bench.flags.modified = true;
  bench.dialogs.answers = {Answer::kNo};
  commands.menunew_click();

  EXPECT_EQ(song.track_count, 1);
  EXPECT_EQ(song.tracks.columns(), 10);
  EXPECT_EQ(song.effects.columns(), 4);
  EXPECT_EQ(song.channels.columns(), 2);
  EXPECT_EQ(song.channels.text(0, 1), "DRUM TRACK  1");
  EXPECT_EQ(song.length.text(), "64");
  EXPECT_EQ(song.bpm.text(), "120");
  EXPECT_EQ(song.number.text(), "4");
  EXPECT_EQ(song.tracks.rows(), 65);
  EXPECT_EQ(song.tracks.text(64, 0), "3F");
  EXPECT_EQ(song.tracks.text(1, 1), "");
  EXPECT_EQ(bench.length.timemin.get(), " 0:08");
  EXPECT_EQ(song.tracks.cursor(), (CellPosition{1, 1}));
  EXPECT_THAT(song.bookmarks.get(), IsEmpty());
  for (int track = 0; track <= 16; ++track) EXPECT_EQ(song.shown_effect.at(track), 2) << track;
  EXPECT_EQ(song.notes.at(1, 1, 1), "");
  EXPECT_EQ(song.notes.at(2, 8, 16), "");
  EXPECT_EQ(song.used_columns.at(2), 0);
  EXPECT_EQ(song.bank.at(2), 0);
  EXPECT_EQ(song.reverb.get(), 3) << "what the module has set stays in the lists";
  EXPECT_EQ(song.chorus.get(), 4);
  EXPECT_EQ(song.variation.get(), 5);
  EXPECT_EQ(song.step.text(), "3") << "only length, tempo and lines per beat start afresh";
  EXPECT_EQ(song.values.at(1, kVolume, 64), 127) << "every line continues the start value";
  for (int track = 0; track <= 16; ++track) {
    for (int effect = 1; effect <= 11; ++effect) {
      EXPECT_EQ(song.key_attributes.at(track, effect, 1), 1) << track << ' ' << effect;
      EXPECT_EQ(song.key_attributes.at(track, effect, 2), 0) << track << ' ' << effect;
    }
  }
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_FALSE(bench.flags.song_loading);
  EXPECT_EQ(songs, 1);
}

TEST_F(FileMenu, ANewSongIsTheOneThatTheEditorStartsWith) {
  const SongBench fresh(64);
  bench.tracks.addinstrutrack();
  bench.song.write_entry(1, 1, 1, "642499");
  bench.flags.modified = false;
  commands.menunew_click();
  const std::string name = folder.file("new.lvx");
  bench.file.current_name = name;
  bench.file.procsave();
  const std::string saved = folder.read("new.lvx");
  SongBench other(64);
  other.file.current_name = name;
  other.file.procsave();
  EXPECT_EQ(saved, folder.read("new.lvx"));
  EXPECT_EQ(bench.song.tracks, fresh.song.tracks);
}

TEST_F(FileMenu, ANewSongDoesNotOverwriteTheOldOnesFile) {
  bench.file.current_name = folder.write("song.lvx", "old");
  commands.menunew_click();
  commands.menusave_click();
  EXPECT_EQ(bench.dialogs.saved.size(), 1U);
  EXPECT_EQ(folder.read("song.lvx"), "old");
}

TEST_F(FileMenu, OpenShowsItsDialogAndReadsTheSong) {
  bench.dialogs.files = {other_song("other.lvx", 32)};
  commands.menuopen_click();
  EXPECT_THAT(bench.dialogs.opened,
              ElementsAre(FileQuestion{"Lunavox (*.lvo;*.lvx)|*.lvo;*.lvx", "Open"}));
  EXPECT_EQ(bench.song.length.text(), "32");
  EXPECT_EQ(bench.file.current_name.get(), folder.file("other.lvx"));
  EXPECT_THAT(recent.names.get(), ElementsAre(folder.file("other.lvx")));
  EXPECT_EQ(songs, 1);
}

TEST_F(FileMenu, ACancelledOpenLeavesNoName) {
  bench.file.current_name = folder.file("song.lvx");
  commands.menuopen_click();
  EXPECT_EQ(bench.file.current_name.get(), "");
  EXPECT_EQ(bench.song.length.text(), "16");
  commands.menusave_click();
  EXPECT_EQ(bench.dialogs.saved.size(), 1U) << "saving asks for a name";
}

TEST_F(FileMenu, ARefusedFilesNameStays) {
  bench.file.current_name = folder.file("song.lvx");
  bench.dialogs.files = {folder.write("newer.lvx", "3.0\r\n")};
  commands.menuopen_click();
  EXPECT_EQ(bench.file.current_name.get(), folder.file("newer.lvx"));
  EXPECT_THAT(recent.names.get(), IsEmpty());
  commands.menusave_click();
  EXPECT_EQ(folder.read("newer.lvx").substr(0, 5), "2.0\r\n");
}

TEST_F(FileMenu, ABrokenFileLeavesTheSongUnderItsName) {
  bench.file.current_name = folder.file("song.lvx");
  bench.dialogs.files = {folder.write("broken.lvx", "2.0\r\n 1 \r\n")};
  EXPECT_THROW(commands.menuopen_click(), RuntimeError);
  EXPECT_EQ(bench.file.current_name.get(), folder.file("song.lvx"));
  EXPECT_EQ(bench.song.length.text(), "16");
}

TEST_F(FileMenu, SaveWritesToTheCurrentName) {
  bench.file.current_name = folder.file("song.lvx");
  bench.flags.modified = true;
  commands.menusave_click();
  EXPECT_TRUE(folder.has("song.lvx"));
  EXPECT_THAT(bench.dialogs.saved, IsEmpty());
  EXPECT_FALSE(bench.flags.modified);
  EXPECT_THAT(recent.names.get(), ElementsAre(folder.file("song.lvx")));
}

TEST_F(FileMenu, SaveWithoutANameIsSaveAs) {
  bench.dialogs.files = {folder.file("song.lvx")};
  commands.menusave_click();
  EXPECT_THAT(bench.dialogs.saved, ElementsAre(FileQuestion{"Lunavox 1.2 (*.lvx)|*.lvx", "Save"}));
  EXPECT_TRUE(folder.has("song.lvx"));
  EXPECT_EQ(bench.file.current_name.get(), folder.file("song.lvx"));
}

TEST_F(FileMenu, ACancelledSaveAsLeavesNoName) {
  bench.file.current_name = folder.file("song.lvx");
  commands.menusaveas_click();
  EXPECT_EQ(bench.file.current_name.get(), "");
}

TEST_F(FileMenu, AFailedSaveLeavesTheSongUnderItsName) {
  bench.file.current_name = folder.file("song.lvx");
  bench.dialogs.files = {folder.file("gone/song.lvx")};
  bench.flags.modified = true;
  EXPECT_THROW(commands.menusaveas_click(), RuntimeError);
  EXPECT_EQ(bench.file.current_name.get(), folder.file("song.lvx"));
  EXPECT_TRUE(bench.flags.modified);
  EXPECT_THAT(recent.names.get(), IsEmpty());
}

TEST_F(FileMenu, TheExtensionIsAddedWhereItIsLeftOut) {
  bench.dialogs.files = {folder.file("song"), folder.file("song.v2"), folder.file("Song.LVX"),
                         folder.file("old.lvo"), folder.file("song")};
  for (int i = 0; i < 4; ++i) commands.menusaveas_click();
  commands.menuexport_click();
  EXPECT_TRUE(folder.has("song.lvx"));
  EXPECT_TRUE(folder.has("song.v2.lvx"));
  EXPECT_TRUE(folder.has("Song.LVX"));
  EXPECT_TRUE(folder.has("old.lvo"));
  EXPECT_TRUE(folder.has("song.mid"));
}

TEST_F(FileMenu, AnAddedExtensionDoesNotOverwriteUnasked) {
  folder.write("song.lvx", "old");
  bench.dialogs.files = {folder.file("song"), folder.file("song")};
  bench.dialogs.answers = {Answer::kNo, Answer::kYes};
  commands.menusaveas_click();
  EXPECT_EQ(folder.read("song.lvx"), "old");
  EXPECT_THAT(bench.dialogs.messages.at(0).text,
              StartsWith(folder.file("song.lvx") + " is there already."));
  commands.menusaveas_click();
  EXPECT_NE(folder.read("song.lvx"), "old");
}

TEST_F(FileMenu, ExportAsksForANameAndKeepsTheSongs) {
  bench.file.current_name = folder.file("song.lvx");
  bench.flags.modified = true;
  bench.dialogs.files = {folder.file("song.mid")};
  commands.menuexport_click();
  EXPECT_THAT(bench.dialogs.saved, ElementsAre(FileQuestion{"midi file (*.mid)|*.mid", "Export"}));
  EXPECT_EQ(exporter.export_name.get(), folder.file("song.mid"));
  EXPECT_EQ(folder.read("song.mid").substr(0, 4), "MThd");
  EXPECT_EQ(bench.file.current_name.get(), folder.file("song.lvx"));
  EXPECT_TRUE(bench.flags.modified);
}

TEST_F(FileMenu, ACancelledExportWritesNothing) {
  commands.menuexport_click();
  EXPECT_EQ(exporter.export_name.get(), "");
  EXPECT_EQ(folder.entries(), 0);
}

TEST_F(FileMenu, FileWorkStopsPlaying) {
  bench.flags.playing = true;
  bench.dialogs.files = {folder.file("song.lvx"), folder.file("song.lvx"), folder.file("a.mid")};
  commands.menusaveas_click();
  commands.menuopen_click();
  commands.menuexport_click();
  commands.menunew_click();
  EXPECT_EQ(stops, 4);
  commands.menuopen_click();
  EXPECT_EQ(stops, 4) << "a cancelled dialog does not";
}

TEST_F(FileMenu, APathIsOpenedAfterTheSaveQuestion) {
  const std::string name = other_song("other.lvx", 32);
  bench.flags.modified = true;
  commands.open_path(name);
  EXPECT_THAT(bench.dialogs.messages, ElementsAre(save_question("Open")));
  EXPECT_EQ(bench.song.length.text(), "16");
  bench.dialogs.answers = {Answer::kNo};
  commands.open_path(name);
  EXPECT_EQ(bench.song.length.text(), "32");
}

TEST_F(FileMenu, ASongHasItsWholeNameHoweverItWasGiven) {
  const std::string name = other_song("other.lvx", 32);
  commands.open_path(std::filesystem::relative(name).string());
  EXPECT_EQ(std::filesystem::path(bench.file.current_name.get()).lexically_normal(), name);
  EXPECT_TRUE(std::filesystem::path(bench.file.current_name.get()).is_absolute());
}

TEST_F(FileMenu, APathThatIsNotThereLeavesTheRecentFiles) {
  recent.add(folder.file("gone.lvx"));
  commands.open_path(folder.file("gone.lvx"));
  EXPECT_THAT(bench.dialogs.messages,
              ElementsAre(test::error_box("File not found: " + folder.file("gone.lvx"), "Open")));
  EXPECT_THAT(recent.names.get(), IsEmpty());
}

TEST_F(FileMenu, HelpOpensTheHelpPage) {
  commands.menuhelp_click();
  EXPECT_EQ(opened, "/share/readme.htm");
}

TEST_F(FileMenu, AboutTellsNameAndVersion) {
  commands.menuauthor_click();
  ASSERT_EQ(bench.dialogs.messages.size(), 1U);
  EXPECT_EQ(bench.dialogs.messages[0].title, "About");
  EXPECT_THAT(bench.dialogs.messages[0].text, StartsWith("Lunavox 2.1\n"));
}

}  // namespace
}  // namespace lunavox
