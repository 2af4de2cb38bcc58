#pragma once

#include "grid/dialogs.h"
#include "grid/property.h"

#include <string>

namespace lunavox {

/// A text box with a scroll bar partner that holds a whole number within a range. Both always show
/// a valid value: a bad entry is answered with the field's message and the last valid text returns.
class NumberField {
 public:
  /// @param text the initial text, a valid value
  NumberField(std::string text, int minimum, int maximum);

  /// What the text box shows: the last valid text.
  const std::string& text() const { return text_.get(); }
  /// The text read as a number.
  double number() const;
  /// The text read as a number and brought to the nearest whole number: the scroll bar's value.
  int value() const;
  int minimum() const { return minimum_; }
  int maximum() const { return maximum_; }
  /// "Invalid value (30-300)"
  std::string message() const;

  /// The user's entry. True when it is accepted: the scroll bar takes the nearest whole number, and
  /// the text box shows what the scroll bar has, so "12,5" never gets into a file. Otherwise the
  /// message has been shown and the text box is to show the last valid text again.
  bool enter(const std::string& text, Dialogs& dialogs);
  /// Takes a text as it stands in a file: no check and no message.
  void put(const std::string& text) { text_ = text; }

  void on_change(Property<std::string>::Listener listener) { text_.on_change(std::move(listener)); }

  bool operator==(const NumberField&) const = default;

 private:
  Property<std::string> text_;
  int minimum_;
  int maximum_;
};

}  // namespace lunavox
