#include "qt/SystemColors.h"

#include <array>

namespace LumoColorCombo::host {
namespace {

struct PaletteEntry {
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
  const char* name;  // what a colour editor calls it
};

// Index by index, the palette colour that plays the system colour's part. The Active
// group is used so that what is drawn does not change with window activation; grey
// text is the disabled window text, and inactive captions come from the Inactive
// group. Index 25 is a gap in the platform's numbering.
constexpr int kGap = 25;
constexpr std::array<PaletteEntry, 31> kEntries = {{
    {QPalette::Active, QPalette::Midlight, "Scroll Bar"},  // 0 scroll bar track
    {QPalette::Active, QPalette::Dark, "Desktop"},  // 1 desktop
    {QPalette::Active, QPalette::Highlight, "Active Title Bar"},  // 2 active caption
    {QPalette::Inactive, QPalette::Highlight, "Inactive Title Bar"},  // 3 inactive caption
    {QPalette::Active, QPalette::Window, "Menu"},  // 4 menu
    {QPalette::Active, QPalette::Base, "Window Background"},  // 5 window
    {QPalette::Active, QPalette::Shadow, "Window Frame"},  // 6 window frame
    {QPalette::Active, QPalette::WindowText, "Menu Text"},  // 7 menu text
    {QPalette::Active, QPalette::Text, "Window Text"},  // 8 window text
    {QPalette::Active, QPalette::HighlightedText, "Active Title Bar Text"},  // 9 caption text
    {QPalette::Active, QPalette::Button, "Active Border"},  // 10 active border
    {QPalette::Inactive, QPalette::Button, "Inactive Border"},  // 11 inactive border
    {QPalette::Active, QPalette::Mid, "Application Workspace"},  // 12 application workspace
    {QPalette::Active, QPalette::Highlight, "Highlight"},  // 13 highlight
    {QPalette::Active, QPalette::HighlightedText, "Highlight Text"},  // 14 highlight text
    {QPalette::Active, QPalette::Button, "Button Face"},  // 15 button face
    {QPalette::Active, QPalette::Dark, "Button Shadow"},  // 16 button shadow
    {QPalette::Disabled, QPalette::WindowText, "Disabled Text"},  // 17 grey text
    {QPalette::Active, QPalette::ButtonText, "Button Text"},  // 18 button text
    {QPalette::Inactive, QPalette::HighlightedText, "Inactive Title Bar Text"},  // 19 inactive caption text
    {QPalette::Active, QPalette::Light, "Button Highlight"},  // 20 button highlight
    {QPalette::Active, QPalette::Shadow, "Button Dark Shadow"},  // 21 3-D dark shadow
    {QPalette::Active, QPalette::Midlight, "Button Light Shadow"},  // 22 3-D light
    {QPalette::Active, QPalette::ToolTipText, "ToolTip Text"},  // 23 tooltip text
    {QPalette::Active, QPalette::ToolTipBase, "ToolTip"},  // 24 tooltip background
    {QPalette::Active, QPalette::NoRole, ""},  // 25 (unused)
    {QPalette::Active, QPalette::Link, "Hot Tracking"},  // 26 hot-tracked item
    {QPalette::Active, QPalette::Highlight, "Active Title Bar Gradient"},  // 27 active caption gradient
    {QPalette::Inactive, QPalette::Highlight, "Inactive Title Bar Gradient"},  // 28 inactive caption gradient
    {QPalette::Active, QPalette::Highlight, "Menu Highlight"},  // 29 menu highlight
    {QPalette::Active, QPalette::Window, "Menu Bar"},  // 30 menu bar
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

QList<QPair<QString, OLE_COLOR>> SystemColors::named() {
  QList<QPair<QString, OLE_COLOR>> colours;
  for (std::size_t index = 0; index < kEntries.size(); ++index) {
    if (static_cast<int>(index) == kGap) continue;
    colours.append({QString::fromLatin1(kEntries[index].name), lumo::SystemColor(static_cast<std::int32_t>(index))});
  }
  return colours;
}

QColor SystemColors::fromRgbValue(lumo::OLE_COLOR color) {
  const auto bits = static_cast<std::uint32_t>(color);
  return QColor(static_cast<int>(bits & 0xFFu), static_cast<int>((bits >> 8) & 0xFFu),
                static_cast<int>((bits >> 16) & 0xFFu));
}

}  // namespace LumoColorCombo::host

QList<QPair<QString, LumoColorCombo::OLE_COLOR>> LumoColorCombo::SystemColorNames() {
  return host::SystemColors::named();
}
