#include "grid/tracks.h"

#include "grid/runtime_numbers.h"

#include <algorithm>
#include <array>

namespace lunavox {
namespace {

constexpr int kNoteWidth = 400;      // twips
constexpr int kEffectWidth = 600;    // twips
constexpr int kHeaderWidth = 3840;   // twips
constexpr int kSettingWidth = 1280;  // twips; three make a header's width

constexpr const char* kDrumHeader = "DRUM TRACK ";
constexpr const char* kInstrumentHeader = "INTRUMENT TRACK ";
constexpr const char* kDrumVoice = "standard 1";
constexpr const char* kInstrumentVoice = "GrandPno";

// By effect 1..11. Attack starts at 1 although its text reads 64: modules sound right that way, and
// songs have always been made so.
constexpr std::array<std::int16_t, kEffectSlots> kStartValues = {0,  0, 127, 64, 1,  64,
                                                                 40, 1, 1,   1,  64, 64};
constexpr std::array<const char*, kEffectSlots> kStartTexts = {"",   "",  "127", "64", "1",  "64",
                                                               "40", "1", "1",   "64", "64", "64"};

void set_centred_header(CellGrid& grid, int column, const std::string& text) {
  grid.set_column_width(column, kHeaderWidth);
  grid.set_cell(0, column, {text, kWhite, kTrackHeader, Alignment::kCentre});
}

}  // namespace

void set_track_columns(Song& song, int track_count) {
  song.tracks.set_columns(kColumnsPerTrack * track_count + 1);
  song.effects.set_columns(kSettingsPerTrack * track_count + 1);
  song.channels.set_columns(track_count + 1);
}

Tracks::Tracks(Song& song, Flags& flags, Screen& screen, Dialogs& dialogs, ProgressBox& progress)
    : song_(song), flags_(flags), screen_(screen), dialogs_(dialogs), progress_(progress) {}

void Tracks::adddrumtrack() {
  add_track("adding drum track...", kDrumHeader, kDrumVoice);
  if (hooks_.showeffect) hooks_.showeffect();
}

void Tracks::addinstrutrack() {
  if (song_.track_count >= kMaxTracks) {
    dialogs_.error("You can't add more intrument tracks", "Error");
    return;
  }
  flags_.modified = true;
  add_track("adding instrument track...", kInstrumentHeader, kInstrumentVoice);
  song_.bank.at(song_.track_count) = 0;
  if (hooks_.showeffect) hooks_.showeffect();
  if (hooks_.starteffect) hooks_.starteffect();
}

void Tracks::menudeltrack_click() {
  if (song_.track_count == 1) {
    dialogs_.error("you can't del drum track", "error");
    return;
  }
  flags_.modified = true;
  // The cursor leaves while the track is still whole: a value typed into it is committed then.
  song_.tracks.set_column(1);
  song_.actualtrack();
  const LongOperation operation(progress_, song_.tracks, "deleting track...", 1);
  song_.track_count -= 1;
  set_track_columns(song_, song_.track_count);
  screen_.fit(song_.track_count);
}

void Tracks::append_instrument_columns() {
  append_columns(kInstrumentHeader, kInstrumentVoice);
}

void Tracks::add_track(const std::string& caption, const std::string& header,
                       const std::string& voice) {
  {
    LongOperation operation(progress_, song_.tracks, caption, song_.track_count + 1);
    append_columns(header, voice);
    start_curves(song_.track_count);
    // A track that was deleted under this number may have left notes, which sound again: show them.
    song_.show_track_entries(song_.track_count);
    operation.set_value(song_.track_count);
  }
  // What follows the creation works on the current track, which is the new one.
  song_.tracks.set_column(effect_column_of(song_.track_count));
  song_.actualtrack();
}

void Tracks::append_columns(const std::string& header, const std::string& voice) {
  song_.track_count += 1;
  const int track = song_.track_count;
  song_.channel.at(track) = static_cast<std::int16_t>(channel_of_track(track));
  song_.shown_effect.at(track) = kVolume;
  screen_.fit(track);
  set_track_columns(song_, track);
  write_headers(track, header);
  write_settings(track, voice);
}

void Tracks::write_headers(int track, const std::string& header) {
  set_centred_header(song_.channels, track, header + print_number(track));
  for (int k = 1; k <= kNoteColumns; ++k) {
    const int column = first_column_of(track) + k - 1;
    song_.tracks.set_column_width(column, kNoteWidth);
    song_.tracks.set_text(0, column, "#" + print_number(k));
  }
  song_.tracks.set_column_width(effect_column_of(track), kEffectWidth);
  song_.tracks.set_text(0, effect_column_of(track), "Effect");
}

void Tracks::write_settings(int track, const std::string& voice) {
  CellGrid& effects = song_.effects;
  const int active = effects_column(track, Setting::kActive);
  const int start = effects_column(track, Setting::kStartValue);
  const int show = effects_column(track, Setting::kShow);
  for (const int column : {active, start, show}) effects.set_column_width(column, kSettingWidth);
  effects.set_text(0, active, "Active");
  effects.set_text(0, start, "Start value");
  effects.set_text(0, show, "Show");
  for (int e = kFirstEffect; e <= kLastEffect; ++e) {
    const auto index = static_cast<std::size_t>(e);
    song_.active.at(track)[index] = e == kInstrument;
    effects.set_text(e, active, e == kInstrument ? kYes : kNo);
    effects.set_text(e, start, e == kInstrument ? voice : kStartTexts[index]);
    effects.set_text(e, show, e == kVolume ? kYes : kNo);
  }
}

void Tracks::start_curves(int track) {
  for (int e = kFirstEffect; e <= kLastEffect; ++e) {
    auto& values = song_.values.column(track, e);
    std::fill(values.begin() + 1, values.end(), kStartValues[static_cast<std::size_t>(e)]);
    auto& keys = song_.key_attributes.column(track, e);
    std::fill(keys.begin(), keys.end(), std::uint8_t{0});
    keys[1] = 1;
  }
}

}  // namespace lunavox
