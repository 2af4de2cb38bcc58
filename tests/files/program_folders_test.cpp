#include "files/program_folders.h"

#include "tests/support/temp_folder.h"

#include <cstdlib>
#include <map>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

using test::TempFolder;
namespace fs = std::filesystem;

Environment environment_of(std::map<std::string, std::string> variables) {
  return [variables = std::move(variables)](const std::string& name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::nullopt : std::optional(found->second);
  };
}

void put_banks(const fs::path& folder) {
  fs::create_directories(folder);
  std::ofstream(folder / "instrubank.ini");
  std::ofstream(folder / "drumbank.ini");
}

TEST(ProgramFolders, TheProcesssOwnEnvironmentKnowsWhatIsSetAndWhatIsNot) {
  ::setenv("LUNAVOX_TEST_VARIABLE", "a value", 1);
  EXPECT_EQ(process_environment("LUNAVOX_TEST_VARIABLE"), "a value");
  ::unsetenv("LUNAVOX_TEST_VARIABLE");
  EXPECT_EQ(process_environment("LUNAVOX_TEST_VARIABLE"), std::nullopt);
}

TEST(ProgramFolders, BankFilesBesideTheExecutableMakeItsFolderTheProgramsOwn) {
  const TempFolder folder;
  put_banks(folder.path());
  const ProgramFolders found =
      find_program_folders(folder.path() / "lunavox", environment_of({{"HOME", "/home/ann"}}));
  EXPECT_EQ(found.data, folder.path());
  EXPECT_EQ(found.skin, folder.path() / "skin");
  EXPECT_EQ(found.config_file(), folder.path() / "lvconfig.ini");
  EXPECT_EQ(found.drum_bank(), folder.path() / "drumbank.ini");
  EXPECT_EQ(found.voice_bank(), folder.path() / "instrubank.ini");
  EXPECT_EQ(found.readme(), folder.path() / "readme.htm");
  EXPECT_EQ(found.state, "/home/ann/.local/state/lunavox");
}

TEST(ProgramFolders, AnInstalledProgramHasItsDataInShare) {
  const TempFolder prefix;
  put_banks(prefix.path() / "share/lunavox");
  const ProgramFolders found =
      find_program_folders(prefix.path() / "bin/lunavox", environment_of({{"HOME", "/home/ann"}}));
  EXPECT_EQ(found.data, prefix.path() / "share/lunavox");
  EXPECT_EQ(found.skin, prefix.path() / "share/lunavox/skin");
  EXPECT_EQ(found.config, "/home/ann/.config/lunavox");
}

TEST(ProgramFolders, ABuildTreeUsesTheSourcesData) {
  const TempFolder source;
  put_banks(source.path() / "data");
  fs::create_directories(source.path() / "skin");
  const ProgramFolders found = find_program_folders(source.path() / "build/dev/app/lunavox",
                                                    environment_of({{"HOME", "/home/ann"}}));
  EXPECT_EQ(found.data, source.path() / "data");
  EXPECT_EQ(found.skin, source.path() / "skin");
  EXPECT_EQ(found.config, "/home/ann/.config/lunavox");
}

TEST(ProgramFolders, TheUsersBaseFoldersComeFromTheEnvironment) {
  const ProgramFolders found = find_program_folders(
      "/usr/bin/lunavox",
      environment_of(
          {{"HOME", "/home/ann"}, {"XDG_CONFIG_HOME", "/conf"}, {"XDG_STATE_HOME", "/state"}}));
  EXPECT_EQ(found.config, "/conf/lunavox");
  EXPECT_EQ(found.state, "/state/lunavox");
}

TEST(ProgramFolders, RelativeBaseFoldersCountAsUnset) {
  const ProgramFolders found = find_program_folders(
      "/usr/bin/lunavox", environment_of({{"HOME", "/home/ann"}, {"XDG_CONFIG_HOME", "conf"}}));
  EXPECT_EQ(found.config, "/home/ann/.config/lunavox");
}

TEST(ProgramFolders, WithoutAHomeTheTemporaryFolderServes) {
  const ProgramFolders found = find_program_folders("/usr/bin/lunavox", environment_of({}));
  EXPECT_EQ(found.state, fs::temp_directory_path() / ".local/state/lunavox");
}

}  // namespace
}  // namespace lunavox
