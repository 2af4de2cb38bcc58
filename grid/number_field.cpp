#include "grid/number_field.h"

#include "grid/runtime_numbers.h"

namespace lunavox {

NumberField::NumberField(std::string text, int minimum, int maximum)
    : text_(std::move(text)), minimum_(minimum), maximum_(maximum) {}

double NumberField::number() const {
  return leading_number(text());
}

int NumberField::value() const {
  return round_half_even(number());
}

std::string NumberField::message() const {
  return "Invalid value (" + plain_number(minimum_) + "-" + plain_number(maximum_) + ")";
}

bool NumberField::enter(const std::string& text, Dialogs& dialogs) {
  const double entered = leading_number(text);
  if (!(entered >= minimum_ && entered <= maximum_)) {
    dialogs.error(message());
    return false;
  }
  text_ = plain_number(round_half_even(entered));
  return true;
}

}  // namespace lunavox
