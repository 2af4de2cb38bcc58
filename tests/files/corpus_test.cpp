// Every broken file of the corpus, with the outcome that stands beside its name in the list of its
// kind: "opens", "same" (opens as the whole song does), "newer" or "alpha" (refused with that
// message), or the number of a runtime error.

#include "files/config.h"
#include "files/drum_kits.h"
#include "files/song_writer.h"
#include "files/voice_banks.h"
#include "grid/runtime_error.h"
#include "tests/support/song_bench.h"

#include <functional>
#include <map>

#include <gtest/gtest.h>

namespace lunavox {
namespace {

namespace fs = std::filesystem;
using test::SongBench;
using test::TempFolder;

const fs::path kCorpus = LUNAVOX_CORPUS;

/// The listed outcome of each file of a kind, by its name below the kind's folder.
std::map<std::string, std::string> listed_outcomes(const std::string& kind) {
  std::map<std::string, std::string> outcomes;
  std::ifstream list(kCorpus / kind / "outcomes.txt");
  for (std::string name, outcome; list >> name >> outcome;) outcomes[name] = outcome;
  return outcomes;
}

/// Compares what each file in the folders of a kind comes to with the list.
void expect_outcomes(const std::string& kind,
                     const std::function<std::string(const fs::path&)>& outcome_of) {
  std::map<std::string, std::string> listed = listed_outcomes(kind);
  for (const auto& entry : fs::recursive_directory_iterator(kCorpus / kind)) {
    if (!entry.is_regular_file() || entry.path().filename() == "outcomes.txt") continue;
    const std::string name = fs::relative(entry.path(), kCorpus / kind).string();
    EXPECT_EQ(outcome_of(entry.path()), listed[name]) << name;
    listed.erase(name);
  }
  for (const auto& [name, outcome] : listed) ADD_FAILURE() << name << " is listed but not there";
}

/// "opens", or the number of the error that an action ends in.
std::string outcome_of_reading(const std::function<void()>& read) {
  try {
    read();
  } catch (const RuntimeError& error) {
    return std::to_string(error.number());
  }
  return "opens";
}

std::string saved_after_opening(const fs::path& file) {
  SongBench bench(2);
  bench.file.current_name = file.string();
  bench.file.procopen();
  return song_text(bench.song);
}

std::string outcome_of_opening(const fs::path& file) {
  SongBench bench(2);
  const std::string before = song_text(bench.song);
  bench.file.current_name = file.string();
  const std::string outcome = outcome_of_reading([&] { bench.file.procopen(); });
  EXPECT_FALSE(bench.flags.song_loading) << file;
  EXPECT_FALSE(bench.progress.visible) << file;
  if (!bench.dialogs.messages.empty() || outcome != "opens") {
    EXPECT_EQ(song_text(bench.song), before) << file << " has changed the song";
  }
  if (!bench.dialogs.messages.empty()) {
    return bench.dialogs.messages.front().text.starts_with("Sorry") ? "alpha" : "newer";
  }
  if (outcome != "opens") return outcome;
  static const std::string kWhole = saved_after_opening(kCorpus / "songs/whole/two-tracks.lvx");
  return song_text(bench.song) == kWhole ? "same" : "opens";
}

TEST(Corpus, EverySongHasItsOutcome) {
  expect_outcomes("songs", outcome_of_opening);
}

TEST(Corpus, EveryVoiceBankHasItsOutcome) {
  const auto read = [](const fs::path& file) {
    return outcome_of_reading([&] { VoiceBanks::read(file); });
  };
  expect_outcomes("voices", read);
}

TEST(Corpus, EveryDrumKitBankHasItsOutcome) {
  const auto read = [](const fs::path& file) {
    return outcome_of_reading([&] { DrumKits::read(file); });
  };
  expect_outcomes("kits", read);
}

TEST(Corpus, EveryConfigurationHasItsOutcome) {
  const TempFolder folder;
  const auto load = [&](const fs::path& file) {
    fs::copy_file(file, folder.path() / "lvconfig.ini", fs::copy_options::overwrite_existing);
    return outcome_of_reading([&] { Config(folder.path() / "lvconfig.ini").load(); });
  };
  expect_outcomes("configs", load);
}

}  // namespace
}  // namespace lunavox
