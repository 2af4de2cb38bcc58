#pragma once

#include <iosfwd>
#include <random>
#include <vector>

namespace lunavox::test {

/// What a random user can do.
enum class Deed {
  kPressKey,
  kReleaseKey,
  kLoseKeys,
  kMoveCursor,
  kEnterEffectCell,
  kSelect,
  kClickEffects,
  kEnterField,
  kTickOption,
  kAddTrack,
  kDeleteTrack,
  kCopy,
  kCut,
  kPaste,
  kVelocityValue,
  kVelocityPercent,
  kTranspose,
  kAddBookmark,
  kDeleteBookmark,
  kGoToBookmark,
  kChooseXg,
  kPlay,
  kRecord,
  kReceive,
  kWait,
  kNew,
  kOpen,
  kOpenOver,
  kSave,
  kSaveAs,
  kSaveNowhere,
  kExport,
  kOpenRecent,
  kOpenDamaged,
  kChooseOutput,
  kScroll,
  kCancelCountIn,
  kLetPlay,      ///< lets seconds go by, line after line
  kLoseProgram,  ///< what a program that ends early leaves behind
  kTidyUp,       ///< ends everything and lets go of every key; never drawn by chance
};
inline constexpr int kDeeds = static_cast<int>(Deed::kTidyUp) + 1;

/// One thing done. Its numbers are brought into the range that the editor offers at that time, so
/// that an action stays possible when those before it are left out.
struct Action {
  Deed deed = Deed::kWait;
  int a = 0;
  int b = 0;
};
using Script = std::vector<Action>;

/// As it is written in a test that replays it.
std::ostream& operator<<(std::ostream& out, const Action& action);

/// An action drawn by how often users do it.
Action random_action(std::mt19937& chance);

}  // namespace lunavox::test
