#pragma once

#include "midi/play_loop.h"
#include "midi/realtime_record_loop.h"
#include "midi/stage.h"

namespace lunavox {

/// The button `playnotes` and the Ctrl key, which start and stop playback.
class Transport {
 public:
  Transport(const Stage& stage, PlayLoop& play_loop, RealtimeRecordLoop& realtime);

  void playnotes_mousedown();
  /// Starts playback, or stops what is running.
  void playnotes_mouseup();
  /// A key went down anywhere in the main window, which sees it before its controls: the Ctrl key
  /// starts playback.
  /// @param key_code virtual-key code
  void key_down(int key_code);
  static constexpr int kControlKey = 17;

 private:
  void start();
  void stop();

  Stage stage_;
  PlayLoop& play_loop_;
  RealtimeRecordLoop& realtime_;
};

}  // namespace lunavox
