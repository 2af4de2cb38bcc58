#include "midi/ui/line_priority.h"

#if __has_include(<sched.h>)
#include <sched.h>
#endif

namespace lunavox {

void run_before_others([[maybe_unused]] bool before) {
#ifdef SCHED_RESET_ON_FORK
  // The lowest of these priorities: sound servers and drivers, which take what is played here
  // further, go before us.
  sched_param parameters{};
  parameters.sched_priority = before ? sched_get_priority_min(SCHED_RR) : 0;
  (void)sched_setscheduler(0, (before ? SCHED_RR : SCHED_OTHER) | SCHED_RESET_ON_FORK, &parameters);
#endif
}

}  // namespace lunavox
