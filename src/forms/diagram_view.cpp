#include "forms/diagram_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "base/fault.h"
#include "forms/icons.h"
#include "platform/qt/picture.h"
#include "platform/qt/qt_surface.h"

namespace borvik {

namespace {
constexpr QSize kSavedSize(2000, 500);        // of one diagram
constexpr double kLeastPixelsPerUnit = 0.72;  // below that the lines of text would run into each other
}  // namespace

DiagramView::DiagramView(const Services& services, QWidget* parent) : QWidget(parent), services_(services) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DiagramView::showSketch(const Project& project) {
    project_ = &project;
    calculation_.reset();
    diagrams_ = {Diagram::Sketch};
    contentChanged();
}

void DiagramView::showResults(std::vector<Diagram> diagrams, CalculationPtr calculation) {
    calculation_ = std::move(calculation);
    project_ = &calculation_->project;
    diagrams_ = std::move(diagrams);
    outOfDate_ = false;
    contentChanged();
}

void DiagramView::clear() {
    diagrams_.clear();
    project_ = nullptr;
    calculation_.reset();
    outOfDate_ = false;
    contentChanged();
}

void DiagramView::setOutOfDate(bool outOfDate) {
    if (outOfDate == outOfDate_) return;
    outOfDate_ = outOfDate && !diagrams_.empty();
    drawn_ = {};
    update();
}

void DiagramView::contentChanged() {
    drawn_ = {};
    mouse_.reset();
    if (!reading_.isEmpty()) Q_EMIT readingChanged({});
    reading_.clear();
    setAccessibleName(title());
    updateGeometry();
    update();
}

QString DiagramView::title() const {
    return diagrams_.empty() ? QString() : QString::fromStdString(diagramTitle(diagrams_.front(), *project_));
}

QSize DiagramView::minimumSizeHint() const {
    return {300, static_cast<int>(diagrams_.empty() ? 80 : pictureHeight(diagrams_) * kLeastPixelsPerUnit)};
}

QSize DiagramView::sizeHint() const {
    return {700, static_cast<int>(diagrams_.empty() ? 150 : pictureHeight(diagrams_))};
}

double DiagramView::textScale() const {
    return std::clamp(std::min(width() / 1100.0, height() / pictureHeight(diagrams_)), 1.0, 1.8);
}

void DiagramView::draw(DrawingSurface& surface) const {
    DrawPicture(surface, diagrams_, {*project_, calculation_ ? &calculation_->results : nullptr});
}

/// The words that results are out of date, in a box in the middle of the picture.
void DiagramView::drawNotice(DrawingSurface& surface) const {
    const double height = pictureHeight(diagrams_);
    surface.scale(0.0, 0.0, 1000.0, height);
    surface.setFont({.name = "Arial", .points = 11.0, .bold = true});
    surface.setColour(colours::red);
    surface.setFill(colours::white);
    const double line = surface.textHeight();
    const double width = surface.textWidth(kOutOfDate) / 2.0 + 12.0;
    surface.rectangle({500.0 - width, height / 2.0 - line}, {500.0 + width, height / 2.0 + line});
    surface.text({512.0 - width, height / 2.0 - line / 2.0}, kOutOfDate);
}

void DiagramView::drawSaved(DrawingSurface& surface) const {
    draw(surface);
    if (outOfDate_) drawNotice(surface);
}

void DiagramView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (diagrams_.empty()) {
        painter.fillRect(rect(), palette().color(QPalette::Base));
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter, tr("Results stand here after a calculation (F5)"));
        return;
    }
    const QSize pixels = size() * devicePixelRatioF();
    if (drawn_.size() != pixels) {
        drawn_ = QPixmap(pixels);
        drawn_.setDevicePixelRatio(devicePixelRatioF());
        drawn_.fill(Qt::white);
        QPainter onto(&drawn_);
        onto.setRenderHint(QPainter::Antialiasing);
        try {
            QtSurface surface(onto, QRectF(rect()), textScale());
            draw(surface);
        } catch (const RuntimeFault& fault) {
            onto.setPen(Qt::black);
            onto.drawText(rect().adjusted(8, 8, -8, -8), Qt::TextWordWrap, QString::fromUtf8(fault.what()));
        }
    }
    if (outOfDate_) {
        painter.fillRect(rect(), Qt::white);
        painter.setOpacity(0.45);
    }
    painter.drawPixmap(0, 0, drawn_);
    painter.setOpacity(1.0);
    if (outOfDate_) {
        QtSurface surface(painter, QRectF(rect()), textScale());
        drawNotice(surface);
        painter.resetTransform();
    }
    if (!reading_.isEmpty()) drawReading(painter);
}

void DiagramView::drawReading(QPainter& painter) const {
    painter.setPen(QPen(QColor(90, 90, 90), 1, Qt::DashLine));
    painter.drawLine(QPointF(mouse_->x(), 0), QPointF(mouse_->x(), height()));
    const QSizeF text = fontMetrics().size(Qt::TextSingleLine, reading_) + QSize(10, 6);
    const double left = std::clamp(mouse_->x() + 8, 0.0, std::max(0.0, width() - text.width()));
    const QRectF box(QPointF(left, height() - text.height() - 2), text);
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, reading_);
}

Place DiagramView::toLogical(QPointF place) const {
    return pictureFrame(diagrams_).placeOf(place.x(), place.y(), std::max(1, width()), std::max(1, height()));
}

void DiagramView::mouseMoveEvent(QMouseEvent* event) {
    if (!calculation_) return;
    constexpr double kSupportReach = 3.0;  // pixels on either side of a support that count as the support
    const double reach = toLogical({kSupportReach, 0.0}).x - toLogical({0.0, 0.0}).x;
    const auto found = ReadPicture(diagrams_, {*project_, &calculation_->results}, toLogical(event->position()), reach);
    mouse_ = event->position();
    reading_ = found ? QString::fromStdString(found->text()) : QString();
    Q_EMIT readingChanged(reading_);
    update();
}

void DiagramView::leaveEvent(QEvent*) {
    if (reading_.isEmpty()) return;
    reading_.clear();
    Q_EMIT readingChanged({});
    update();
}

void DiagramView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const Place place = toLogical(event->position());
    Q_EMIT clicked(place.x, place.y);
}

void DiagramView::contextMenuEvent(QContextMenuEvent* event) {
    if (diagrams_.empty()) return;
    QMenu menu;
    const QAction* save =
        menu.addAction(themeIcon("document-save-as", QStyle::SP_DialogSaveButton), tr("Save picture..."));
    const QAction* copy = menu.addAction(themeIcon("edit-copy", QStyle::SP_FileIcon), tr("Copy picture"));
    const QAction* chosen = menu.exec(event->globalPos());
    if (chosen == save) savePictureAs();
    if (chosen == copy)
        QApplication::clipboard()->setImage(
            renderPicture([this](DrawingSurface& surface) { drawSaved(surface); },
                          {kSavedSize.width(), kSavedSize.height() * static_cast<int>(diagrams_.size())}));
}

void DiagramView::savePictureAs() {
    const auto path = services_.questions.fileToSave(std::string(diagramName(diagrams_.front())) + ".png",
                                                     "PNG (*.png);;SVG (*.svg)", "png");
    if (!path) return;
    const QSize size(kSavedSize.width(), kSavedSize.height() * static_cast<int>(diagrams_.size()));
    const QString trouble = savePicture(
        *path, [this](DrawingSurface& surface) { drawSaved(surface); }, size, title());
    if (!trouble.isEmpty()) services_.messages.show(trouble.toStdString());
}

}  // namespace borvik
