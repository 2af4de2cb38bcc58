#include "edit/block_tools.h"

#include "edit/block_selection.h"
#include "grid/note_text.h"
#include "grid/redraw_pause.h"
#include "grid/runtime_numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace lunavox {
namespace {

constexpr int kHighestVelocity = 127;
constexpr int kHighestPercent = 400;
constexpr int kHighestNote = 127;
/// Notes below would have one hexadecimal digit.
constexpr int kLowestNote = 16;

std::string last_four(const std::string& entry) {
  return entry.substr(entry.size() - std::min<std::size_t>(4, entry.size()));
}

std::string hex_digits(int value) {
  return hex_text(static_cast<std::uint32_t>(value));
}

/// The product in 16-bit signed arithmetic, none on overflow.
std::optional<int> product(int velocity, int percent) {
  using Limits = std::numeric_limits<std::int16_t>;
  const long long exact = static_cast<long long>(velocity) * percent;
  if (exact > Limits::max() || exact < Limits::min()) return std::nullopt;
  return static_cast<int>(exact);
}

/// Octave 10 shows its last digit.
std::string transposed_name(int note) {
  return std::string(note_name(note % 12)) + plain_number(note / 12).back();
}

}  // namespace

BlockTools::BlockTools(Song& song, Flags& flags, Dialogs& dialogs)
    : song_(song), flags_(flags), dialogs_(dialogs) {}

void BlockTools::velovalue() {
  const auto block = selected_block(song_, dialogs_);
  if (!block) return;
  const auto velocity = ask_number({"Notes fixed value (0-127)", "Velocity", song_.strength.text()},
                                   kHighestVelocity);
  if (!velocity) return;
  rewrite_notes(*block, [&](CellPosition cell, const std::string& entry) {
    set_velocity(cell, entry, *velocity);
    return true;
  });
}

void BlockTools::velopercent() {
  const auto block = selected_block(song_, dialogs_);
  if (!block) return;
  const auto percent = ask_number({"Percent of original notes velocity (0-400)", "Velocity", "100"},
                                  kHighestPercent);
  if (!percent) return;
  bool overflow = false;
  rewrite_notes(*block, [&](CellPosition cell, const std::string& entry) {
    const auto hundredfold = product(velocity_of(entry), *percent);
    overflow = !hundredfold;
    if (!overflow) set_velocity(cell, entry, std::clamp(*hundredfold / 100, 0, kHighestVelocity));
    return !overflow;
  });
  if (overflow) dialogs_.error("Overflow", "Error");
}

void BlockTools::transproc() {
  const auto block = selected_block(song_, dialogs_);
  if (!block) return;
  const std::string answer = dialogs_.input(
      {"Level of transpose (12=1 octave) negative values accepted", "Transpose", "12"});
  if (answer.empty()) return;
  const double level = std::floor(leading_number(answer));
  rewrite_notes(*block, [&](CellPosition cell, const std::string& entry) {
    const double moved = std::clamp<double>(note_of(entry) + level, kLowestNote, kHighestNote);
    set_note(cell, entry, static_cast<int>(moved));
    return true;
  });
}

std::optional<int> BlockTools::ask_number(const Question& question, int maximum) {
  const std::string answer = dialogs_.input(question);
  if (answer.empty()) return std::nullopt;
  const double number = std::nearbyint(leading_number(answer));  // halves to even
  if (!(number >= 0 && number <= maximum)) {
    dialogs_.error("You must enter a value between 0 and " + plain_number(maximum) + " !", "Error");
    return std::nullopt;
  }
  return static_cast<int>(number);
}

template <class Rewrite>
void BlockTools::rewrite_notes(const CellRegion& block, Rewrite rewrite) {
  const RedrawPause pause(song_.tracks);
  bool going_on = true;
  visit_block(block, [&](CellPosition cell) {
    if (!going_on) return;
    const std::string entry = entry_of(song_, cell);
    if (!is_note(entry)) return;
    going_on = rewrite(cell, entry);
    if (going_on) flags_.modified = true;
  });
}

void BlockTools::set_velocity(CellPosition cell, const std::string& entry, int velocity) {
  write_entry_of(song_, cell, hex_digits(velocity) + last_four(entry));
  song_.tracks.set_text_colour(cell.row, cell.column, velocity_colour(velocity));
}

void BlockTools::set_note(CellPosition cell, const std::string& entry, int note) {
  const std::string tail = last_four(entry);
  const std::string velocity = entry.substr(0, entry.size() - tail.size());
  const std::string status = tail.substr(std::min<std::size_t>(2, tail.size()));
  song_.tracks.set_text(cell.row, cell.column, transposed_name(note));
  write_entry_of(song_, cell, velocity + hex_digits(note) + status);
}

}  // namespace lunavox
