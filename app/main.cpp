#include "app/command_line.h"
#include "app/headless.h"
#include "app/logged_outputs.h"
#include "app/ui/run_window.h"
#include "midi/ports/system_input_devices.h"
#include "midi/ports/system_output_devices.h"

#include <atomic>
#include <csignal>
#include <iostream>

namespace lunavox {
namespace {

constexpr int kWrongCommandLine = 2;

std::atomic<bool> interrupted{false};

void interrupt(int) {
  interrupted = true;
}

/// Has the run ended in good order by Ctrl-C, by a wish that the program end, and by its terminal's
/// being closed, unless the run was started so as to outlive that (nohup).
void handle_signals() {
  std::signal(SIGINT, interrupt);
  std::signal(SIGTERM, interrupt);
#ifdef SIGHUP
  if (std::signal(SIGHUP, interrupt) == SIG_IGN) std::signal(SIGHUP, SIG_IGN);
#endif
}

int edit(const CommandLine& line, OutputDevices& outputs, InputDevices& inputs) {
  LoggedOutputs logged(outputs, line.midi_log);
  return run_window(line, logged.get(), inputs);
}

int run(const CommandLine& line) {
  SystemOutputDevices outputs(line.soundfont);
  SystemInputDevices inputs;
  if (line.mode == Mode::kEdit) return edit(line, outputs, inputs);
  handle_signals();
  return run_headless(line, {outputs, inputs, std::cout, std::cerr, interrupted});
}

int start(const std::vector<std::string>& arguments) {
  try {
    return run(read_command_line(arguments));
  } catch (const CommandLineError& error) {
    std::cerr << "lunavox: " << error.what() << "; lunavox --help tells more\n";
    return kWrongCommandLine;
  } catch (const std::exception& error) {
    std::cerr << "lunavox: " << error.what() << '\n';
    return 1;
  }
}

}  // namespace
}  // namespace lunavox

int main(int argc, char** argv) {
  return lunavox::start({argv + 1, argv + argc});
}
