#include "files/file_commands.h"

#include "grid/runtime_error.h"
#include "grid/version.h"

#include <algorithm>
#include <system_error>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

const FileQuestion kOpenQuestion = {"Lunavox (*.lvo;*.lvx)|*.lvo;*.lvx", "Open"};
const FileQuestion kSaveQuestion = {"Lunavox 1.2 (*.lvx)|*.lvx", "Save"};
const FileQuestion kExportQuestion = {"midi file (*.mid)|*.mid", "Export"};

// After the name and the version.
constexpr const char* kAbout =
    "\nA tracker for General MIDI and XG sound modules.\n"
    "Free software under the MIT licence.";

std::string lower_case(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) {
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  });
  return text;
}

/// True for a name that ends as songs or MIDI files do.
bool has_extension(const std::string& name, const std::string& extension) {
  const std::string own = lower_case(fs::path(name).extension().string());
  return own == extension || (extension == ".lvx" && own == ".lvo");
}

}  // namespace

bool FileCommands::save_question(const std::string& command) {
  if (!desk_.flags.modified) return true;
  const Answer answer = desk_.dialogs.message(
      {"Do you want to save your music before ?", command, Icon::kNone, Buttons::kYesNoCancel});
  if (answer == Answer::kYes) menusave_click();
  return answer == Answer::kYes || answer == Answer::kNo;
}

void FileCommands::menunew_click() {
  if (!save_question("New")) return;
  stop_playing();
  procnew();
  // The new song is not the old one's file: saving it asks for a name.
  desk_.file.current_name = std::string();
  song_changed();
}

void FileCommands::procnew() {
  Song& song = desk_.song;
  desk_.flags.song_loading = true;
  clear_song();
  song.length.put("64");
  song.bpm.put("120");
  song.number.put("4");
  desk_.length.lengthchange();
  desk_.length.calcultime();
  desk_.tracks.adddrumtrack();
  song.tracks.set_cursor(1, 1);
  song.actualtrack();
  desk_.flags.song_loading = false;
  desk_.flags.modified = false;
}

void FileCommands::clear_song() {
  Song& song = desk_.song;
  song.tracks.set_cursor(1, 1);
  song.track_count = 0;
  set_track_columns(song, 0);
  const int last_row = song.notes.last_row();
  song.notes.redimension(last_row);
  song.values.redimension(last_row);
  song.key_attributes.redimension(last_row);
  for (int track = 0; track < kTrackSlots; ++track) {
    for (int e = kFirstEffect; e <= kLastEffect; ++e) song.key_attributes.at(track, e, 1) = 1;
  }
  song.bank.fill(0);
  song.used_columns.fill(0);
  song.shown_effect.fill(kVolume);
  song.bookmarks = std::vector<Bookmark>();
}

void FileCommands::menuopen_click() {
  if (!save_question("Open")) return;
  open(desk_.dialogs.open_file(kOpenQuestion));
}

void FileCommands::open_path(const std::string& given) {
  std::error_code none;
  // The name outlives this run in the recovery file, and the next run may start in another folder.
  const std::string name = fs::absolute(given, none).string();
  if (!fs::exists(name, none)) {
    desk_.dialogs.error("File not found: " + name, "Open");
    desk_.recent.remove(name);
    return;
  }
  if (save_question("Open")) open(name);
}

void FileCommands::open(const std::string& name) {
  const std::string before = desk_.file.current_name;
  // A dialog that was cancelled leaves no name either: saving asks for one then.
  desk_.file.current_name = name;
  if (name.empty()) return;
  stop_playing();
  try {
    if (desk_.file.procopen()) desk_.recent.add(name);
  } catch (const RuntimeError&) {
    desk_.file.current_name = before;
    throw;
  }
  desk_.song.actualtrack();
  song_changed();
}

void FileCommands::menusave_click() {
  if (desk_.file.current_name.get().empty()) {
    menusaveas_click();
  } else {
    save_as(desk_.file.current_name);
  }
}

void FileCommands::menusaveas_click() {
  save_as(chosen_name(kSaveQuestion, ".lvx"));
}

void FileCommands::save_as(const std::string& name) {
  const std::string before = desk_.file.current_name;
  desk_.file.current_name = name;
  if (name.empty()) return;
  stop_playing();
  try {
    desk_.file.procsave();
  } catch (const RuntimeError&) {
    desk_.file.current_name = before;
    throw;
  }
  desk_.recent.add(name);
}

void FileCommands::menuexport_click() {
  desk_.exporter.export_name = chosen_name(kExportQuestion, ".mid");
  if (desk_.exporter.export_name.get().empty()) return;
  desk_.recent.set_last_folder(desk_.exporter.export_name);
  stop_playing();
  desk_.exporter.procexport();
}

std::string FileCommands::chosen_name(const FileQuestion& question, const std::string& extension) {
  const std::string name = desk_.dialogs.save_file(question);
  if (name.empty() || has_extension(name, extension)) return name;
  const std::string extended = name + extension;
  std::error_code none;
  if (!fs::exists(extended, none)) return extended;
  // The dialog has asked about the name without the extension, if at all.
  const Answer answer =
      desk_.dialogs.message({extended + " is there already. Do you want to replace it?",
                             question.title, Icon::kNone, Buttons::kYesNoCancel});
  return answer == Answer::kYes ? extended : std::string();
}

void FileCommands::menuquit_click() {
  if (save_question("Quit") && hooks_.quit) hooks_.quit();
}

void FileCommands::menuhelp_click() {
  if (hooks_.open_document) hooks_.open_document(readme_);
}

void FileCommands::menuauthor_click() {
  desk_.dialogs.message({version_text() + kAbout, "About", Icon::kNone, Buttons::kOk});
}

void FileCommands::stop_playing() {
  if (desk_.flags.playing && hooks_.stop_playing) hooks_.stop_playing();
}

void FileCommands::song_changed() {
  if (hooks_.song_changed) hooks_.song_changed();
}

}  // namespace lunavox
