#pragma once

#include "edit/keyboard_layout.h"

#include <functional>

class QKeyEvent;

namespace lunavox {

class NoteKeys;
class TypingMode;

/// Key events of the `tracks` grid, brought to what the keys do there: they play notes, or they are
/// text while the cursor stands in an effect column.
class NoteKeyboard {
 public:
  NoteKeyboard(NoteKeys& note_keys, TypingMode& typing_mode, LayoutSet layout);

  void key_down(const QKeyEvent& event);
  void key_up(const QKeyEvent& event);
  /// The grid loses the keyboard: releases of held keys will not be seen.
  void keys_lost();

  int octaveshift() const;
  /// Told after each key, since a key may have changed the octave.
  void on_key(std::function<void()> told) { told_ = std::move(told); }

 private:
  NoteKeys& note_keys_;
  TypingMode& typing_mode_;
  LayoutSet layout_;
  std::function<void()> told_;
};

/// The virtual-key code of a key: by its physical place where the system tells it, else by what the
/// key means.
int virtual_key_of(const QKeyEvent& event, LayoutSet layout);

}  // namespace lunavox
