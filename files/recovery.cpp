#include "files/recovery.h"

#include "files/file_bytes.h"
#include "files/recovery_text.h"
#include "grid/runtime_error.h"

#include <algorithm>
#include <system_error>

namespace lunavox {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "recovery-";
constexpr const char* kSong = ".lvx";
constexpr const char* kLock = ".lock";
constexpr const char* kDamaged = ".damaged";

fs::path lock_of(fs::path song) {
  return song.replace_extension(kLock);
}

void remove_quietly(const fs::path& file) {
  std::error_code none;
  fs::remove(file, none);
}

bool is_there(const fs::path& file) {
  std::error_code none;
  return fs::exists(file, none);
}

}  // namespace

void OrphanedSong::discard() {
  remove_quietly(file_);
  remove_quietly(lock_of(file_));
}

void OrphanedSong::set_aside() {
  std::error_code none;
  fs::rename(file_, file_.string() + kDamaged, none);
  remove_quietly(lock_of(file_));
}

RecoveryFile::RecoveryFile(Song& song, Flags& flags, SongFile& song_file, Clock& clock,
                           fs::path state_folder)
    : song_(song),
      flags_(flags),
      song_file_(song_file),
      clock_(clock),
      folder_(std::move(state_folder)) {
  choose_name();
  writer_ = std::make_unique<RecoveryWriter>(file_);
  listen_to_changes();
}

RecoveryFile::~RecoveryFile() {
  for (CellGrid* grid : {&song_.tracks, &song_.channels, &song_.effects}) {
    grid->remove_observer(this);
  }
}

void RecoveryFile::choose_name() {
  std::error_code failure;
  fs::create_directories(folder_, failure);
  // An orphan may have been left by a process of the same number.
  constexpr int kMostNames = 100;
  for (int i = 1; i <= kMostNames; ++i) {
    const std::string name =
        kPrefix + std::to_string(disk::process_number()) + "-" + std::to_string(i);
    file_ = folder_ / (name + kSong);
    if (is_there(file_)) continue;
    disk::Lock lock(lock_of(file_));
    if (!lock.held()) continue;
    lock_.emplace(std::move(lock));
    return;
  }
  problem_ = "No file can be made in " + folder_.string();
}

void RecoveryFile::listen_to_changes() {
  for (CellGrid* grid : {&song_.tracks, &song_.channels, &song_.effects}) grid->add_observer(this);
  const auto tell = [this](const auto&) { changed(); };
  for (NumberField* field : {&song_.bpm, &song_.length, &song_.number, &song_.step}) {
    field->on_change(tell);
  }
  song_.bookmarks.on_change(tell);
  for (Property<int>* list : {&song_.reverb, &song_.chorus, &song_.variation}) {
    list->on_change(tell);
  }
  flags_.modified.on_change([this](bool modified) { modified ? changed() : saved(); });
  flags_.playing.on_change([this](bool playing) {
    if (!changed_at_) return;
    if (playing) {
      write();
    } else if (due_) {
      due_();
    }
  });
}

void RecoveryFile::cells_changed(const CellRegion&) {
  changed();
}

void RecoveryFile::shape_changed() {
  changed();
}

void RecoveryFile::changed() {
  // What is only shown anew is no change; an edit sets the flag before it ends.
  if (!enabled() || !flags_.modified || changed_at_) return;
  changed_at_ = clock_.timeGetTime();
  if (due_) due_();
}

void RecoveryFile::saved() {
  changed_at_.reset();
  if (!enabled()) return;
  writer_->cancel();
  remove_quietly(file_);
}

std::optional<std::uint32_t> RecoveryFile::next_due() const {
  if (!changed_at_ || !flags_.modified || flags_.playing) return std::nullopt;
  return *changed_at_ + kDelayMs;
}

void RecoveryFile::pass(std::uint32_t now) {
  if (next_due() && elapsed_ms(*changed_at_, now) >= kDelayMs) write();
}

void RecoveryFile::write() {
  changed_at_.reset();
  problem_.clear();
  writer_->write(song_, song_file_.current_name);
}

bool RecoveryFile::write_now() {
  if (!enabled() || !flags_.modified) return false;
  writer_->cancel();
  try {
    write_recovery_file(file_, recovery_text(song_, song_file_.current_name));
  } catch (const RuntimeError& error) {
    problem_ = error.what();
    return false;
  }
  changed_at_.reset();
  return true;
}

void RecoveryFile::end() {
  saved();
  if (!enabled()) return;
  remove_quietly(lock_of(file_));
  lock_.reset();
}

std::vector<OrphanedSong> RecoveryFile::find_orphans() {
  std::vector<fs::path> songs;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(folder_, none)) {
    const fs::path& file = entry.path();
    if (file.extension() != kSong || !file.filename().string().starts_with(kPrefix)) continue;
    if (file != file_) songs.push_back(file);
  }
  std::sort(songs.begin(), songs.end());
  std::vector<OrphanedSong> orphans;
  for (const fs::path& song : songs) {
    disk::Lock lock(lock_of(song));
    // An editor that is running holds its lock; one that has just ended took its file along.
    if (lock.held() && is_there(song)) orphans.emplace_back(song, std::move(lock));
  }
  return orphans;
}

bool RecoveryFile::restore(OrphanedSong& orphan) {
  try {
    const std::string bytes = read_file(orphan.file());
    FieldReader fields(bytes);
    if (!song_file_.read(fields)) return false;
    song_file_.current_name = recovered_name(fields);
  } catch (const RuntimeError&) {
    return false;
  }
  song_.actualtrack();
  flags_.modified = true;
  // The orphan goes only when its song stands in this editor's file.
  if (write_now()) orphan.discard();
  return true;
}

void RecoveryFile::offer_orphans(Dialogs& dialogs) {
  for (OrphanedSong& orphan : find_orphans()) {
    const Answer answer =
        dialogs.message({"Lunavox did not end as it should. Do you want to restore the song that "
                         "was being edited ?",
                         "Restore", Icon::kNone, Buttons::kYesNoCancel});
    if (answer == Answer::kNo) orphan.discard();
    if (answer != Answer::kYes) continue;
    if (restore(orphan)) return;
    orphan.set_aside();
    dialogs.error("The song cannot be restored: " + orphan.file().string() + kDamaged, "Restore");
  }
}

std::string RecoveryFile::problem() const {
  return problem_.empty() ? writer_->problem() : problem_;
}

}  // namespace lunavox
