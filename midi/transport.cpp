#include "midi/transport.h"

namespace lunavox {

Transport::Transport(const Stage& stage, PlayLoop& play_loop, RealtimeRecordLoop& realtime)
    : stage_(stage), play_loop_(play_loop), realtime_(realtime) {}

void Transport::playnotes_mousedown() {
  stage_.pictures.playnotes = stage_.flags.playing ? "stop2" : "play2";
}

void Transport::playnotes_mouseup() {
  if (stage_.flags.playing) {
    stop();
  } else {
    start();
  }
}

void Transport::key_down(int key_code) {
  if (key_code == kControlKey && !stage_.flags.playing) start();
}

void Transport::start() {
  stage_.pictures.playnotes = "stop1";
  if (stage_.options.begin) stage_.song.tracks.set_row(1);
  play_loop_.start();
}

void Transport::stop() {
  stage_.pictures.playnotes = "play1";
  // The picture alone: step recording stays engaged, and goes on where the cursor has come to.
  stage_.pictures.recordnotes = "record1";
  realtime_.stop();
  stage_.flags.playing = false;
  stage_.port.resetchannels();
  stage_.current.set(&stage_.listen);
}

}  // namespace lunavox
