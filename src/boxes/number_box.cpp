#include "boxes/number_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>

namespace borvik {

namespace {

constexpr QRgb kFocusedGreen = qRgb(0, 255, 0);
constexpr QRgb kRestingWhite = qRgb(255, 255, 255);
constexpr QRgb kLockedGrey = qRgb(232, 232, 232);
constexpr QRgb kTextOnBoth = qRgb(16, 16, 16);
constexpr int kCharacters = 8;  // wide enough for "4000000" and for "1.234"

}  // namespace

NumberBox::NumberBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
    setAlignment(Qt::AlignRight);
    setFocusPolicy(Qt::StrongFocus);  // no focus by the mouse wheel
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    paintBackground(kRestingWhite);
}

void NumberBox::showText(const QString& text) {
    shown_ = text;
    setText(text);
    setModified(false);
    setCursorPosition(0);
}

bool NumberBox::edited() const {
    return isModified() || text() != shown_;
}

void NumberBox::markRefused(const QString& why) {
    refused_ = true;
    refusedText_ = text();
    why_ = why;
    setTextMargins(markWidth(), 0, 0, 0);  // the sign stays beside a long number
    showTip();
}

void NumberBox::clearRefusal() {
    refused_ = false;
    why_.clear();
    setTextMargins(0, 0, 0, 0);
    showTip();
}

void NumberBox::setMeaning(const QString& meaning) {
    meaning_ = meaning;
    showTip();
}

void NumberBox::showTip() {
    const QString tip = why_.isEmpty() ? meaning_ : why_ + QLatin1Char('\n') + meaning_;
    setToolTip(tip);
    setAccessibleDescription(tip);
    update();
}

void NumberBox::setLocked(bool locked) {
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::NoFocus : Qt::StrongFocus);
    rest();
}

void NumberBox::rest() {
    paintBackground(isReadOnly() ? kLockedGrey : kRestingWhite);
    deselect();
}

int NumberBox::markWidth() const {
    return fontMetrics().height() / 2;
}

QSize NumberBox::sizeHint() const {
    const int width = fontMetrics().horizontalAdvance(QLatin1Char('0')) * kCharacters;
    return {width + markWidth() + fontMetrics().height(), QLineEdit::sizeHint().height()};
}

void NumberBox::paintBackground(const QColor& colour) {
    QPalette colours = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        colours.setColor(group, QPalette::Base, colour);
        colours.setColor(group, QPalette::Text, kTextOnBoth);
    }
    setPalette(colours);
}

void NumberBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // A box that lost the focus while its window was not the active one has not heard of it.
    for (NumberBox* other : window()->findChildren<NumberBox*>())
        if (other != this) other->rest();
    paintBackground(kFocusedGreen);
    // Somebody who comes back from another window goes on typing at the same place.
    const bool comesBack = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (comesBack && edited()) return;
    selectAll();
    selectOnRelease_ = event->reason() == Qt::MouseFocusReason;  // the press that follows would drop the selection
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    rest();
    Q_EMIT left();
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (event->modifiers().testFlag(Qt::ControlModifier)) break;  // closes the form
            event->accept();
            Q_EMIT enterPressed();
            return;
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down: {
            const auto modifiers = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
            bool taken = false;
            if (modifiers == Qt::NoModifier) Q_EMIT arrowPressed(event->key(), taken);
            if (taken) {
                event->accept();
                return;
            }
            break;
        }
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

void NumberBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (selectOnRelease_ && !hasSelectedText()) selectAll();
    selectOnRelease_ = false;
}

void NumberBox::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!refused_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(kRefusedRed), 2.0));
    painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(rect().adjusted(fontMetrics().height() / 3, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("!"));
}

}  // namespace borvik
