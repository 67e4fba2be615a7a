#pragma once

#include <QKeyEvent>

namespace flowloom::grid {

// Key codes as the grid's events carry them: the classic virtual key
// numbers, so that owners compare against the same values on every platform.
namespace vk {
inline constexpr int Back = 8, Tab = 9, Return = 13, Shift = 16, Control = 17, Menu = 18, Escape = 27, Space = 32;
inline constexpr int PageUp = 33, PageDown = 34, End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40;
inline constexpr int Insert = 45, Delete = 46, Add = 107, Subtract = 109, F1 = 112, F4 = 115;
}  // namespace vk

// The Shift argument of key and mouse events: 1 Shift, 2 Ctrl, 4 Alt.
inline constexpr int kShiftMask = 1, kCtrlMask = 2, kAltMask = 4;

int VirtualKey(const QKeyEvent& event);
int ShiftState(Qt::KeyboardModifiers modifiers);
// The character code the key types: Ctrl+letter gives 1 to 26, Enter 13,
// Esc 27, Backspace 8; 0 when the key types nothing (Delete included).
int KeyAscii(const QKeyEvent& event);
// Mouse button as a number: 1 left, 2 right, 4 middle.
int ButtonNumber(Qt::MouseButton button);

}  // namespace flowloom::grid
