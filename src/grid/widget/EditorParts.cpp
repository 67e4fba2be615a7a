#include "grid/widget/EditorParts.h"

#include "grid/widget/GridInput.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

namespace flowloom::grid {

namespace {
constexpr int kTextMargin = 2;  // Qt's line edit keeps its text this far from either side
}  // namespace

// The application's style with the password character of the row, which
// Qt's line edit takes from its style alone.
class MaskStyle : public QProxyStyle {
public:
    MaskStyle() : QProxyStyle(QStyleFactory::create(QApplication::style()->name())) {}
    QChar Character() const { return character_; }
    void SetCharacter(QChar character) { character_ = character; }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* data) const override {
        if (hint == SH_LineEdit_PasswordCharacter) return character_.unicode();
        return QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    QChar character_ = u'*';
};

EditBox::EditBox(GridInput& input, QWidget* parent)
    : QLineEdit(parent), input_(input), maskStyle_(std::make_unique<MaskStyle>()) {
    setStyle(maskStyle_.get());
    setObjectName("txtValue");
    setFrame(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::ClickFocus);
    hide();
    connect(this, &QLineEdit::textEdited, this, [this] { input_.EditTextEdited(); });
}

EditBox::~EditBox() { setStyle(nullptr); }  // the box lets go of its style before the style goes

void EditBox::SetMask(const QString& mask) {
    setEchoMode(mask.isEmpty() ? QLineEdit::Normal : QLineEdit::Password);
    if (mask.isEmpty() || mask.at(0) == maskStyle_->Character()) return;
    maskStyle_->SetCharacter(mask.at(0));
    QEvent changed(QEvent::StyleChange);
    QCoreApplication::sendEvent(this, &changed);  // the box reads the character again
}

void EditBox::keyPressEvent(QKeyEvent* event) {
    if (!input_.EditKeyPress(*event)) QLineEdit::keyPressEvent(event);
}

void EditBox::keyReleaseEvent(QKeyEvent* event) {
    QLineEdit::keyReleaseEvent(event);
    input_.EditKeyRelease(*event);
}

void EditBox::mousePressEvent(QMouseEvent* event) {
    ++pressesSinceShown_;
    QLineEdit::mousePressEvent(event);
}

void EditBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QLineEdit::mouseDoubleClickEvent(event);
    // A double click's second press comes as this event alone: a box that saw
    // no press before it was shown by the first click, on the row.
    input_.EditDoubleClick(pressesSinceShown_ == 0);
}

// A text too long for the box is told in a tip, unless it is masked.
bool EditBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QLineEdit::event(event);
    const int room = contentsRect().width() - 2 * kTextMargin;
    if (echoMode() == QLineEdit::Normal && fontMetrics().horizontalAdvance(text()) > room)
        QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(), text(), this);
    else
        QToolTip::hideText();
    return true;
}

bool EditBox::focusNextPrevChild(bool next) { return input_.LeaveByTab(next); }

void EditBox::showEvent(QShowEvent* event) {
    pressesSinceShown_ = 0;
    QLineEdit::showEvent(event);
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
