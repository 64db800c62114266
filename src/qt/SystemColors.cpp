#include "qt/SystemColors.h"

#include <array>

namespace LumoColorCombo::host {
namespace {

struct PaletteEntry {
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
};

// Index by index, the palette colour that plays the system colour's part. The Active
// group is used so that what is drawn does not change with window activation; grey
// text is the disabled window text, and inactive captions come from the Inactive
// group. Index 25 is a gap in the platform's numbering.
constexpr int kGap = 25;
constexpr std::array<PaletteEntry, 31> kEntries = {{
    {QPalette::Active, QPalette::Midlight},         // 0 scroll bar track
    {QPalette::Active, QPalette::Dark},             // 1 desktop
    {QPalette::Active, QPalette::Highlight},        // 2 active caption
    {QPalette::Inactive, QPalette::Highlight},      // 3 inactive caption
    {QPalette::Active, QPalette::Window},           // 4 menu
    {QPalette::Active, QPalette::Base},             // 5 window
    {QPalette::Active, QPalette::Shadow},           // 6 window frame
    {QPalette::Active, QPalette::WindowText},       // 7 menu text
    {QPalette::Active, QPalette::Text},             // 8 window text
    {QPalette::Active, QPalette::HighlightedText},  // 9 caption text
    {QPalette::Active, QPalette::Button},           // 10 active border
    {QPalette::Inactive, QPalette::Button},         // 11 inactive border
    {QPalette::Active, QPalette::Mid},              // 12 application workspace
    {QPalette::Active, QPalette::Highlight},        // 13 highlight
    {QPalette::Active, QPalette::HighlightedText},  // 14 highlight text
    {QPalette::Active, QPalette::Button},           // 15 button face
    {QPalette::Active, QPalette::Dark},             // 16 button shadow
    {QPalette::Disabled, QPalette::WindowText},     // 17 grey text
    {QPalette::Active, QPalette::ButtonText},       // 18 button text
    {QPalette::Inactive, QPalette::HighlightedText},  // 19 inactive caption text
    {QPalette::Active, QPalette::Light},            // 20 button highlight
    {QPalette::Active, QPalette::Shadow},           // 21 3-D dark shadow
    {QPalette::Active, QPalette::Midlight},         // 22 3-D light
    {QPalette::Active, QPalette::ToolTipText},      // 23 tooltip text
    {QPalette::Active, QPalette::ToolTipBase},      // 24 tooltip background
    {QPalette::Active, QPalette::NoRole},           // 25 (unused)
    {QPalette::Active, QPalette::Link},             // 26 hot-tracked item
    {QPalette::Active, QPalette::Highlight},        // 27 active caption gradient
    {QPalette::Inactive, QPalette::Highlight},      // 28 inactive caption gradient
    {QPalette::Active, QPalette::Highlight},        // 29 menu highlight
    {QPalette::Active, QPalette::Window},           // 30 menu bar
}};

}  // namespace

QColor SystemColors::resolve(lumo::OLE_COLOR color, const QPalette& palette) {
  if (lumo::IsSystemColor(color)) return systemColor(lumo::SystemColorIndex(color), palette);
  return fromRgbValue(color);
}

QColor SystemColors::systemColor(int index, const QPalette& palette) {
  if (index < 0 || index >= static_cast<int>(kEntries.size()) || index == kGap) return QColor(0, 0, 0);
  const PaletteEntry& entry = kEntries[static_cast<std::size_t>(index)];
  // Only the RGB part counts: the surface is opaque, and a translucent palette entry
  // must not punch holes into it.
  QColor resolved = palette.color(entry.group, entry.role);
  resolved.setAlpha(255);
  return resolved;
}

QColor SystemColors::fromRgbValue(lumo::OLE_COLOR color) {
  const auto bits = static_cast<std::uint32_t>(color);
  return QColor(static_cast<int>(bits & 0xFFu), static_cast<int>((bits >> 8) & 0xFFu),
                static_cast<int>((bits >> 16) & 0xFFu));
}

}  // namespace LumoColorCombo::host
