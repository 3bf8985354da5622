#include "views/diagram_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "base/fault.h"
#include "diagrams/diagram_reading.h"
#include "platform/qt/picture.h"
#include "platform/qt/qt_surface.h"
#include "views/icons.h"

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
    stopReading();
    setFocusPolicy(diagrams_.empty() ? Qt::NoFocus : Qt::StrongFocus);
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
    constexpr double kDiagramPoints = 9.0;  // of a label
    return std::max(1.0, QApplication::font().pointSizeF() / kDiagramPoints);
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
    const Ground ground = Ground::of(palette());
    const QSize pixels = size() * devicePixelRatioF();
    if (drawn_.size() != pixels) {
        drawn_ = QPixmap(pixels);
        drawn_.setDevicePixelRatio(devicePixelRatioF());
        drawn_.fill(ground.paper);
        QPainter onto(&drawn_);
        onto.setRenderHint(QPainter::Antialiasing);
        try {
            QtSurface surface(onto, QRectF(rect()), textScale(), ground);
            draw(surface);
        } catch (const RuntimeFault& fault) {
            onto.setPen(ground.ink);
            onto.drawText(rect().adjusted(8, 8, -8, -8), Qt::TextWordWrap, QString::fromUtf8(fault.what()));
        }
    }
    if (outOfDate_) {
        painter.fillRect(rect(), ground.paper);
        painter.setOpacity(0.45);
    }
    painter.drawPixmap(0, 0, drawn_);
    painter.setOpacity(1.0);
    if (outOfDate_) {
        QtSurface surface(painter, QRectF(rect()), textScale(), ground);
        drawNotice(surface);
        painter.resetTransform();
    }
    if (!reading_.isEmpty()) drawReading(painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

/// The values in a box beside the point, on the side that has room for it.
void DiagramView::drawReading(QPainter& painter) const {
    constexpr double kAway = 10.0;
    const Place point = pictureFrame(diagrams_).pointOf(readAt_, width(), height());
    painter.setPen(QPen(Ground::of(palette()).line(colours::grey), 1, Qt::DashLine));
    painter.drawLine(QPointF(point.x, 0), QPointF(point.x, height()));
    // The place, and below it a line for each value.
    const QString lines = reading_.section(": ", 0, 0) + '\n' + reading_.section(": ", 1).replace(", ", "\n");
    const QSizeF text = fontMetrics().size(0, lines) + QSize(12, 8);
    const double left = point.x + kAway + text.width() <= width() ? point.x + kAway : point.x - kAway - text.width();
    const double top = point.y - kAway - text.height() >= 0.0 ? point.y - kAway - text.height() : point.y + 2.0 * kAway;
    const QRectF box(QPointF(std::max(0.0, left), std::clamp(top, 0.0, std::max(0.0, height() - text.height() - 1))),
                     text);
    painter.setPen(palette().color(QPalette::ToolTipText));
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    painter.drawRect(box);
    painter.setFont(font());
    painter.drawText(box.adjusted(6, 4, -6, -4), Qt::AlignLeft | Qt::AlignVCenter, lines);
}

Place DiagramView::toLogical(QPointF place) const {
    return pictureFrame(diagrams_).placeOf(place.x(), place.y(), std::max(1, width()), std::max(1, height()));
}

void DiagramView::read(Place place, double reach) {
    const auto found = ReadPicture(diagrams_, {*project_, &calculation_->results}, place, reach);
    readAt_ = place;
    reading_ = found ? QString::fromStdString(found->text()) : QString();
    setAccessibleDescription(reading_);
    Q_EMIT readingChanged(reading_);
    update();
}

void DiagramView::stopReading() {
    if (reading_.isEmpty()) return;
    reading_.clear();
    setAccessibleDescription({});
    Q_EMIT readingChanged({});
    update();
}

void DiagramView::mouseMoveEvent(QMouseEvent* event) {
    if (takesClicksAt(event->position())) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
    if (!calculation_) return;
    constexpr double kSupportReach = 3.0;  // pixels on either side of a support that count as the support
    read(toLogical(event->position()), toLogical({kSupportReach, 0.0}).x - toLogical({0.0, 0.0}).x);
}

/// Moves the reading by a key.
/// @return false for a key that moves nothing
bool DiagramView::walk(int key, bool bySupports) {
    const std::vector<double> stops = readingStops(*project_, bySupports);
    const bool first = reading_.isEmpty();
    if (stops.empty()) return false;
    std::size_t shown = 0;
    std::vector<double> middles;  // of the diagrams, from the top
    double bottom = 0.0;
    for (const Diagram diagram : diagrams_) {
        const double height = diagramHeight(diagram, DiagramMode::Screen);
        if (readAt_.y > bottom) shown = middles.size();
        middles.push_back(bottom + height / 2.0);
        bottom += height;
    }
    constexpr double kSame = 1e-6;
    Place to = first ? Place{stops.front(), middles.front()} : readAt_;
    const auto next = std::upper_bound(stops.begin(), stops.end(), to.x + kSame);
    const auto here = std::lower_bound(stops.begin(), stops.end(), to.x - kSame);
    switch (key) {
        case Qt::Key_Right:
            if (!first && next != stops.end()) to.x = *next;
            break;
        case Qt::Key_Left:
            if (here != stops.begin()) to.x = *(here - 1);
            break;
        case Qt::Key_Home:
            to.x = stops.front();
            break;
        case Qt::Key_End:
            to.x = stops.back();
            break;
        case Qt::Key_Up:
            if (!first) to.y = middles[shown == 0 ? 0 : shown - 1];
            break;
        case Qt::Key_Down:
            if (!first) to.y = middles[std::min(shown + 1, middles.size() - 1)];
            break;
        default:
            return false;
    }
    read(to, 0.0);
    const Place point = pictureFrame(diagrams_).pointOf(to, width(), height());
    Q_EMIT readingMoved(QPointF(point.x, point.y).toPoint());
    return true;
}

void DiagramView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && clickTo_ > clickFrom_) {
        Q_EMIT clicked();
    } else if (!calculation_ || !walk(event->key(), event->modifiers().testFlag(Qt::ControlModifier))) {
        QWidget::keyPressEvent(event);
    }
}

void DiagramView::focusInEvent(QFocusEvent*) {
    update();
}

void DiagramView::focusOutEvent(QFocusEvent*) {
    stopReading();
    update();
}

void DiagramView::leaveEvent(QEvent*) {
    stopReading();
}

void DiagramView::setClickArea(double from, double to, const QString& tip) {
    clickFrom_ = from;
    clickTo_ = to;
    setToolTip(tip);
}

bool DiagramView::takesClicksAt(QPointF point) const {
    const double x = toLogical(point).x;
    return x >= clickFrom_ && x < clickTo_;
}

bool DiagramView::event(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) drawn_ = {};
    if (event->type() == QEvent::ToolTip && !takesClicksAt(static_cast<QHelpEvent*>(event)->pos())) {
        QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void DiagramView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && takesClicksAt(event->position())) Q_EMIT clicked();
}

void DiagramView::contextMenuEvent(QContextMenuEvent* event) {
    if (diagrams_.empty()) return;
    QMenu menu;
    const QAction* save =
        menu.addAction(themeIcon("document-save-as", QStyle::SP_DialogSaveButton), tr("Save picture..."));
    const QAction* copy = menu.addAction(themeIcon("edit-copy", QStyle::SP_FileIcon), tr("Copy picture"));
    const QAction* chosen = menu.exec(event->globalPos());
    if (chosen == save) savePictureAs();
    if (chosen == copy) copyPicture();
}

void DiagramView::copyPicture() const {
    if (diagrams_.empty()) return;
    QApplication::clipboard()->setImage(
        renderPicture([this](DrawingSurface& surface) { drawSaved(surface); },
                      {kSavedSize.width(), kSavedSize.height() * static_cast<int>(diagrams_.size())}));
}

void DiagramView::savePictureAs() {
    if (diagrams_.empty()) return;
    const auto path = services_.questions.fileToSave(std::string(diagramName(diagrams_.front())) + ".png",
                                                     "PNG (*.png);;SVG (*.svg)", "png");
    if (!path) return;
    const QSize size(kSavedSize.width(), kSavedSize.height() * static_cast<int>(diagrams_.size()));
    const QString trouble = savePicture(
        *path, [this](DrawingSurface& surface) { drawSaved(surface); }, size, title());
    if (!trouble.isEmpty()) services_.messages.show(trouble.toStdString());
}

}  // namespace borvik
