#include "editor_invariants.h"
#include "files/recovery_text.h"
#include "files/song_writer.h"
#include "grid/runtime_error.h"
#include "random_user.h"

#include <array>
#include <sstream>
#include <string>

namespace lunavox::test {
namespace {

constexpr const char* kSongName = "tune.lvx";
constexpr const char* kDamagedName = "damaged.lvx";

std::string text_of(const Song& song) {
  return song_text(song);
}

/// The next line without its end.
std::string next_line(std::istream& lines) {
  std::string line;
  std::getline(lines, line);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

/// Where a text first differs from what it is to be, empty where it does not.
std::string difference(const std::string& wanted, const std::string& text) {
  if (text == wanted) return {};
  std::istringstream wanted_lines(wanted);
  std::istringstream lines(text);
  for (int number = 1; wanted_lines || lines; ++number) {
    const std::string wanted_line = next_line(wanted_lines);
    const std::string line = next_line(lines);
    if (line == wanted_line) continue;
    std::ostringstream what;
    what << "line " << number << " is \"" << line << "\", not \"" << wanted_line << '"';
    return what.str();
  }
  return "the line ends differ";
}

/// A song file with something wrong: cut short, or a line changed, missing or twice there.
/// @param place  where, 0..999 of a thousand
std::string damaged(const std::string& text, int place, int damage) {
  constexpr std::array kStrange = {"-3", "", "x", "99999", "1,2", "\"", "400", "0"};
  const std::size_t at = text.size() * static_cast<std::size_t>(place) / 1000;
  if (damage % 4 == 0) return text.substr(0, at);
  const std::size_t newline = text.rfind('\n', at);
  const std::size_t begin = newline == std::string::npos ? 0 : newline + 1;
  const std::size_t end = text.find('\n', begin);
  if (end == std::string::npos) return text.substr(0, begin);
  const std::string line = text.substr(begin, end + 1 - begin);
  std::string instead;
  if (damage % 4 == 2) instead = line + line;
  if (damage % 4 == 3) {
    instead = kStrange[static_cast<std::size_t>(damage / 4) % kStrange.size()];
    instead += "\r\n";
  }
  return text.substr(0, begin) + instead + text.substr(end + 1);
}

}  // namespace

void RandomUser::begin_song(int answer) {
  constexpr std::array kAnswers = {Answer::kNo, Answer::kYes, Answer::kCancel};
  Editor& e = bench_.editor;
  const Answer given = kAnswers[static_cast<std::size_t>(answer) % kAnswers.size()];
  const bool asked = e.flags.modified;
  const std::string name = e.song_file.current_name;
  const std::string before = text_of(e.song);
  const int tracks = e.song.track_count;
  bench_.dialogs.answers = {given};
  files_.menunew_click();
  if (asked && given == Answer::kCancel) {
    expect(text_of(e.song) == before, "a cancelled command leaves the song");
  } else {
    began_song_ = true;
    expect(e.song.track_count == 1 && !e.flags.modified, "a new song has the drum track alone");
  }
  if (asked && given == Answer::kYes) {
    const std::string file = name.empty() ? bench_.folder.file(kSongName) : name;
    saved_[file] = tracks;
    expect(bench_.folder.read(std::filesystem::path(file).filename().string()) == before,
           "what was saved on the way is the song");
  }
}

void RandomUser::begin_song_unsaved() {
  bench_.dialogs.answers = {Answer::kNo};
  files_.menunew_click();
  began_song_ = true;
}

void RandomUser::open(bool over) {
  if (!bench_.folder.has(kSongName)) return;
  if (!over) begin_song_unsaved();
  bench_.dialogs.answers = {Answer::kNo};
  open_file(bench_.folder.file(kSongName));
}

void RandomUser::open_recent(int place) {
  const std::vector<std::string>& names = recent_.names.get();
  if (names.empty()) return;
  // A copy: opening it brings it to the front of the list.
  const std::string name = names[static_cast<std::size_t>(place) % names.size()];
  open_file(name);
}

void RandomUser::open_damaged(int place, int damage) {
  const std::string whole =
      bench_.folder.has(kSongName) ? bench_.folder.read(kSongName) : text_of(bench_.editor.song);
  const std::string name = bench_.folder.write(kDamagedName, damaged(whole, place, damage));
  saved_.erase(name);
  open_file(name);
}

void RandomUser::open_file(const std::string& name) {
  Editor& e = bench_.editor;
  const auto saved = saved_.find(name);
  // A file is read for all tracks of the song: one with fewer tracks ends too early for it.
  const bool too_short = saved != saved_.end() && saved->second < e.song.track_count;
  e.typing_mode.finish();
  const std::string before = text_of(e.song);
  const std::size_t bookmarks = e.song.bookmarks.get().size();
  bench_.dialogs.files = {name};
  bool thrown = false;
  try {
    files_.menuopen_click();
  } catch (const RuntimeError&) {
    thrown = true;
  }
  if (saved != saved_.end()) {
    expect(thrown == too_short, "opening throws where the file has fewer tracks, and only there");
  }
  if (thrown) {
    expect(text_of(e.song) == before, "a failed opening changes nothing");
  } else if (too_short || saved == saved_.end()) {
    // What a damaged file leads to is nobody's song. Of it, a new one leaves but the entry step,
    // which a file may set to anything.
    begin_song_unsaved();
    e.song_length.step_change("1");
  } else {
    began_song_ = true;
    compare_opened(name, bookmarks);
  }
}

void RandomUser::compare_opened(const std::string& name, std::size_t bookmarks_before) {
  Song opened = bench_.editor.song;
  // The file's bookmarks come behind those of the song that was there.
  std::vector<Bookmark> bookmarks = opened.bookmarks;
  bookmarks.erase(bookmarks.begin(),
                  bookmarks.begin() + static_cast<std::ptrdiff_t>(bookmarks_before));
  opened.bookmarks = bookmarks;
  const std::string file = std::filesystem::path(name).filename().string();
  const std::string wrong = difference(bench_.folder.read(file), text_of(opened));
  expect(wrong.empty(), "a song that is opened is that of its file: " + wrong);
}

void RandomUser::save(bool as) {
  if (as) files_.menusaveas_click();
  if (!as) files_.menusave_click();
  const Editor& e = bench_.editor;
  saved_[e.song_file.current_name] = e.song.track_count;
}

void RandomUser::save_nowhere() {
  const std::string before = bench_.editor.song_file.current_name;
  bench_.dialogs.files = {bench_.folder.file("no such folder/tune.lvx")};
  bool thrown = false;
  try {
    files_.menusaveas_click();
  } catch (const RuntimeError&) {
    thrown = true;
  }
  expect(thrown, "saving into a folder that is not there throws");
  expect(bench_.editor.song_file.current_name.get() == before, "a failed save keeps the name");
}

void RandomUser::export_song() {
  const Editor& e = bench_.editor;
  const bool modified = e.flags.modified;
  const std::string before = text_of(e.song);
  bench_.dialogs.files = {bench_.folder.file("tune.mid")};
  files_.menuexport_click();
  expect(bench_.folder.read("tune.mid").starts_with("MThd"), "an export is a MIDI file");
  expect(text_of(e.song) == before && e.flags.modified == modified, "an export changes nothing");
}

void RandomUser::lose_program() {
  const Editor& e = bench_.editor;
  const bool kept = recovery_.write_now();
  expect(kept == e.flags.modified, "what is not saved is kept, and that alone");
  if (!kept) return;
  const std::string name = "state/" + recovery_.file().filename().string();
  expect(bench_.folder.read(name) == recovery_text(e.song, e.song_file.current_name),
         "what is kept is the song");
}

std::string RandomUser::compare_reopened() {
  Editor& e = bench_.editor;
  const std::string text = text_of(e.song);
  EditorBench other;
  other.start();
  other.editor.song_file.current_name = other.folder.write("again.lvx", text);
  try {
    other.editor.song_file.procopen();
    other.editor.song_file.procsave();
  } catch (const RuntimeError& error) {
    return std::string("a saved song opens again: ") + error.what();
  }
  if (other.folder.read("again.lvx") != text) return "a song that is opened saves as it was";
  const std::string broken = EditorInvariants().check(other.editor);
  return broken.empty() ? "" : "in the song that is opened again: " + broken;
}

}  // namespace lunavox::test
