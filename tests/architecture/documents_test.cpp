#include "app/command_line.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

// What the documents say that can be checked against the tree.
namespace {

namespace fs = std::filesystem;

const fs::path kTop = LUNAVOX_SOURCE_DIR;

std::string read(const fs::path& file) {
  std::ifstream in(kTop / file);
  EXPECT_TRUE(in) << file;
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

/// The first group of every match.
std::set<std::string> all_matches(const std::string& text, const std::regex& rule) {
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), rule), end; at != end; ++at) {
    found.insert((*at)[1].str());
  }
  return found;
}

std::set<std::string> long_options(const std::string& text) {
  return all_matches(text, std::regex("(?:^|[^-\\w])(--[a-z][a-z-]+)"));
}

/// A man page writes its hyphens with a backslash.
std::string without_backslashes(std::string text) {
  std::erase(text, '\\');
  return text;
}

TEST(Documents, TheManPageAndTheManualHaveTheOptionsOfTheProgram) {
  const std::set<std::string> options = long_options(lunavox::help_text());
  EXPECT_EQ(long_options(without_backslashes(read("packaging/lunavox.1"))), options);
  const std::string manual = read("data/readme.htm");
  EXPECT_EQ(long_options(manual.substr(manual.find("<body>"))), options);
}

TEST(Documents, NameOnlyFilesThatAreThere) {
  const std::regex path(
      "`((?:app|bench|cmake|data|docs|edit|examples|files|fuzz|grid|midi|packaging|scripts|"
      "skin|tests)/[\\w/.-]*)[`( ]");
  const std::regex link(R"(\]\(([\w/.-]+)\))");
  for (const char* document : {"README.md", "CONTRIBUTING.md", "CHANGELOG.md",
                               "docs/architecture.md", "docs/fuzzing.md", "examples/README.md"}) {
    const std::string text = read(document);
    for (const std::string& named : all_matches(text, path)) {
      EXPECT_TRUE(fs::exists(kTop / named)) << document << " names " << named;
    }
    for (const std::string& named : all_matches(text, link)) {
      EXPECT_TRUE(fs::exists((kTop / document).parent_path() / named))
          << document << " links to " << named;
    }
  }
}

TEST(Documents, TheManualsContentsLeadToItsHeadings) {
  const std::string manual = read("data/readme.htm");
  EXPECT_EQ(all_matches(manual, std::regex("href=\"#([a-z]+)\"")),
            all_matches(manual, std::regex("<h2 id=\"([a-z]+)\"")));
}

}  // namespace
