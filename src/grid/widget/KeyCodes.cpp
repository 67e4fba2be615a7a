#include "grid/widget/KeyCodes.h"

namespace flowloom::grid {

int VirtualKey(const QKeyEvent& event) {
    const int key = event.key();
    const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;  // same numbers
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return keypad ? 96 + (key - Qt::Key_0) : key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return vk::F1 + (key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Backspace: return vk::Back;
    case Qt::Key_Tab: case Qt::Key_Backtab: return vk::Tab;
    case Qt::Key_Return: case Qt::Key_Enter: return vk::Return;
    case Qt::Key_Shift: return vk::Shift;
    case Qt::Key_Control: return vk::Control;
    case Qt::Key_Alt: return vk::Menu;
    case Qt::Key_Escape: return vk::Escape;
    case Qt::Key_Space: return vk::Space;
    case Qt::Key_PageUp: return vk::PageUp;
    case Qt::Key_PageDown: return vk::PageDown;
    case Qt::Key_End: return vk::End;
    case Qt::Key_Home: return vk::Home;
    case Qt::Key_Left: return vk::Left;
    case Qt::Key_Up: return vk::Up;
    case Qt::Key_Right: return vk::Right;
    case Qt::Key_Down: return vk::Down;
    case Qt::Key_Insert: return vk::Insert;
    case Qt::Key_Delete: return vk::Delete;
    case Qt::Key_Plus: return keypad ? vk::Add : 187;
    case Qt::Key_Minus: return keypad ? vk::Subtract : 189;
    case Qt::Key_Asterisk: return keypad ? 106 : 0;
    case Qt::Key_Slash: return keypad ? 111 : 191;
    case Qt::Key_Period: return keypad ? 110 : 190;
    case Qt::Key_Comma: return 188;
    default: return 0;
    }
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers.testFlag(Qt::ShiftModifier)) state |= kShiftMask;
    if (modifiers.testFlag(Qt::ControlModifier)) state |= kCtrlMask;
    if (modifiers.testFlag(Qt::AltModifier)) state |= kAltMask;
    return state;
}

int KeyAscii(const QKeyEvent& event) {
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::AltModifier)) return 0;
    if (event.modifiers().testFlag(Qt::ControlModifier))
        return key >= Qt::Key_A && key <= Qt::Key_Z ? key - Qt::Key_A + 1 : 0;
    switch (key) {
    case Qt::Key_Return: case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: return 9;
    default: break;
    }
    // Delete types nothing: X11 still gives it the text DEL (127).
    const QString text = event.text();
    if (text.isEmpty() || text.at(0).unicode() < 32 || text.at(0).unicode() == 127) return 0;
    return text.at(0).unicode();
}

int ButtonNumber(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
    }
}

}  // namespace flowloom::grid
