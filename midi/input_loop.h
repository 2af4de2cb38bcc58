#pragma once

#include "midi/loop.h"
#include "midi/received_notes.h"

namespace lunavox {

/// The idle loop `listen`: whatever arrives sounds, and is recorded step by step while the record
/// button is engaged. Runs when no other loop does; what waited for the end of another loop is
/// handled in its first pass.
class InputLoop : public Loop {
 public:
  explicit InputLoop(ReceivedNotes& received) : received_(received) {}

  /// Handles every message that waits, so that a chord sounds at once.
  void pass(std::uint32_t now) override;
  std::optional<std::uint32_t> next_due() const override { return std::nullopt; }

 private:
  ReceivedNotes& received_;
};

}  // namespace lunavox
