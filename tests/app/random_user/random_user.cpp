#include "random_user.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string>

namespace lunavox::test {
namespace {

/// A key: its virtual-key code and the character that it makes.
struct Key {
  int code;
  const char* character;
};

constexpr std::array kKeys = {
    Key{'Q', "q"}, Key{'W', "w"}, Key{'2', "2"}, Key{'5', "5"}, Key{'0', "0"}, Key{'9', "9"},
    Key{'Z', "z"}, Key{'X', "x"}, Key{'M', "m"}, Key{'U', "u"}, Key{191, "/"}, Key{8, "\b"},
    Key{13, "\r"}, Key{46, ""},   Key{226, "<"}, Key{32, " "},  Key{17, ""},   Key{113, ""},
    Key{115, ""},  Key{118, ""},  Key{186, ";"}, Key{190, "."}, Key{188, ","}, Key{221, "é"},
    Key{'1', "1"}, Key{'4', "4"}, Key{'7', "7"}, Key{'3', "3"}, Key{'6', "6"}, Key{13, "\r"},
};

constexpr std::array kAnswers = {"12", "-7",  "64",   "127", "0", "1",   "400", "",    "90",
                                 "x",  "3.5", "-200", "33",  "5", "110", "1e9", "128", "40"};

constexpr std::array kFieldTexts = {"2",  "8", "16", "120", "5",   "0",  "1", "12,5", "4",
                                    "33", "3", "-1", "abc", "300", "48", "",  "7",    "31"};

template <class Table>
auto pick(const Table& table, int number) {
  return table[static_cast<std::size_t>(number) % table.size()];
}

}  // namespace

RandomUser::RandomUser(const std::string& log_file)
    : bench_(Screen(1024, 768), log_file),
      recent_(bench_.folder.file("recent")),
      files_(
          {bench_.editor.song, bench_.editor.flags, bench_.editor.tracks, bench_.editor.song_length,
           bench_.editor.song_file, bench_.editor.midi_export, recent_, bench_.dialogs},
          "readme.htm"),
      recovery_(bench_.editor.song, bench_.editor.flags, bench_.editor.song_file, bench_.clock,
                bench_.folder.path() / "state"),
      listener_(bench_) {
  Editor& e = bench_.editor;
  files_.set_hooks({[&e] {
                      if (e.flags.playing) e.transport.playnotes_mouseup();
                    },
                    {},
                    {},
                    [&e] { e.voice_name.refresh(); }});
  e.shell.choose_drum_kit = [this] { bench_.editor.drum_choice.drumok_click(voice_.column); };
  e.shell.choose_instrument = [this] {
    VoiceChoice& choice = bench_.editor.voice_choice;
    choice.instrulist_mousedown(voice_);
    choice.instrulist_mouseup();
    choice.instruok_click(voice_);
  };
  bench_.inputs.device_names = {"Keyboard"};
  bench_.start();
  bench_.start_up.getinputid(0);
  bench_.output.device_names = {"Synth", "Module", "Other module"};
  e.outputdev.fill();
  e.notequeue.set_wake([this] { ++waiting_; });
  listener_.listen();
}

ScriptedInputs& RandomUser::share_inputs() {
  shared_ = true;
  return bench_.inputs;
}

std::string RandomUser::act(const Action& action) {
  wrong_.clear();
  began_song_ = false;
  prepare_answers(action);
  try {
    perform(action);
  } catch (const std::exception& error) {
    expect(false, std::string("no rule throws here: ") + error.what());
  }
  listener_.listen();
  return wrong_.empty() ? listener_.wrong() : wrong_;
}

void RandomUser::prepare_answers(const Action& action) {
  ScriptedDialogs& dialogs = bench_.dialogs;
  dialogs.messages.clear();
  dialogs.questions.clear();
  dialogs.opened.clear();
  dialogs.saved.clear();
  bench_.progress.shown.clear();
  bench_.progress.values.clear();
  bench_.inputs.calls.clear();
  bench_.count_in.calls.clear();
  dialogs.inputs = {pick(kAnswers, action.b)};
  dialogs.answers = {Answer::kNo};
  dialogs.files = {bench_.folder.file("tune.lvx")};
  voice_ = {action.b % 128, action.b % kNoteColumns};
}

void RandomUser::perform(const Action& action) {
  Editor& e = bench_.editor;
  CellGrid& grid = e.song.tracks;
  // Mostly among the first lines, so that what is done there meets what was done before.
  const int lines = action.b % 4 == 0 ? e.song.last_row() : std::min(8, e.song.last_row());
  const int row = 1 + action.a % lines;
  switch (action.deed) {
    case Deed::kPressKey:
      return press_key(action.a);
    case Deed::kReleaseKey:
      return release_key(action.a);
    case Deed::kLoseKeys:
      return e.note_keys.release_all();
    case Deed::kMoveCursor:
      return grid.set_cursor(row, 1 + action.b % (grid.columns() - 1));
    case Deed::kEnterEffectCell:
      return grid.set_cursor(row, effect_column_of(1 + action.b % e.song.track_count));
    case Deed::kSelect:
      return select(action.a, action.b);
    case Deed::kClickEffects:
      return e.curves.effects_click(action.a % e.song.effects.columns(), action.b % kEffectSlots);
    case Deed::kEnterField:
      return enter_field(action.a, action.b);
    case Deed::kTickOption:
      return tick_option(action.a);
    case Deed::kAddTrack:
      return e.tracks.addinstrutrack();
    case Deed::kDeleteTrack:
      return e.tracks.menudeltrack_click();
    case Deed::kCopy:
      return e.clipboard.copyproc();
    case Deed::kCut:
      return e.clipboard.cutproc();
    case Deed::kPaste:
      return e.clipboard.pasteproc();
    case Deed::kVelocityValue:
      return e.block_tools.velovalue();
    case Deed::kVelocityPercent:
      return e.block_tools.velopercent();
    case Deed::kTranspose:
      return e.block_tools.transproc();
    case Deed::kAddBookmark:
      e.bookmarks.image1_mousedown();
      return e.bookmarks.image1_mouseup();
    case Deed::kDeleteBookmark:
      e.bookmarks.image2_mousedown();
      return e.bookmarks.image2_mouseup();
    case Deed::kGoToBookmark:
      return e.bookmarks.bookmark_click(action.a % 4);
    case Deed::kChooseXg:
      if (action.a % 3 == 0) return e.xg_effects.reverb_click(action.b % 5);
      if (action.a % 3 == 1) return e.xg_effects.chorus_click(action.b % 5);
      return e.xg_effects.variation_click(action.b % 5);
    case Deed::kPlay:
      e.transport.playnotes_mousedown();
      return e.transport.playnotes_mouseup();
    case Deed::kRecord:
      e.recorder.recordnotes_mousedown();
      return e.recorder.recordnotes_click();
    case Deed::kReceive:
      return receive(action.a, action.b);
    case Deed::kWait:
      return wait(action.a);
    case Deed::kNew:
      return begin_song(action.b);
    case Deed::kOpen:
      return open(false);
    case Deed::kOpenOver:
      return open(true);
    case Deed::kSave:
      return save(false);
    case Deed::kSaveAs:
      return save(true);
    case Deed::kSaveNowhere:
      return save_nowhere();
    case Deed::kExport:
      return export_song();
    case Deed::kOpenRecent:
      return open_recent(action.a);
    case Deed::kOpenDamaged:
      return open_damaged(action.a, action.b);
    case Deed::kChooseOutput:
      return choose_output(action.a);
    case Deed::kScroll:
      return scroll(action.a, action.b);
    case Deed::kCancelCountIn:
      return e.realtime_loop.cancel();
    case Deed::kLetPlay:
      return let_play(10 * action.a);
    case Deed::kLoseProgram:
      return lose_program();
    case Deed::kTidyUp:
      return tidy_up();
  }
}

void RandomUser::press_key(int key) {
  Editor& e = bench_.editor;
  const Key pressed = pick(kKeys, key);
  // As the window does: it sees keys before the grid, and the grid asks what its keys are.
  e.transport.key_down(pressed.code);
  if (e.typing_mode.typing()) {
    e.typing_mode.key_press(pressed.character);
  } else {
    e.note_keys.keystart(pressed.code);
  }
  listener_.listen();
  pass();
}

void RandomUser::release_key(int key) {
  Editor& e = bench_.editor;
  if (!e.typing_mode.typing()) e.note_keys.keystop(pick(kKeys, key).code);
  pass();
}

void RandomUser::select(int rows, int columns) {
  CellGrid& grid = bench_.editor.song.tracks;
  const int row = std::clamp(grid.row() + rows % 9 - 4, 1, grid.rows() - 1);
  const int column = std::clamp(grid.column() + columns % 7 - 3, 1, grid.columns() - 1);
  grid.set_selection_end(row, column);
}

void RandomUser::enter_field(int field, int text) {
  Editor& e = bench_.editor;
  const std::string entry = pick(kFieldTexts, text);
  switch (field % 6) {
    case 0:
      e.song_length.bpm_change(entry);
      return;
    case 1:
      e.song_length.length_validate(entry);
      return;
    case 2:
      e.song_length.number_change(entry);
      return;
    case 3:
      e.song_length.step_change(entry);
      return;
    case 4:
      e.song_length.strength_change(entry);
      return;
    default:
      e.options.before_change(entry, bench_.dialogs);
  }
}

void RandomUser::tick_option(int option) {
  RecordOptions& options = bench_.editor.options;
  const std::array<Property<bool>*, 5> boxes = {
      &options.realtime, &options.begin, &options.velocity, &options.curs, &options.metronome};
  Property<bool>& box = *pick(boxes, option);
  box = !box.get();
}

void RandomUser::scroll(int row, int track) {
  const Editor& e = bench_.editor;
  bench_.editor.song.tracks.set_top_row(1 + row % e.song.last_row());
  bench_.editor.screen.defilchan = 1 + track % e.screen.defilchan_max.get();
}

void RandomUser::choose_output(int item) {
  Editor& e = bench_.editor;
  const int index = item % static_cast<int>(e.outputdev.items.get().size());
  expect(e.outputdev.click(index), "an output opens");
}

void RandomUser::expect(bool held, const std::string& what) {
  if (!held && wrong_.empty()) wrong_ = what;
}

}  // namespace lunavox::test
