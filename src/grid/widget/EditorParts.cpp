#include "grid/widget/EditorParts.h"

#include "grid/widget/GridInput.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace flowloom::grid {

EditBox::EditBox(GridInput& input, QWidget* parent) : QLineEdit(parent), input_(input) {
    setObjectName("txtValue");
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::ClickFocus);
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { input_.EditTextEdited(); });
}

void EditBox::keyPressEvent(QKeyEvent* event) {
    if (!input_.EditKeyPress(*event)) QLineEdit::keyPressEvent(event);
}

void EditBox::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    input_.EditKeyRelease(*event);
}

void EditBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QLineEdit::mouseDoubleClickEvent(event);
    input_.EditDoubleClick();
}

void EditBox::mouseMoveEvent(QMouseEvent* event) {
    QLineEdit::mouseMoveEvent(event);
    input_.EditMouseMove();
}

ButtonArea::ButtonArea(GridInput& input, QWidget* parent) : QWidget(parent), input_(input) {
    setObjectName("pic");
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void ButtonArea::SetLook(Look look) {
    look_ = look;
    update();
}

void ButtonArea::SetPressed(Pressed pressed) {
    pressed_ = pressed;
    update();
}

void ButtonArea::PaintButton(QPainter& painter, const QRect& rect, bool down, int arrow) {
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = rect;
    option.state |= down ? QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    if (arrow == 0) {
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, "...");
        return;
    }
    QStyleOption arrowOption;
    arrowOption.initFrom(this);
    const int margin = rect.height() / 4;
    arrowOption.rect = rect.adjusted(margin, margin, -margin, -margin);
    style()->drawPrimitive(arrow > 0 ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &arrowOption, &painter, this);
}

void ButtonArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    switch (look_) {
    case Look::Ellipsis: PaintButton(painter, rect(), pressed_ != Pressed::None, 0); break;
    case Look::DropArrow: PaintButton(painter, rect(), pressed_ != Pressed::None, -1); break;
    case Look::Spin: {
        const int half = height() / 2;
        PaintButton(painter, QRect(0, 0, width(), half), pressed_ == Pressed::Upper, 1);
        PaintButton(painter, QRect(0, half, width(), height() - half), pressed_ == Pressed::Lower, -1);
        break;
    }
    }
}

void ButtonArea::mousePressEvent(QMouseEvent* event) { input_.ButtonMouseDown(*event); }
void ButtonArea::mouseReleaseEvent(QMouseEvent* event) { input_.ButtonMouseUp(*event); }
void ButtonArea::mouseDoubleClickEvent(QMouseEvent* event) { input_.ButtonDoubleClick(*event); }

}  // namespace flowloom::grid
