#include "qt/VirtualKeys.h"

#include <QKeyEvent>

#include <utility>

#include "colormodel/SurfaceEvents.h"

namespace LumoColorCombo::host {
namespace {

// Keys whose Qt code differs from the virtual-key code. Letters and digits share their
// codes ('A' = 0x41 in both), so they need no entry.
constexpr std::pair<int, std::int16_t> kNamedKeys[] = {
    {Qt::Key_Backspace, 0x08}, {Qt::Key_Tab, 0x09},      {Qt::Key_Backtab, 0x09},
    {Qt::Key_Clear, 0x0C},     {Qt::Key_Return, 0x0D},   {Qt::Key_Enter, 0x0D},
    {Qt::Key_Shift, 0x10},     {Qt::Key_Control, 0x11},  {Qt::Key_Alt, 0x12},
    {Qt::Key_Pause, 0x13},     {Qt::Key_CapsLock, 0x14}, {Qt::Key_Escape, 0x1B},
    {Qt::Key_Space, 0x20},     {Qt::Key_PageUp, 0x21},   {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},       {Qt::Key_Home, 0x24},     {Qt::Key_Left, 0x25},
    {Qt::Key_Up, 0x26},        {Qt::Key_Right, 0x27},    {Qt::Key_Down, 0x28},
    {Qt::Key_Print, 0x2C},     {Qt::Key_Insert, 0x2D},   {Qt::Key_Delete, 0x2E},
    {Qt::Key_Help, 0x2F},      {Qt::Key_Semicolon, 0xBA}, {Qt::Key_Equal, 0xBB},
    {Qt::Key_Comma, 0xBC},     {Qt::Key_Minus, 0xBD},    {Qt::Key_Period, 0xBE},
    {Qt::Key_Slash, 0xBF},     {Qt::Key_QuoteLeft, 0xC0}, {Qt::Key_BracketLeft, 0xDB},
    {Qt::Key_Backslash, 0xDC}, {Qt::Key_BracketRight, 0xDD}, {Qt::Key_Apostrophe, 0xDE},
};

// The number pad has codes of its own for digits and operators.
std::int16_t KeypadCode(int qtKey) {
  if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return static_cast<std::int16_t>(0x60 + (qtKey - Qt::Key_0));
  switch (qtKey) {
    case Qt::Key_Asterisk: return 0x6A;
    case Qt::Key_Plus: return 0x6B;
    case Qt::Key_Minus: return 0x6D;
    case Qt::Key_Period: return 0x6E;
    case Qt::Key_Slash: return 0x6F;
    default: return 0;
  }
}

}  // namespace

std::int16_t VirtualKeys::keyCode(const QKeyEvent& event) { return keyCode(event.key(), event.modifiers()); }

std::int16_t VirtualKeys::keyCode(int qtKey, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::KeypadModifier)) {
    if (const std::int16_t code = KeypadCode(qtKey); code != 0) return code;
  }
  if ((qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)) {
    return static_cast<std::int16_t>(qtKey);
  }
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return static_cast<std::int16_t>(0x70 + (qtKey - Qt::Key_F1));
  for (const auto& [qt, vk] : kNamedKeys) {
    if (qt == qtKey) return vk;
  }
  return 0;
}

std::int16_t VirtualKeys::shiftState(Qt::KeyboardModifiers modifiers) {
  std::int16_t state = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) state |= lumo::shift::Shift;
  if (modifiers.testFlag(Qt::ControlModifier)) state |= lumo::shift::Ctrl;
  if (modifiers.testFlag(Qt::AltModifier)) state |= lumo::shift::Alt;
  return state;
}

}  // namespace LumoColorCombo::host
