#include "midi/recorder.h"

namespace lunavox {

Recorder::Recorder(const Stage& stage, Dialogs& dialogs, RealtimeRecordLoop& realtime)
    : stage_(stage), dialogs_(dialogs), realtime_(realtime) {}

void Recorder::recordnotes_mousedown() {
  stage_.pictures.recordnotes = stage_.flags.recording ? "stoprec2" : "record2";
}

void Recorder::recordnotes_click() {
  if (stage_.flags.recording) return stop_recording();
  if (!cursor_in_note_column()) {
    // The press has put the pressed picture on the button, which would stay.
    stage_.pictures.recordnotes = "record1";
    return refuse();
  }
  engage();
  if (stage_.options.realtime) {
    realtime_.start();
  } else {
    stage_.current.set(&stage_.listen);
  }
}

void Recorder::space_bar() {
  if (stage_.flags.recording) {
    stop_recording();
  } else if (cursor_in_note_column()) {
    engage();
  } else {
    refuse();
  }
  if (focus_tracks_) focus_tracks_();
}

bool Recorder::cursor_in_note_column() const {
  return sub_column_of(stage_.song.tracks.column()) != 0;
}

void Recorder::engage() {
  stage_.flags.recording = true;
  stage_.pictures.recordnotes = "stoprec1";
  if (stage_.flags.playing) stop_playback();
}

void Recorder::stop_playback() {
  stage_.pictures.playnotes = "play1";
  stage_.flags.playing = false;
  stage_.port.all_notes_off();
  stage_.current.set(&stage_.listen);
}

void Recorder::stop_recording() {
  stage_.flags.recording = false;
  stage_.pictures.recordnotes = "record1";
  // By the space bar too, or the cursor would run on down the grid with nothing to write.
  realtime_.stop();
}

void Recorder::refuse() {
  dialogs_.error("select a start position for record");
}

}  // namespace lunavox
