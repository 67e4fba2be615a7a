#pragma once

#include <QLineEdit>
#include <QWidget>

#include <memory>

namespace flowloom::grid {

class GridInput;
class MaskStyle;

// The edit box over the value column. Keys go to the control first, which
// may keep them from the box.
class EditBox : public QLineEdit {
    Q_OBJECT
public:
    EditBox(GridInput& input, QWidget* parent);
    ~EditBox() override;
    // Masks the text with the first character of mask; an empty mask shows it.
    void SetMask(const QString& mask);
    // Lets the box handle a key as it would by itself.
    void DefaultKeyPress(QKeyEvent& event) { QLineEdit::keyPressEvent(&event); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent* event) override;

private:
    GridInput& input_;
    std::unique_ptr<MaskStyle> maskStyle_;
    int pressesSinceShown_ = 0;
};

// The button right of the edit box: a drop arrow, "..." or two spin halves,
// drawn in the platform's style.
class ButtonArea : public QWidget {
    Q_OBJECT
public:
    enum class Look { Ellipsis, DropArrow, Spin };
    enum class Pressed { None, Whole, Upper, Lower };

    ButtonArea(GridInput& input, QWidget* parent);
    void SetLook(Look look);
    Look GetLook() const noexcept { return look_; }
    void SetPressed(Pressed pressed);
    Pressed GetPressed() const noexcept { return pressed_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void PaintButton(QPainter& painter, const QRect& rect, bool down, int arrow);

    GridInput& input_;
    Look look_ = Look::DropArrow;
    Pressed pressed_ = Pressed::None;
};

}  // namespace flowloom::grid
