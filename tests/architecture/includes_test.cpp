#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

// The rules of docs/architecture.md that can be seen in the text of the sources.
namespace {

namespace fs = std::filesystem;

const fs::path kTop = LUNAVOX_SOURCE_DIR;

/// One line of a source file that a rule is about.
struct Line {
  std::string file;  ///< path from the top of the tree, such as "midi/ports/null_device.cpp"
  int number = 0;
  std::string text;
};

/// For each room, the other rooms that it includes.
using Arrows = std::map<std::string, std::set<std::string>>;

std::vector<fs::path> sources(const std::vector<std::string>& folders) {
  std::vector<fs::path> found;
  for (const std::string& folder : folders) {
    if (!fs::exists(kTop / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(kTop / folder)) {
      const fs::path extension = entry.path().extension();
      const bool source = extension == ".cpp" || extension == ".h" || extension == ".py";
      if (source) found.push_back(entry.path());
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<Line> lines_matching(const std::vector<std::string>& folders, const std::regex& rule) {
  std::vector<Line> found;
  for (const fs::path& path : sources(folders)) {
    std::ifstream in(path);
    std::string text;
    for (int number = 1; std::getline(in, text); ++number) {
      if (!std::regex_search(text, rule)) continue;
      found.push_back({path.lexically_relative(kTop).generic_string(), number, text});
    }
  }
  return found;
}

const std::vector<std::string> kRooms = {"app", "edit", "files", "grid", "midi"};

std::string room_of(const std::string& file) {
  return fs::path(file).parent_path().generic_string();
}

bool is_main(const Line& line) {
  return line.file == "app/main.cpp";
}

std::string shown(const Line& line) {
  return line.file + ":" + std::to_string(line.number) + ": " + line.text;
}

/// The arrows as the sources have them. main() is outside: it joins all that there is.
Arrows included_rooms() {
  Arrows arrows;
  for (const fs::path& source : sources(kRooms)) {
    arrows[room_of(source.lexically_relative(kTop).generic_string())];
  }
  const std::regex own(R"(#\s*include\s*"([a-z_/]+)/[a-z0-9_]+\.h")");
  for (const Line& line : lines_matching(kRooms, own)) {
    std::smatch match;
    std::regex_search(line.text, match, own);
    const std::string room = room_of(line.file);
    if (!is_main(line) && match[1] != room) arrows[room].insert(match[1]);
  }
  return arrows;
}

/// The arrows as the table in docs/architecture.md has them: a row a room, its name first.
Arrows documented_rooms() {
  Arrows arrows;
  std::ifstream page(kTop / "docs" / "architecture.md");
  std::string line;
  while (std::getline(page, line) && line != "| room | includes |") {
  }
  const std::regex name("`([a-z/]+)`");
  while (std::getline(page, line) && !line.empty()) {
    std::sregex_iterator at(line.begin(), line.end(), name);
    if (at == std::sregex_iterator()) continue;
    std::set<std::string>& included = arrows[(*at)[1]];
    while (++at != std::sregex_iterator()) included.insert((*at)[1]);
  }
  return arrows;
}

bool may_use_libraries(const std::string& file) {
  const std::string room = room_of(file);
  return room.ends_with("/ui") || room == "midi/ports";
}

TEST(Includes, OfTheCoreAreTheStandardLibrarysAndTheRoomsOnly) {
  const std::regex include(R"(^\s*#\s*include\b)");
  const std::regex plain(
      R"re(<[a-z_]+>|"(app|edit|files|grid|midi)(/ports|/ui)?/[a-z0-9_]+\.h")re");
  for (const Line& line : lines_matching(kRooms, include)) {
    // What files need of the operating system is gathered there.
    if (line.file == "files/disk.cpp" || may_use_libraries(line.file)) continue;
    EXPECT_TRUE(std::regex_search(line.text, plain)) << shown(line);
  }
}

TEST(Includes, UiLeavesDevicesAndPortsLeaveTheToolkit) {
  const std::regex device(
      R"(#\s*include\s*[<"](rtmidi|RtMidi|fluidsynth|glib|sndfile|alsa/|jack/))");
  for (const Line& line : lines_matching(kRooms, device)) {
    EXPECT_EQ(room_of(line.file), "midi/ports") << shown(line);
  }
  const std::regex toolkit(R"(#\s*include\s*[<"]Q[A-Za-z/]+[>"])");
  for (const Line& line : lines_matching({"midi/ports"}, toolkit)) ADD_FAILURE() << shown(line);
}

TEST(Includes, AreTheArrowsThatTheArchitecturePageShows) {
  EXPECT_EQ(included_rooms(), documented_rooms());
}

TEST(Includes, NameTheirRoom) {
  const std::regex bare(R"re(#\s*include\s*"[^/"]+")re");
  const std::regex generated(R"re("(\w+\.moc|ui_\w+\.h)")re");
  for (const Line& line : lines_matching(kRooms, bare)) {
    EXPECT_TRUE(std::regex_search(line.text, generated)) << shown(line);
  }
}

TEST(Includes, NeverClimb) {
  const std::regex climbing(R"(#\s*include\s*["<][^">]*\.\./)");
  for (const Line& line : lines_matching(
           {"app", "edit", "files", "grid", "midi", "tests", "bench", "fuzz"}, climbing)) {
    ADD_FAILURE() << shown(line);
  }
}

TEST(Tests, NeverWaitByTheClock) {
  const std::regex sleep(
      R"(sleep_for|sleep_until|QThread::m?u?sleep|QTest::qWait\(|QTest::qSleep|\bu?sleep\()");
  for (const Line& line : lines_matching({"tests"}, sleep)) {
    if (line.file == "tests/architecture/includes_test.cpp") continue;
    // No test: it plays in real time while a script in tests/end_to_end takes its ports away.
    if (line.file == "tests/midi/ports/ports_client.cpp") continue;
    // Between two looks at what another program has come to.
    if (line.file == "tests/end_to_end/jack.py") continue;
    ADD_FAILURE() << shown(line);
  }
}

TEST(Sources, AreFound) {
  EXPECT_GT(sources(kRooms).size(), 20U);
}

}  // namespace
