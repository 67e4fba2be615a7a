#pragma once

#include "grid/PropertyEvents.h"

class QPainter;

namespace flowloom::grid {

// The owner's direct line to the grid's events: the window-free events and
// the painting of owner-drawn rows (slot 9, DrawItem). While a sink is set,
// each notification goes to it instead of the control's signal of the same
// name.
//
// The window-free part is a virtual base, so that an owner can join a
// window-free handler (a property sheet) with its own DrawItem:
//     class Sheet : public virtual PropertyEvents { ... };
//     class SheetSink : public Sheet, public IPropEventSink { void DrawItem(...) override; };
class IPropEventSink : public virtual PropertyEvents {
public:
    // An owner-drawn row is painted: the owner paints from lLeft to lRight,
    // its caption from lStartText and its value from lStartValue.
    virtual void DrawItem(Property& iProp, QPainter& hdc, int lLeft, int lTop, int lRight, int lBottom, int lStartText,
                          int lStartValue) = 0;
};

}  // namespace flowloom::grid
