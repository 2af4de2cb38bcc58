#include "edit/ui/note_keyboard.h"

#include "edit/note_keys.h"
#include "edit/physical_keys.h"
#include "edit/typing_mode.h"

#include <QKeyEvent>

namespace lunavox {
namespace {

/// What a key means, as a virtual-key code: for events that carry no place, as made by assistive
/// programs and remote keyboards.
int virtual_key_of_meaning(int key) {
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + key - Qt::Key_F1;
  switch (key) {
    case Qt::Key_Space:
      return 32;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Comma:
      return 188;
    case Qt::Key_Period:
      return 190;
    default:
      return kOtherVirtualKey;
  }
}

/// The characters that a key makes, with Backspace and Enter as the control characters they are.
std::string characters_of(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Backspace) return "\b";
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return "\r";
  return event.text().toStdString();
}

}  // namespace

int virtual_key_of(const QKeyEvent& event, LayoutSet layout) {
  const quint32 place = event.nativeScanCode();
  if (place == 0) return virtual_key_of_meaning(event.key());
  return virtual_key(physical_key_of_xkb(static_cast<int>(place)), layout);
}

NoteKeyboard::NoteKeyboard(NoteKeys& note_keys, TypingMode& typing_mode, LayoutSet layout)
    : note_keys_(note_keys), typing_mode_(typing_mode), layout_(layout) {}

void NoteKeyboard::key_down(const QKeyEvent& event) {
  if (typing_mode_.typing()) {
    const std::string characters = characters_of(event);
    if (!characters.empty()) typing_mode_.key_press(characters);
  } else {
    note_keys_.keystart(virtual_key_of(event, layout_));
  }
  if (told_) told_();
}

void NoteKeyboard::key_up(const QKeyEvent& event) {
  // A held key is told as pressed and released again and again; it is released once.
  if (event.isAutoRepeat() || typing_mode_.typing()) return;
  note_keys_.keystop(virtual_key_of(event, layout_));
}

void NoteKeyboard::keys_lost() {
  note_keys_.release_all();
}

int NoteKeyboard::octaveshift() const {
  return note_keys_.octaveshift();
}

}  // namespace lunavox
