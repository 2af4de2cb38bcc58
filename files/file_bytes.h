#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace lunavox {

/// The largest file that is read, in bytes. The longest song with every note column in use takes a
/// quarter of it; anything larger is no song, and reading it would only eat up the memory.
inline constexpr std::size_t kLargestFile = 32U << 20U;

/// The bytes of a whole file.
/// @throws RuntimeError: File not found, Permission denied, Path/File access error for what is no
///         regular file, Out of memory for a file larger than kLargestFile
std::string read_file(const std::filesystem::path& path);

}  // namespace lunavox
