#pragma once

namespace lunavox {

/// Asks the system to run this thread before the ordinary programs' ones, the window's own work
/// included, or no longer. What the user is not permitted is not done: lines are then as late as
/// the machine is busy. Programs and threads that are started meanwhile run like others.
void run_before_others(bool before);

}  // namespace lunavox
