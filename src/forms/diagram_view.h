#pragma once

#include <QPixmap>
#include <QWidget>
#include <optional>
#include <vector>

#include "forms/calculation_record.h"
#include "forms/services.h"
#include "results/diagrams.h"

namespace borvik {

/// Shows a picture of diagrams, laid over the whole widget. The mouse reads out values; a context menu saves or copies
/// the picture.
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
    /// Results that the input has left behind say so across the picture, saved pictures too.
    void setOutOfDate(bool outOfDate);

    [[nodiscard]] const std::vector<Diagram>& diagrams() const { return diagrams_; }
    [[nodiscard]] bool outOfDate() const { return outOfDate_; }
    [[nodiscard]] Place toLogical(QPointF place) const;

    void savePictureAs();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// A click, in logical units.
    void clicked(double x, double y);
    /// What stands under the mouse; empty where nothing does.
    void readingChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void contentChanged();
    void draw(DrawingSurface& surface) const;
    void drawNotice(DrawingSurface& surface) const;
    void drawSaved(DrawingSurface& surface) const;
    void drawReading(QPainter& painter) const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] double textScale() const;

    Services services_;
    std::vector<Diagram> diagrams_;
    const Project* project_ = nullptr;
    CalculationPtr calculation_;
    bool outOfDate_ = false;
    QPixmap drawn_;  ///< the picture without the read-out; null when it has to be drawn anew
    std::optional<QPointF> mouse_;
    QString reading_;
};

}  // namespace borvik
