#include "midi/input_loop.h"

namespace lunavox {

void InputLoop::pass(std::uint32_t) {
  received_.handle_waiting(ReceivedNotes::Move::kStep);
}

}  // namespace lunavox
