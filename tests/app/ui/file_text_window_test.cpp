#include "files/ui/voice_table_model.h"
#include "window_bench.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTableView>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

TEST(FileTextWindow, SongsAndBanksShowTheirTextsSo) {
  test::WindowBench bench;
  bench.editor.song.bookmarks = std::vector<Bookmark>{{"Fl\xf6te", 1}};
  EXPECT_EQ(bench.find<QComboBox>("bookmark").itemText(0), QStringLiteral("Fl\u00f6te"));
  bench.editor.song.effects.set_text(1, 2, "Fl\xf6te");
  auto& effects = bench.find<QTableView>("effects");
  EXPECT_EQ(effects.model()->index(0, 1).data().toString(), QStringLiteral("Fl\u00f6te"));
  const QImage painted = effects.grab().toImage();
  bench.editor.song.effects.set_text(1, 2, "Fl\xc3\xb6te");
  EXPECT_EQ(effects.grab().toImage(), painted);
  bench.editor.voice_name.text = "Fl\xf6te";
  EXPECT_EQ(bench.find<QLabel>("voicename").text(), QStringLiteral("Fl\u00f6te"));

  const VoiceBanks voices = VoiceBanks::parse("Fl\xf6te,0,0");
  EXPECT_EQ(VoiceTableModel(voices).index(0, 0).data().toString(), QStringLiteral("Fl\u00f6te"));
  bench.editor.kits = DrumKits::parse("Fl\xf6te,0,b,1,c,2,d,3,e,4,f,5,g,6,h,7,i,8");
  bench.editor.shell.choose_drum_kit();
  EXPECT_EQ(bench.find<QListWidget>("drumlist").item(0)->text(), QStringLiteral("Fl\u00f6te"));
  bench.find<QDialog>("Form4").reject();
  bench.editor.voices = voices;
  bench.editor.shell.choose_instrument();
  EXPECT_TRUE(bench.find<QLabel>("details").text().startsWith(QStringLiteral("Fl\u00f6te ")));
  bench.find<QDialog>("Form5").reject();
}

TEST(FileTextWindow, WhatCannotBeReadAsUtf8GoesBackIntoTheFileUnchanged) {
  test::TempFolder folder;
  test::WindowBench bench;
  bench.editor.song.bookmarks = std::vector<Bookmark>{{"Fl\xf6te", 1}};
  bench.editor.song_file.current_name = folder.file("song.lvx");
  bench.editor.song_file.procsave();
  EXPECT_NE(folder.read("song.lvx").find("\r\nFl\xf6te\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lunavox
