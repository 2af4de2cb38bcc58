#include "app/console.h"

namespace lunavox {
namespace {

/// A text with its line breaks made blanks.
std::string on_one_line(const std::string& text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r') continue;
    line += c == '\n' ? ' ' : c;
  }
  return line;
}

}  // namespace

Answer ConsoleDialogs::message(const Message& message) {
  // What follows from the first fault is no news.
  if (!told_) errors_ << "lunavox: " << on_one_line(message.text) << '\n';
  told_ = true;
  return NoDialogs::message(message);
}

}  // namespace lunavox
