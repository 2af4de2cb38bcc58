#pragma once

#include "files/disk.h"
#include "files/recovery_writer.h"
#include "files/song_file.h"
#include "grid/cell_grid.h"
#include "grid/dialogs.h"
#include "grid/flags.h"
#include "grid/song.h"
#include "midi/clock.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lunavox {

/// A recovery file that its editor left behind. While it is held, no other editor finds it.
class OrphanedSong {
 public:
  OrphanedSong(std::filesystem::path song, disk::Lock lock)
      : file_(std::move(song)), lock_(std::move(lock)) {}

  const std::filesystem::path& file() const { return file_; }
  /// Removes the file: its song has been restored, or nobody wants it.
  void discard();
  /// Sets the file aside so that it is not offered again: it cannot be read.
  void set_aside();

 private:
  std::filesystem::path file_;
  disk::Lock lock_;
};

/// Keeps the song being edited in a file of the user's state folder, so that however the program
/// ends, no more than the last few seconds of work are lost.
///
/// Each running editor has a file of its own, known by a lock that it holds for as long as it
/// lives. The file is written a few seconds after a change, on another thread and from a copy; what
/// has changed when the song begins to play or to record in real time, right then, and nothing more
/// until it stops. It goes when the song is saved and when the
/// program ends in order.
class RecoveryFile : private CellGridObserver {
 public:
  /// Time from the first change that is not in the file yet to its writing.
  static constexpr std::uint32_t kDelayMs = 3000;

  /// @param state_folder  created when needed; where that fails, the song is not kept, and
  ///                      problem() says why
  RecoveryFile(Song& song, Flags& flags, SongFile& song_file, Clock& clock,
               std::filesystem::path state_folder);
  /// Leaves the file: only end() is an end in order.
  ~RecoveryFile() override;
  RecoveryFile(const RecoveryFile&) = delete;
  RecoveryFile& operator=(const RecoveryFile&) = delete;

  /// Called when something has become due that was not before.
  void on_due(std::function<void()> due) { due_ = std::move(due); }
  /// The clock reading at which pass() has something to do; none while there is nothing to write,
  /// or the song plays.
  std::optional<std::uint32_t> next_due() const;
  /// Has the song written if that is due.
  void pass(std::uint32_t now);

  /// Writes the song at once, on the calling thread: the program is about to end.
  /// @return false when that failed, or nothing is unsaved; problem() says which
  bool write_now();
  /// Removes the file and lets its name go: the program ends in order.
  void end();

  /// The files that editors left behind which no longer run.
  std::vector<OrphanedSong> find_orphans();
  /// Makes an orphan's song the song being edited, under its own file's name and unsaved.
  /// @return false when it cannot be read; the song is as it was then
  bool restore(OrphanedSong& orphan);
  /// Asks the user about each orphan, until one is restored. Yes restores it, No discards it,
  /// Cancel leaves it for the next start.
  void offer_orphans(Dialogs& dialogs);

  /// This editor's file.
  const std::filesystem::path& file() const { return file_; }
  /// Returns once the file is written.
  void wait() { writer_->wait(); }
  /// What keeps the song from being kept, empty when nothing does.
  std::string problem() const;

 private:
  void cells_changed(const CellRegion& region) override;
  void shape_changed() override;

  void choose_name();
  void listen_to_changes();
  void changed();
  void saved();
  void write();
  bool enabled() const { return lock_.has_value(); }

  Song& song_;
  Flags& flags_;
  SongFile& song_file_;
  Clock& clock_;
  std::filesystem::path folder_;
  std::filesystem::path file_;
  std::optional<disk::Lock> lock_;
  std::unique_ptr<RecoveryWriter> writer_;
  std::string problem_;
  std::function<void()> due_;
  /// When the first change came that is not in the file yet.
  std::optional<std::uint32_t> changed_at_;
};

}  // namespace lunavox
