#include "own_process.h"

#include "tests/support/temp_folder.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lunavox::test {
namespace {

// What the process writes into the pipe: a mark for each action that it begins and, when it has
// come to an end by itself, another and the text of what is wrong.
constexpr char kBegun = '.';
constexpr char kDone = '\n';

struct Report {
  std::string text;
  bool in_time = true;
};

void write_all(int pipe, const std::string& text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t written = ::write(pipe, text.data() + at, text.size() - at);
    if (written <= 0) std::abort();
    at += static_cast<std::size_t>(written);
  }
}

/// Lets no exception out: the process would go on as a second test program.
[[noreturn]] void replay_into(int pipe, const Script& script, const ToldReplay& replay) noexcept {
  const Outcome outcome = replay(script, [&] { write_all(pipe, {kBegun}); });
  write_all(pipe, kDone + outcome.wrong);
  // Not at once: memory that was lost is looked for on the way out.
  std::exit(0);
}

/// Reads until nobody writes any more, or nothing comes for too long.
Report read_report(int pipe, std::chrono::milliseconds patience) {
  Report report;
  while (true) {
    pollfd waiting{pipe, POLLIN, 0};
    report.in_time = ::poll(&waiting, 1, static_cast<int>(patience.count())) > 0;
    if (!report.in_time) return report;
    char bytes[4096];
    const ssize_t count = ::read(pipe, bytes, sizeof bytes);
    if (count <= 0) return report;
    report.text.append(bytes, static_cast<std::size_t>(count));
  }
}

/// How a process ended, empty where it did so in order.
std::string end_of(pid_t process) {
  int status = 0;
  ::waitpid(process, &status, 0);
  if (WIFSIGNALED(status))
    return "the program is ended by signal " + std::to_string(WTERMSIG(status));
  if (WEXITSTATUS(status) == 0) return {};
  return "the program ends with status " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

Outcome in_own_process(const Script& script, const ToldReplay& replay,
                       std::chrono::milliseconds patience) {
  // What a process that dies leaves behind goes with this folder.
  const TempFolder folder;
  int ends[2];
  if (::pipe(ends) != 0) return {"no pipe", 0};
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(ends[0]);
    ::setenv("TMPDIR", folder.path().c_str(), 1);
    replay_into(ends[1], script, replay);
  }
  ::close(ends[1]);
  const auto [text, in_time] = read_report(ends[0], patience);
  ::close(ends[0]);
  if (!in_time) ::kill(child, SIGKILL);
  const std::string end = end_of(child);

  const std::size_t done = std::min(text.find(kDone), text.size());
  const std::string wrong = text.substr(std::min(done + 1, text.size()));
  if (!wrong.empty()) return {wrong, done};
  return {in_time ? end : "the program hangs", done};
}

QuietErrors::QuietErrors() : errors_(::dup(STDERR_FILENO)) {
  const int nowhere = ::open("/dev/null", O_WRONLY);
  ::dup2(nowhere, STDERR_FILENO);
  ::close(nowhere);
}

QuietErrors::~QuietErrors() {
  ::dup2(errors_, STDERR_FILENO);
  ::close(errors_);
}

}  // namespace lunavox::test
