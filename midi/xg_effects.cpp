#include "midi/xg_effects.h"

namespace lunavox {
namespace {

struct XgType {
  std::string name;
  std::uint8_t msb;
  std::uint8_t lsb;
};

struct XgTable {
  std::uint8_t address;
  std::vector<XgType> types;
  std::vector<std::string> names;

  XgTable(std::uint8_t address_low, std::vector<XgType> rows)
      : address(address_low), types(std::move(rows)) {
    for (const XgType& type : types) names.push_back(type.name);
  }
};

const XgTable& reverb_table() {
  static const XgTable kTable(0x00, {{"Hall 1", 0x01, 0x00},
                                     {"Hall 2", 0x01, 0x01},
                                     {"Room 1", 0x02, 0x00},
                                     {"Room 2", 0x02, 0x01},
                                     {"Room 3", 0x02, 0x02},
                                     {"Stage 1", 0x03, 0x00},
                                     {"Stage 2", 0x03, 0x01},
                                     {"Plate", 0x04, 0x00},
                                     {"White Room", 0x10, 0x00},
                                     {"Tunnel", 0x11, 0x00},
                                     {"Basement", 0x13, 0x00}});
  return kTable;
}

const XgTable& chorus_table() {
  static const XgTable kTable(0x20, {{"Chorus 1", 0x41, 0x00},
                                     {"Chorus 2", 0x41, 0x01},
                                     {"Chorus 3", 0x41, 0x02},
                                     {"Chorus 4", 0x41, 0x08},
                                     {"Celeste 1", 0x42, 0x00},
                                     {"Celeste 2", 0x42, 0x01},
                                     {"Celeste 3", 0x42, 0x02},
                                     {"Celeste 4", 0x42, 0x08},
                                     {"Flanger 1", 0x43, 0x00},
                                     {"Flanger 2", 0x43, 0x01},
                                     {"Flanger 3", 0x43, 0x08}});
  return kTable;
}

const XgTable& variation_table() {
  static const XgTable kTable(
      0x40, {{"Delay LCR", 0x05, 0x00},   {"Delay LR", 0x06, 0x00},     {"Echo", 0x07, 0x00},
             {"Cross Delay", 0x08, 0x00}, {"ER 1", 0x09, 0x00},         {"ER 2", 0x09, 0x01},
             {"Gate Reverb", 0x0A, 0x00}, {"Reverse Gate", 0x0B, 0x00}, {"Karaoke 1", 0x14, 0x00},
             {"Karaoke 2", 0x14, 0x01},   {"Karaoke 3", 0x14, 0x02},    {"Symphonic", 0x44, 0x00},
             {"Rotary Spk", 0x45, 0x00},  {"Tremolo", 0x46, 0x00},      {"Auto Pan", 0x47, 0x00},
             {"Phaser 1", 0x48, 0x00},    {"Phaser 2", 0x48, 0x08},     {"Distortion", 0x49, 0x00},
             {"Overdrive", 0x4A, 0x00},   {"Amp Sim", 0x4B, 0x00},      {"3 Band Eq", 0x4C, 0x00},
             {"2 Band Eq", 0x4D, 0x00},   {"Auto Wah", 0x4E, 0x00}});
  return kTable;
}

const XgTable& table_of(XgList list) {
  switch (list) {
    case XgList::kReverb:
      return reverb_table();
    case XgList::kChorus:
      return chorus_table();
    case XgList::kVariation:
      break;
  }
  return variation_table();
}

}  // namespace

const std::vector<std::string>& xg_names(XgList list) {
  return table_of(list).names;
}

SysExBytes xg_type_code(XgList list, int item) {
  const XgTable& table = table_of(list);
  if (item < 0 || item >= static_cast<int>(table.types.size())) return {};
  const XgType& type = table.types[static_cast<std::size_t>(item)];
  return {table.address, type.msb, type.lsb};
}

const SysExBytes& xg_system_on() {
  return xg_module_setup().front();
}

const std::vector<SysExBytes>& xg_module_setup() {
  static const std::vector<SysExBytes> kSetup = {
      {0xF0, 0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00, 0xF7},  // System On
      {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x58, 0x40, 0xF7},  // variation send to reverb: 64
      {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x59, 0x40, 0xF7},  // variation send to chorus: 64
      {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01, 0x5A, 0x01, 0xF7},  // variation connection: system
  };
  return kSetup;
}

SysExBytes xg_type_message(XgList list, int item) {
  SysExBytes message = {0xF0, 0x43, 0x10, 0x4C, 0x02, 0x01};
  const SysExBytes code = xg_type_code(list, item);
  message.insert(message.end(), code.begin(), code.end());
  message.push_back(0xF7);
  return message;
}

XgEffects::XgEffects(Song& song, Flags& flags, OutputPort& port)
    : song_(song), flags_(flags), port_(port) {}

void XgEffects::reverb_click(int item) {
  choose(XgList::kReverb, song_.reverb, item);
}

void XgEffects::chorus_click(int item) {
  choose(XgList::kChorus, song_.chorus, item);
}

void XgEffects::variation_click(int item) {
  choose(XgList::kVariation, song_.variation, item);
}

void XgEffects::choose(XgList list, Property<int>& choice, int item) {
  flags_.modified = true;
  choice = item;
  port_.sendsysex(xg_type_message(list, item));
}

}  // namespace lunavox
