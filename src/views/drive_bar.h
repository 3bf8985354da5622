#pragma once

#include <QElapsedTimer>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include "calculation/crane_drive.h"

namespace borvik {

/// Drives the cranes along the beam: a slider for crane 1 and, where crane 2 moves on its own, one for crane 2. Left
/// and Right are one step of the walk, with Shift ten; Space plays and stops, Backspace goes back to the governing
/// position, Esc takes the cranes off the beam again.
class DriveBar : public QWidget {
    Q_OBJECT

public:
    explicit DriveBar(QWidget* parent = nullptr);

    /// Sets the sliders to where the cranes stand; they are not usable without.
    void showDrive(const CraneDrive* drive);
    /// Starts or stops the cranes, from the start of the beam where they have reached its end.
    void play();
    [[nodiscard]] bool isPlaying() const { return timer_.isActive(); }
    void stop();
    /// Gives the slider of crane 1 the focus.
    void takeFocus() { crane1_->setFocus(); }

Q_SIGNALS:
    /// The cranes are to stand at this position of their walk.
    void moved(int j, int k);
    void backWanted();
    void endWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSlider* slider(const char* name, const QString& tip);
    void sliderMoved();
    void advance();
    bool takeKey(QSlider* slider, int key, bool shift);
    [[nodiscard]] QSlider* driven() const;

    QToolButton* play_;
    QToolButton* back_;
    QSlider* crane1_;
    QSlider* crane2_;
    QTimer timer_;
    QElapsedTimer sinceStep_;
    double part_ = 0.0;    ///< of a step, not taken yet
    bool second_ = false;  ///< crane 2 moves on its own
};

}  // namespace borvik
