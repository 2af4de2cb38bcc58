#pragma once

#include "grid/button_pictures.h"
#include "grid/property.h"
#include "grid/song.h"
#include "grid/ui/panel.h"
#include "midi/record_options.h"

#include <functional>
#include <string>

class QCheckBox;
class QGridLayout;

namespace lunavox {

class Bookmarks;
class Recorder;
class SkinPictures;
class Transport;
class XgEffects;

/// `Frame14` "Controls": the buttons `playnotes` and `recordnotes`.
class ControlsPanel : public Panel {
 public:
  ControlsPanel(SkinPictures& skin, ButtonPictures& pictures, Transport& transport,
                Recorder& recorder);
};

/// `Frame6` "Duration": the label `timemin`.
class DurationPanel : public Panel {
 public:
  explicit DurationPanel(Property<std::string>& timemin);
};

/// A panel of one number: "Length", "BPM", "LPB" and "Rec step".
class NumberPanel : public Panel {
 public:
  struct Field {
    const char* frame;
    const char* caption;
    const char* name;
    const char* purpose;  ///< said by the tool tip
    int digits;
  };

  NumberPanel(const Field& field, NumberField& number,
              std::function<bool(const std::string&)> enter, const std::function<void()>& done);
};

/// `Frame11` "XG effects": the lists `reverb`, `chorus` and `variation`.
class XgPanel : public Panel {
 public:
  /// @param done  called after a choice
  XgPanel(Song& song, XgEffects& effects, const std::function<void()>& done);
};

/// `Frame12` "Voice": the name of the current track's voice.
class VoicePanel : public Panel {
 public:
  explicit VoicePanel(Property<std::string>& voice_name);
};

/// `Frame4` "Bookmarks": the list `bookmark` and the buttons `Image1` and `Image2`.
class BookmarkPanel : public Panel {
 public:
  BookmarkPanel(SkinPictures& skin, ButtonPictures& pictures, Song& song, Bookmarks& bookmarks,
                const std::function<void()>& done);
};

/// `Frame10` "Misc": the check boxes and the `strength` field.
class MiscPanel : public Panel {
 public:
  struct Handlers {
    std::function<void(bool checked)> area;
    std::function<void()> realtime_checked;  ///< shows the realtime record options
    std::function<bool(const std::string&)> strength;
    std::function<void()> done;
  };

  MiscPanel(Song& song, RecordOptions& options, Property<bool>& area, const Handlers& handlers);

 private:
  struct CheckBox {
    const char* name;
    const char* caption;
    const char* tool_tip;
    int row;
    int column;
  };
  static const CheckBox kRealtime, kBegin, kVelocity, kCurs, kArea;

  QCheckBox* add_check_box(QGridLayout& grid, const CheckBox& plan);
  QCheckBox* add_option(QGridLayout& grid, const CheckBox& plan, Property<bool>& option);
};

}  // namespace lunavox
