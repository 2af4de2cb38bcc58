#include "grid/runtime_error.h"

namespace lunavox {
namespace {

const char* message_of(RuntimeError::Number number) {
  switch (number) {
    case RuntimeError::kOverflow:
      return "Overflow";
    case RuntimeError::kOutOfMemory:
      return "Out of memory";
    case RuntimeError::kSubscriptOutOfRange:
      return "Subscript out of range";
    case RuntimeError::kDivisionByZero:
      return "Division by zero";
    case RuntimeError::kFileNotFound:
      return "File not found";
    case RuntimeError::kDiskFull:
      return "Disk full";
    case RuntimeError::kInputPastEndOfFile:
      return "Input past end of file";
    case RuntimeError::kPermissionDenied:
      return "Permission denied";
    case RuntimeError::kPathFileAccessError:
      return "Path/File access error";
  }
  return "Unknown error";
}

}  // namespace

RuntimeError::RuntimeError(Number number)
    : std::runtime_error(message_of(number)), number_(number) {}

RuntimeError::RuntimeError(Number number, const std::string& where)
    : std::runtime_error(std::string(message_of(number)) + ": " + where), number_(number) {}

}  // namespace lunavox
