#pragma once

#include <string>

namespace lunavox {

enum class Icon { kNone, kCritical };
enum class Buttons { kOk, kYesNoCancel };
enum class Answer { kOk, kYes, kNo, kCancel };

/// A message box.
struct Message {
  std::string text;
  std::string title;  ///< empty: the application's own title
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
  /// Not empty: a notice that the user may choose not to see again, remembered by this name.
  std::string notice = {};

  bool operator==(const Message&) const = default;
};

/// An input box that asks for one text.
struct Question {
  std::string prompt;
  std::string title;
  std::string default_text;

  bool operator==(const Question&) const = default;
};

/// A standard file dialog. The filter is "name|pattern;pattern".
struct FileQuestion {
  std::string filter;
  std::string title;

  bool operator==(const FileQuestion&) const = default;
};

/// What the editor asks and tells the user. The window shows boxes, tests answer from a script, a
/// run without a window writes to standard error.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual Answer message(const Message& message) = 0;
  /// The text entered, empty when cancelled.
  virtual std::string input(const Question& question) = 0;
  /// The chosen file, empty when cancelled.
  virtual std::string open_file(const FileQuestion& question) = 0;
  virtual std::string save_file(const FileQuestion& question) = 0;

  /// The usual way to refuse something: critical icon, OK only.
  void error(const std::string& text, const std::string& title = {}) {
    message({text, title, Icon::kCritical, Buttons::kOk, {}});
  }
};

/// Nobody is told anything and nobody answers: for work without a window.
class NoDialogs : public Dialogs {
 public:
  Answer message(const Message& message) override {
    return message.buttons == Buttons::kOk ? Answer::kOk : Answer::kCancel;
  }
  std::string input(const Question&) override { return {}; }
  std::string open_file(const FileQuestion&) override { return {}; }
  std::string save_file(const FileQuestion&) override { return {}; }
};

}  // namespace lunavox
