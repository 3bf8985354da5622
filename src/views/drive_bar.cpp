#include "views/drive_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>

#include "views/icons.h"

namespace borvik {

namespace {
constexpr double kStepsPerSecond = 50.0;  // of 200 mm: a span of 30 m in three seconds
constexpr int kFrame = 16;                // ms
constexpr int kLongStep = 10;
}  // namespace

DriveBar::DriveBar(QWidget* parent) : QWidget(parent) {
    setObjectName("driveBar");
    play_ = new QToolButton;
    play_->setObjectName("drivePlay");
    play_->setAutoRaise(true);
    play_->setToolTip(tr("Drives the cranes along the beam (Space)"));
    play_->setAccessibleName(tr("Play"));
    back_ = new QToolButton;
    back_->setObjectName("driveBack");
    back_->setAutoRaise(true);
    back_->setIcon(themeIcon("edit-undo", QStyle::SP_BrowserReload));
    back_->setToolTip(tr("Back to the governing position (Ctrl+G, Backspace)"));
    back_->setAccessibleName(tr("Back to the governing position"));
    crane1_ = slider("driveCrane1", tr("Position of crane 1: Left and Right one step of 200 mm, with Shift ten"));
    crane2_ = slider("driveCrane2", tr("Position of crane 2: Left and Right one step of 200 mm, with Shift ten"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(play_);
    layout->addWidget(crane1_, 1);
    layout->addWidget(crane2_, 1);
    layout->addWidget(back_);
    connect(play_, &QToolButton::clicked, this, &DriveBar::play);
    connect(back_, &QToolButton::clicked, this, &DriveBar::backWanted);
    connect(&timer_, &QTimer::timeout, this, &DriveBar::advance);
    timer_.setTimerType(Qt::PreciseTimer);
    stop();
    showDrive(nullptr);
}

QSlider* DriveBar::slider(const char* name, const QString& tip) {
    auto* made = new QSlider(Qt::Horizontal);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setAccessibleName(tip.section(':', 0, 0));
    made->setPageStep(kLongStep);
    made->installEventFilter(this);
    connect(made, &QSlider::valueChanged, this, [this, made] {
        // Crane 2 stands right of crane 1: either pushes the other on.
        const QSignalBlocker one(crane1_), other(crane2_);
        if (made == crane1_) crane2_->setValue(std::max(crane2_->value(), made->value()));
        if (made == crane2_) crane1_->setValue(std::min(crane1_->value(), made->value()));
        sliderMoved();
    });
    return made;
}

void DriveBar::showDrive(const CraneDrive* drive) {
    setEnabled(drive != nullptr);
    if (drive == nullptr) stop();
    const WalkSteps* steps = drive == nullptr ? nullptr : &drive->cranes().steps();
    second_ = steps != nullptr && steps->secondCraneMoves;
    crane2_->setVisible(second_);
    back_->setEnabled(drive != nullptr && drive->stand().isKnown());
    const QSignalBlocker one(crane1_), other(crane2_);
    const int last = steps == nullptr ? 0 : std::max(0, steps->N1);
    for (QSlider* each : {crane1_, crane2_}) each->setRange(0, last);
    if (drive == nullptr) return;
    const WalkPosition at = drive->position();
    crane1_->setValue(at.j);
    crane2_->setValue(at.j + (second_ ? at.k : 0));
}

void DriveBar::sliderMoved() {
    Q_EMIT moved(crane1_->value(), second_ ? crane2_->value() - crane1_->value() : 0);
}

/// The crane that plays: the second one while its slider has the focus.
QSlider* DriveBar::driven() const {
    return second_ && crane2_->hasFocus() ? crane2_ : crane1_;
}

void DriveBar::play() {
    if (isPlaying()) return stop();
    if (!isEnabled() || driven()->maximum() == 0) return;
    if (driven()->value() == driven()->maximum()) driven()->setValue(0);
    part_ = 0.0;
    sinceStep_.start();
    timer_.start(kFrame);
    play_->setIcon(themeIcon("media-playback-pause", QStyle::SP_MediaPause));
}

void DriveBar::stop() {
    timer_.stop();
    play_->setIcon(themeIcon("media-playback-start", QStyle::SP_MediaPlay));
}

void DriveBar::advance() {
    part_ += static_cast<double>(sinceStep_.restart()) / 1000.0 * kStepsPerSecond;
    const double whole = std::floor(part_);
    if (whole < 1.0) return;
    part_ -= whole;
    QSlider* slider = driven();
    slider->setValue(slider->value() + static_cast<int>(whole));
    if (slider->value() == slider->maximum()) stop();
}

/// @return false for a key that the slider takes itself, or nobody
bool DriveBar::takeKey(QSlider* slider, int key, bool shift) {
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        slider->setValue(slider->value() + (key == Qt::Key_Left ? -1 : 1) * (shift ? kLongStep : 1));
    else if (key == Qt::Key_Space)
        play();
    else if (key == Qt::Key_Backspace)
        Q_EMIT backWanted();
    else if (key == Qt::Key_Escape)
        Q_EMIT endWanted();
    else
        return false;
    return true;
}

bool DriveBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) stop();
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const auto* pressed = static_cast<QKeyEvent*>(event);
    return takeKey(static_cast<QSlider*>(watched), pressed->key(), pressed->modifiers().testFlag(Qt::ShiftModifier)) ||
           QWidget::eventFilter(watched, event);
}

}  // namespace borvik
