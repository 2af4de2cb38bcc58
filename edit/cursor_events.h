#pragma once

#include "grid/cell_grid.h"
#include "grid/flags.h"
#include "grid/property.h"
#include "grid/song.h"

namespace lunavox {

/// Keeps the current track and sub-column at the cursor of `tracks`, and the cursor's line at the
/// top while a song plays with "Follow the cursor" checked.
class CursorEvents : public CellGridObserver {
 public:
  /// @param curs the check box "Follow the cursor"
  CursorEvents(Song& song, const Flags& flags, const Property<bool>& curs);
  ~CursorEvents() override;
  CursorEvents(const CursorEvents&) = delete;
  CursorEvents& operator=(const CursorEvents&) = delete;

  void cursor_moved(CellPosition from) override;

 private:
  Song& song_;
  const Flags& flags_;
  const Property<bool>& curs_;
};

}  // namespace lunavox
