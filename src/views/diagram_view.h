#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "diagrams/diagrams.h"
#include "platform/services.h"
#include "views/calculation_record.h"

namespace borvik {

/// Shows a picture of diagrams, laid over the whole widget. The mouse and the arrow keys read out values: left and
/// right go from point to point, with Ctrl from support to support, up and down to the next diagram. A context menu
/// saves or copies the picture.
class DiagramView : public QWidget {
    Q_OBJECT

public:
    explicit DiagramView(const Services& services, QWidget* parent = nullptr);

    /// The beam with its cranes, as the project stands now. Call again after a change.
    /// @param project  must outlive the view
    void showSketch(const Project& project);
    /// Diagrams of a calculation.
    void showResults(std::vector<Diagram> diagrams, CalculationPtr calculation);
    void clear();
    /// Shows the cranes where they stand, and again wherever they are moved to; null: no more. Only they and what
    /// follows them is drawn anew then.
    void showDrive(std::shared_ptr<const CraneDrive> drive);
    /// Results that the input has left behind say so across the picture, saved pictures too.
    void setOutOfDate(bool outOfDate);

    [[nodiscard]] const std::vector<Diagram>& diagrams() const { return diagrams_; }
    [[nodiscard]] bool outOfDate() const { return outOfDate_; }
    [[nodiscard]] Place toLogical(QPointF place) const;

    /// Between two units across a click, or Enter anywhere, does something.
    /// @param tip  what it does; shown there only
    void setClickArea(double from, double to, const QString& tip);

    /// The part of the beam that is shown; the whole beam to begin with, and again where the beam became another.
    [[nodiscard]] const BeamPart& part() const { return part_; }
    void showPart(BeamPart part);
    /// Shows the beam larger by a factor, or smaller by one under 1, about a place that stays where it is.
    /// @param about  units across
    void zoom(double factor, double about);
    /// About the reading, or about the middle.
    void zoom(double factor);
    void showWholeBeam() { showPart({}); }

    void savePictureAs();
    void copyPicture() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A click in the area for it, or Enter.
    void clicked();
    /// A click on an extreme: where the cranes stand for it.
    void extremeChosen(const std::array<CraneStand, 2>& stands);
    /// What stands under the mouse or was reached by the keys; empty where nothing does.
    void readingChanged(const QString& text);
    /// Another part of the beam is shown.
    void partChanged(BeamPart part);
    /// The keys have moved the reading to this point of the widget.
    void readingMoved(QPoint to);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void contentChanged();
    [[nodiscard]] double beamLength() const;
    void readUnder(QPointF point);
    [[nodiscard]] bool zoomByKey(int key);
    void read(Place place, double reach);
    void stopReading();
    bool walk(int key, bool bySupports);
    [[nodiscard]] bool takesClicksAt(QPointF point) const;
    [[nodiscard]] std::array<CraneStand, 2> extremeAt(QPointF point) const;
    void draw(DrawingSurface& surface, std::span<const Diagram> diagrams, DiagramLayer layer) const;
    [[nodiscard]] std::vector<Diagram> savedDiagrams() const;
    [[nodiscard]] QSize savedSize() const;
    void drawNotice(DrawingSurface& surface) const;
    void drawSaved(DrawingSurface& surface) const;
    void drawReading(QPainter& painter) const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] double textScale() const;

    Services services_;
    std::vector<Diagram> diagrams_;
    const Project* project_ = nullptr;
    CalculationPtr calculation_;
    std::shared_ptr<const CraneDrive> drive_;  ///< null where the cranes are not driven
    bool outOfDate_ = false;
    QPixmap drawn_;  ///< the picture without the read-out; null when it has to be drawn anew
    BeamPart part_;
    std::optional<QPointF> pressedAt_;  ///< while the left button is down
    bool dragged_ = false;
    Place readAt_{};
    QString reading_;
    double clickFrom_ = 0.0, clickTo_ = 0.0;  ///< units across
};

}  // namespace borvik
