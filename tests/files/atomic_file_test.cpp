#include "files/atomic_file.h"

#include "grid/runtime_error.h"
#include "tests/support/temp_folder.h"

#include <csignal>
#include <string>

#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lunavox {
namespace {

using test::TempFolder;
namespace fs = std::filesystem;

void save(const std::string& path, std::string_view bytes, SaveObserver observer = {}) {
  AtomicFile file(path, std::move(observer));
  file.write(bytes);
  file.commit();
}

RuntimeError::Number error_of_saving(const std::string& path, std::string_view bytes = "new") {
  try {
    save(path, bytes);
  } catch (const RuntimeError& error) {
    EXPECT_NE(std::string(error.what()).find(path), std::string::npos) << "names the file";
    return error.number();
  }
  ADD_FAILURE() << "no error";
  return RuntimeError::kFileNotFound;
}

unsigned permissions_of(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

/// Runs something in a process of its own and tells its exit code.
template <class Work>
int in_child(Work work) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(work());
  int status = 0;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(AtomicFile, ANewFileStandsWholeUnderItsName) {
  const TempFolder folder;
  save(folder.file("song.lvx"), "new");
  EXPECT_EQ(folder.read("song.lvx"), "new");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(AtomicFile, TheOldFileStaysUntilTheNewOneIsCommitted) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  {
    AtomicFile file(path);
    file.write("new");
    EXPECT_EQ(folder.read("song.lvx"), "old");
  }
  EXPECT_EQ(folder.read("song.lvx"), "old");
  EXPECT_EQ(folder.entries(), 1) << "what was not committed leaves nothing behind";
}

TEST(AtomicFile, AProcessKilledBetweenTheStepsLeavesAWholeFile) {
  const struct {
    SaveStep step;
    const char* left;
  } cases[] = {{SaveStep::kCreated, "old"},
               {SaveStep::kWritten, "old"},
               {SaveStep::kFlushed, "old"},
               {SaveStep::kRenamed, "new"}};
  for (const auto& [step, left] : cases) {
    const TempFolder folder;
    const std::string path = folder.write("song.lvx", "old");
    const SaveStep last = step;
    in_child([&] {
      save(path, "new", [last](SaveStep done) {
        if (done == last) ::raise(SIGKILL);
      });
      return 0;
    });
    EXPECT_EQ(folder.read("song.lvx"), left);
  }
}

TEST(AtomicFile, PermissionsAreKept) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  save(path, "new");
  EXPECT_EQ(permissions_of(path), 0640U);
}

TEST(AtomicFile, ANewFileHasTheUsualPermissions) {
  const TempFolder folder;
  const mode_t mask = ::umask(0027);
  save(folder.file("song.lvx"), "new");
  ::umask(mask);
  EXPECT_EQ(permissions_of(folder.file("song.lvx")), 0640U);
}

TEST(AtomicFile, AGroupsFileStaysTheGroups) {
  if (::getuid() != 0) GTEST_SKIP() << "only root may become a member of a group";
  constexpr gid_t kBand = 54321;
  constexpr uid_t kMember = 54322;
  const TempFolder folder;
  const std::string song = folder.write("song.lvx", "old");
  ASSERT_EQ(::chown(song.c_str(), 0, kBand), 0);
  ASSERT_EQ(::chmod(song.c_str(), 0660), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
  const int result = in_child([&] {
    if (::setgroups(1, &kBand) != 0 || ::setgid(kMember) != 0 || ::setuid(kMember) != 0) return 1;
    save(song, "new");
    return 0;
  });
  EXPECT_EQ(result, 0);
  struct stat status {};
  ASSERT_EQ(::stat(song.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, kMember);
  EXPECT_EQ(status.st_gid, kBand);
  EXPECT_EQ(permissions_of(song), 0660U);
}

TEST(AtomicFile, ASymbolicLinkKeepsLeadingToTheFile) {
  const TempFolder folder;
  fs::create_directory(folder.path() / "songs");
  folder.write("songs/real.lvx", "old");
  fs::create_symlink("songs/real.lvx", folder.path() / "near.lvx");
  fs::create_symlink(folder.path() / "near.lvx", folder.path() / "far.lvx");
  save(folder.file("far.lvx"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path() / "near.lvx"));
  EXPECT_TRUE(fs::is_symlink(folder.path() / "far.lvx"));
  EXPECT_EQ(folder.read("songs/real.lvx"), "new");
}

TEST(AtomicFile, ALinkToNothingCreatesItsTarget) {
  const TempFolder folder;
  fs::create_symlink("real.lvx", folder.path() / "link.lvx");
  save(folder.file("link.lvx"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path() / "link.lvx"));
  EXPECT_EQ(folder.read("real.lvx"), "new");
}

TEST(AtomicFile, AReadOnlyFileIsRefused) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  EXPECT_EQ(error_of_saving(path), RuntimeError::kPermissionDenied);
  EXPECT_EQ(folder.read("song.lvx"), "old");
}

TEST(AtomicFile, AFolderThatMayNotBeWrittenToIsRefused) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  // An administrator may write anywhere, so the save is made as somebody else.
  const int result = in_child([&] {
    if (::geteuid() == 0 && ::setuid(65534) != 0) return 2;
    try {
      save(path, "new");
    } catch (const RuntimeError& error) {
      return error.number() == RuntimeError::kPermissionDenied ? 0 : 3;
    }
    return 4;
  });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(folder.read("song.lvx"), "old");
  ::chmod(folder.path().c_str(), 0755);
}

TEST(AtomicFile, AFileOfSomebodyElseIsRefused) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0400), 0);
  EXPECT_EQ(error_of_saving(path), RuntimeError::kPermissionDenied);
}

TEST(AtomicFile, AFolderThatIsNotThereIsAnAccessError) {
  const TempFolder folder;
  EXPECT_EQ(error_of_saving(folder.file("gone/song.lvx")), RuntimeError::kPathFileAccessError);
  folder.write("file", "");
  EXPECT_EQ(error_of_saving(folder.file("file/song.lvx")), RuntimeError::kPathFileAccessError);
}

TEST(AtomicFile, AFoldersNameIsAnAccessError) {
  const TempFolder folder;
  fs::create_directory(folder.path() / "song.lvx");
  EXPECT_EQ(error_of_saving(folder.file("song.lvx")), RuntimeError::kPathFileAccessError);
}

TEST(AtomicFile, ADeviceIsWrittenToDirectly) {
  save("/dev/null", "new");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(error_of_saving("/dev/full"), RuntimeError::kDiskFull);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(AtomicFile, AFullDiskKeepsTheOldFileAndLeavesNothingBehind) {
  const TempFolder folder;
  const std::string path = folder.write("song.lvx", "old");
  // A limit on the size of files stands in for a disk that fills up while the song is written.
  const int result = in_child([&] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 2;
    try {
      save(path, std::string(5000, 'x'));
    } catch (const RuntimeError& error) {
      return error.number() == RuntimeError::kDiskFull ? 0 : 3;
    }
    return 4;
  });
  EXPECT_EQ(result, 0);
  EXPECT_EQ(folder.read("song.lvx"), "old");
  EXPECT_EQ(folder.entries(), 1);
}

/// Mounts a file system of 64 KB in memory, for this process alone.
bool mount_small_disk(const std::string& folder) {
  if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
  return ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
}

TEST(AtomicFile, ADiskThatFillsUpKeepsTheOldFile) {
  const TempFolder folder;
  constexpr int kNoMount = 2;
  const int result = in_child([&] {
    if (!mount_small_disk(folder.path().string())) return kNoMount;
    const std::string path = folder.file("song.lvx");
    save(path, "old");
    if (error_of_saving(path, std::string(100000, 'x')) != RuntimeError::kDiskFull) return 3;
    if (folder.read("song.lvx") != "old" || folder.entries() != 1) return 4;
    // What was half written no longer takes up room.
    save(path, std::string(30000, 'y'));
    return folder.read("song.lvx").size() == 30000 ? 0 : 5;
  });
  if (result == kNoMount) GTEST_SKIP() << "no file system may be mounted here";
  EXPECT_EQ(result, 0);
}

/// Its number may be ours now.
TEST(AtomicFile, WhatAKilledSaveLeftBehindDoesNotHinderTheNext) {
  const TempFolder folder;
  const std::string number = std::to_string(::getpid());
  for (int count = 1; count <= 1000; ++count) {
    folder.write(".lunavox-" + number + "-" + std::to_string(count) + ".new", "left");
  }
  save(folder.file("song.lvx"), "new");
  EXPECT_EQ(folder.read("song.lvx"), "new");
  EXPECT_EQ(folder.entries(), 1001);
}

TEST(AtomicFile, TwoSavesOfOneFileDoNotDisturbEachOther) {
  const TempFolder folder;
  AtomicFile first(folder.file("song.lvx"));
  AtomicFile second(folder.file("song.lvx"));
  first.write("first");
  second.write("second");
  first.commit();
  EXPECT_EQ(folder.read("song.lvx"), "first");
  second.commit();
  EXPECT_EQ(folder.read("song.lvx"), "second");
  EXPECT_EQ(folder.entries(), 1);
}

}  // namespace
}  // namespace lunavox
