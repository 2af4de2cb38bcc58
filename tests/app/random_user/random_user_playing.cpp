#include "random_user.h"

#include <algorithm>
#include <array>

namespace lunavox::test {

void RandomUser::receive(int note, int velocity) {
  constexpr std::array<std::uint32_t, 4> kStatuses = {0x90, 0x93, 0x80, 0xB0};
  const std::uint32_t status = kStatuses[static_cast<std::size_t>(note / 128) % kStatuses.size()];
  const auto data2 = static_cast<std::uint32_t>(velocity % 128);
  int data1 = note % 128;
  if (status != 0xB0) {
    const bool ends = status == 0x80 || data2 == 0;
    // What is let go is mostly what is held.
    if (ends && !held_.empty()) data1 = *held_.begin();
    if (ends) held_.erase(data1);
    if (!ends) held_.insert(data1);
  }
  bench_.inputs.play(data2 << 16 | static_cast<std::uint32_t>(data1) << 8 | status);
  pass();
}

void RandomUser::wait(int ms) {
  for (int step = 0; step < 5; ++step) {
    bench_.clock.advance(static_cast<std::uint32_t>(ms / 5));
    pass();
  }
}

void RandomUser::let_play(int ms) {
  auto left = static_cast<std::uint32_t>(ms);
  while (left > 0) {
    const std::uint32_t now = bench_.clock.timeGetTime();
    const auto due = bench_.editor.current_loop.get()->next_due();
    const std::uint32_t step = due ? std::clamp(*due - now, 1U, left) : left;
    bench_.clock.advance(step);
    left -= step;
    pass();
  }
}

void RandomUser::pass() {
  Editor& e = bench_.editor;
  const std::uint32_t now = bench_.clock.timeGetTime();
  if (waiting_ > NoteQueue::kSlots) lost_ = true;
  e.current_loop.get()->pass(now);
  if (e.notequeue.front() == 0) waiting_ = 0;
  recovery_.pass(now);
  listener_.listen();
}

void RandomUser::tidy_up() {
  Editor& e = bench_.editor;
  if (e.flags.recording) e.recorder.recordnotes_click();
  if (e.flags.playing) e.transport.playnotes_mouseup();
  listener_.listen();
  e.typing_mode.finish();
  pass();
  e.note_keys.release_all();
  pass();
  std::set<int> notes = held_;
  // A release that was overwritten never came.
  for (int note = 0; note < 128 && (lost_ || shared_); ++note) notes.insert(note);
  let_go(notes);
  listener_.listen();
  listener_.meet(PlayEvent::kHandsOff);
  begin_song_unsaved();
  // Of the clipboard too nothing is left.
  e.song.tracks.set_cursor(1, 1);
  e.clipboard.copyproc();
  recovery_.wait();
}

void RandomUser::let_go(const std::set<int>& notes) {
  for (const int note : notes) {
    bench_.inputs.play(static_cast<std::uint32_t>(note) << 8 | 0x80);
    pass();
  }
  held_.clear();
  lost_ = false;
}

}  // namespace lunavox::test
