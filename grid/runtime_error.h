#pragma once

#include <stdexcept>
#include <string>

namespace lunavox {

/// A file or range fault that no rule handles, with the number and message of the classic runtime.
/// It is caught once, at the top of the program, which saves the song and ends with the message.
class RuntimeError : public std::runtime_error {
 public:
  enum Number {
    kOverflow = 6,
    kOutOfMemory = 7,
    kSubscriptOutOfRange = 9,
    kDivisionByZero = 11,
    kFileNotFound = 53,
    kDiskFull = 61,
    kInputPastEndOfFile = 62,
    kPermissionDenied = 70,
    kPathFileAccessError = 75,
  };

  explicit RuntimeError(Number number);
  /// As above, with where it happened (a file's name, say) added for the reader.
  RuntimeError(Number number, const std::string& where);

  Number number() const { return number_; }

 private:
  Number number_;
};

}  // namespace lunavox
