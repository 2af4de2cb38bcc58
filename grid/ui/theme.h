#pragma once

#include <QColor>
#include <QFont>

class QApplication;

namespace lunavox {

struct Colour;

/// The look of the window: near-black grounds, thin lines, one accent. The song's own colours (red
/// beats, blue headers, light effect cells, notes from blue to red) are what all else is tuned to.
namespace theme {

inline constexpr QColor kWindow{0x15, 0x17, 0x1c};
inline constexpr QColor kPanel{0x1b, 0x1e, 0x25};
inline constexpr QColor kField{0x0f, 0x11, 0x15};
inline constexpr QColor kGrid{0x0c, 0x0e, 0x12};
/// Ground of the note cells on a beat line.
inline constexpr QColor kBeatLine{0x15, 0x18, 0x1f};
inline constexpr QColor kLine{0x22, 0x26, 0x2f};
/// Between two tracks.
inline constexpr QColor kTrackLine{0x46, 0x4c, 0x5c};
inline constexpr QColor kEdge{0x30, 0x35, 0x40};
inline constexpr QColor kText{0xda, 0xdd, 0xe3};
inline constexpr QColor kDimText{0x8d, 0x94, 0xa3};
inline constexpr QColor kFaintText{0x58, 0x5f, 0x6d};
inline constexpr QColor kAccent{0xff, 0xb4, 0x54};
inline constexpr QColor kAccentDeep{0x4a, 0x38, 0x20};

/// Fixed-width face of the cells.
/// @param pixels  height of the face in device-independent pixels
QFont cell_font(int pixels);
/// Face of captions, headers and fields.
/// @param step  pixels larger (or smaller) than the usual size
QFont caption_font(int step = 0);

/// A length that was set for a screen of 96 dots an inch, on this one; device-independent pixels.
int scaled(int pixels);

QColor colour(const Colour& colour);

/// Gives the whole program its palette, fonts and style sheet.
void apply(QApplication& application);

}  // namespace theme
}  // namespace lunavox
