#pragma once

#include <QLineEdit>

namespace borvik {

/// The colour of what a form doesn't take.
inline constexpr QRgb kRefusedRed = qRgb(200, 0, 0);

/// A box for one number. It selects its text on entry, is green while it has the focus and white otherwise, each with
/// its own dark text so that it reads in a dark theme too. It doesn't judge what is typed: the binder does that.
class NumberBox : public QLineEdit {
    Q_OBJECT

public:
    /// @param name  the control's name; the binder, tests and help find the box by it
    explicit NumberBox(const QString& name, QWidget* parent = nullptr);

    /// Shows a text that isn't the user's own; `edited` is false afterwards.
    void showText(const QString& text);
    /// True when the text has been changed, by the user or in a test, since it was last shown.
    [[nodiscard]] bool edited() const;

    /// Marks the box as holding a value that it doesn't take: red frame, an exclamation mark, and `why` above the
    /// meaning in the tool tip.
    void markRefused(const QString& why);
    void clearRefusal();
    [[nodiscard]] bool refused() const { return refused_; }
    /// Refused, and the text is still the refused one.
    [[nodiscard]] bool standsRefused() const { return refused_ && text() == refusedText_; }
    /// Shows its number and takes none: read like any other, passed by Tab and Enter.
    void setLocked(bool locked);
    /// The tool tip, below what a refusal adds.
    void setMeaning(const QString& meaning);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The focus has gone to another control of the window (not merely to another window).
    void left();
    /// Enter: on to the next box.
    void enterPressed();
    /// An arrow key, Qt::Key_Left, _Right, _Up or _Down. `taken` is set by whoever moved the focus.
    void arrowPressed(int key, bool& taken);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintBackground(const QColor& colour);
    void rest();
    void showTip();
    [[nodiscard]] int markWidth() const;

    QString shown_;
    QString meaning_;
    QString why_;
    QString refusedText_;
    bool refused_ = false;
    bool selectOnRelease_ = false;
};

}  // namespace borvik
