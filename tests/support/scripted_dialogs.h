#pragma once

#include "grid/dialogs.h"

#include <deque>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lunavox::test {

/// Answers from a script and records what was asked and told. A question without a prepared answer
/// gets the cautious one: Cancel, or the empty text.
class ScriptedDialogs : public Dialogs {
 public:
  Answer message(const Message& message) override {
    messages.push_back(message);
    if (message.buttons == Buttons::kOk) return Answer::kOk;
    return next(answers, Answer::kCancel);
  }
  std::string input(const Question& question) override {
    questions.push_back(question);
    return next(inputs, std::string());
  }
  std::string open_file(const FileQuestion& question) override {
    opened.push_back(question);
    return next(files, std::string());
  }
  std::string save_file(const FileQuestion& question) override {
    saved.push_back(question);
    return next(files, std::string());
  }

  std::deque<Answer> answers;
  std::deque<std::string> inputs;
  std::deque<std::string> files;

  std::vector<Message> messages;
  std::vector<Question> questions;
  std::vector<FileQuestion> opened;
  std::vector<FileQuestion> saved;

 private:
  template <class T>
  static T next(std::deque<T>& prepared, const T& otherwise) {
    if (prepared.empty()) return otherwise;
    T answer = prepared.front();
    prepared.pop_front();
    return answer;
  }
};

/// The message box by which the editor refuses something.
inline Message error_box(const std::string& text, const std::string& title = {}) {
  return {text, title, Icon::kCritical, Buttons::kOk, {}};
}

}  // namespace lunavox::test
