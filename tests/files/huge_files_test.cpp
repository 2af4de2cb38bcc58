// Files that would take much time or memory if they were believed.

#include "files/midi_export.h"
#include "grid/runtime_error.h"
#include "tests/support/song_bench.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lunavox {
namespace {

using test::joined;
using test::Lines;
using test::SongBench;
using test::TempFolder;

constexpr std::size_t kMegabyte = 1U << 20U;

// The sanitizers' own bookkeeping takes many times what it watches.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr long kMostKilobytes = 1024 * 1024;
#else
constexpr long kMostKilobytes = 200 * 1024;
#endif

/// Opens a song in a process of its own.
/// @return the number of the error, 0 for none; -1 where it took more memory than a song may
int error_of_opening(const std::string& name) {
  const pid_t child = ::fork();
  if (child == 0) {
    int result = 0;
    SongBench bench(2);
    bench.file.current_name = name;
    try {
      bench.file.procopen();
    } catch (const RuntimeError& error) {
      result = error.number();
    }
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    ::_exit(usage.ru_maxrss > kMostKilobytes ? 255 : result);
  }
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  if (!WIFEXITED(status)) return -2;
  return WEXITSTATUS(status) == 255 ? -1 : WEXITSTATUS(status);
}

/// The head of a song of two lines up to its number of bookmarks.
std::string head(const std::string& bookmarks) {
  return joined({"2.0", "1", "3", "1", "120", "2", "4", bookmarks});
}

TEST(HugeFile, AFileOverTheLimitIsRefused) {
  const TempFolder folder;
  EXPECT_EQ(error_of_opening(folder.write("huge.lvx", std::string(33 * kMegabyte, '7'))),
            RuntimeError::kOutOfMemory);
}

TEST(HugeFile, AFileOfManyGigabytesIsNotEvenRead) {
  const TempFolder folder;
  const std::string name = folder.write("sparse.lvx", "2.0\r\n");
  ASSERT_EQ(::truncate(name.c_str(), static_cast<off_t>(1) << 40), 0);
  EXPECT_EQ(error_of_opening(name), RuntimeError::kOutOfMemory);
}

TEST(HugeFile, ADeviceOrAPipeIsNoSong) {
  const TempFolder folder;
  EXPECT_EQ(error_of_opening("/dev/zero"), RuntimeError::kPathFileAccessError);
  ASSERT_EQ(::mkfifo(folder.file("pipe.lvx").c_str(), 0600), 0);
  EXPECT_EQ(error_of_opening(folder.file("pipe.lvx")), RuntimeError::kPathFileAccessError);
  EXPECT_EQ(error_of_opening(folder.path().string()), RuntimeError::kPathFileAccessError);
}

TEST(HugeFile, ANameThatNeverEndsStaysWithinBounds) {
  const TempFolder folder;
  const std::string name =
      folder.write("name.lvx", head("1") + "\"" + std::string(31 * kMegabyte, 'x'));
  EXPECT_EQ(error_of_opening(name), RuntimeError::kInputPastEndOfFile);
}

TEST(HugeFile, TheMostBookmarksWithLongNamesStayWithinBounds) {
  const TempFolder folder;
  std::string bytes = head("32767");
  for (int i = 0; i < 32767; ++i) bytes += std::string(900, 'b') + "\r\n1\r\n";
  EXPECT_EQ(error_of_opening(folder.write("bookmarks.lvx", bytes)),
            RuntimeError::kInputPastEndOfFile);
}

TEST(HugeFile, TheLargestCountsStayWithinBounds) {
  const TempFolder folder;
  std::string bytes = joined({"2.0", "16", "3001", "1", "120", "3000", "4", "0"});
  bytes += std::string(16, ',');       // banks
  bytes += std::string(48 * 11, ',');  // settings
  for (int i = 0; i < 16; ++i) bytes += "8,";
  bytes += std::string(16 * 8 * 3000, ',');  // notes
  bytes += std::string(16, ',');             // channels
  bytes += std::string(16 * 11 * 3000 * 2, ',');
  for (int i = 0; i < 16; ++i) bytes += "2,";
  bytes += "0,0,0,";
  EXPECT_EQ(error_of_opening(folder.write("counts.lvx", bytes)), 0);
}

TEST(HugeFile, ManyLinesToBePassedOverEndWithTheFile) {
  const TempFolder folder;
  std::string bytes = joined({"1.1", "16", "3001", "1", "120", "3000", "4", "0"});
  bytes += std::string(48 * 10, ',');
  bytes += "8,";
  EXPECT_EQ(error_of_opening(folder.write("old.lvx", bytes + std::string(30 * kMegabyte, ' '))),
            RuntimeError::kInputPastEndOfFile);
}

TEST(HugeFile, LengthsThatTheSongDoesNotHaveDoNotHangTheExport) {
  SongBench bench(2);
  bench.song.length.put("2147483000");
  bench.song.active.at(1)[kInstrument] = false;
  EXPECT_EQ(midi_file_bytes(bench.song).size(), 14U + 8U + 102U);
}

}  // namespace
}  // namespace lunavox
