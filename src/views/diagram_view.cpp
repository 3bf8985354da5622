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
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "base/whole_file.h"
#include "diagrams/diagram_reading.h"
#include "platform/qt/picture.h"
#include "platform/qt/qt_surface.h"
#include "views/icons.h"

namespace borvik {

namespace {
constexpr QSize kSavedSize(2000, 500);  // of one diagram
constexpr double kZoomStep = 1.25;
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
    drive_.reset();
    outOfDate_ = false;
    contentChanged();
}

void DiagramView::showDrive(std::shared_ptr<const CraneDrive> drive) {
    if ((drive != nullptr) != (drive_ != nullptr)) drawn_ = {};
    drive_ = std::move(drive);
    update();
}

void DiagramView::setOutOfDate(bool outOfDate) {
    if (outOfDate == outOfDate_) return;
    outOfDate_ = outOfDate && !diagrams_.empty();
    drawn_ = {};
    update();
}

void DiagramView::contentChanged() {
    if (diagrams_.empty() || part_.to > beamLength()) part_ = {};
    drawn_ = {};
    stopReading();
    setFocusPolicy(diagrams_.empty() ? Qt::NoFocus : Qt::StrongFocus);
    setAccessibleName(title());
    updateGeometry();
    update();
}

double DiagramView::beamLength() const {
    double length = 0.0;
    for (int span = 1; span <= kMaxSpans && project_->Span(span) > 0; ++span) length += project_->Span(span);
    return length;
}

void DiagramView::showPart(BeamPart part) {
    if (diagrams_.empty() || (part.from == part_.from && part.to == part_.to)) return;
    const double length = beamLength();
    part_ = part.isWhole() || part.to > length ? BeamPart{} : part;
    drawn_ = {};
    stopReading();
    update();
    Q_EMIT partChanged(part_);
}

void DiagramView::zoom(double factor, double about) {
    constexpr double kShortest = 200.0;  // mm
    if (diagrams_.empty()) return;
    const double length = beamLength();
    const double shown = part_.isWhole() ? length : part_.to - part_.from;
    const double wanted = std::max(shown / factor, std::min(kShortest, length));
    if (wanted >= length) return showWholeBeam();
    const double share = std::clamp((about - kBeamStart) / kBeamLength, 0.0, 1.0);
    const double from = std::clamp(part_.from + share * (shown - wanted), 0.0, length - wanted);
    showPart({from, from + wanted});
}

void DiagramView::zoom(double factor) {
    zoom(factor, reading_.isEmpty() ? kBeamStart + kBeamLength / 2.0 : readAt_.x);
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

void DiagramView::draw(DrawingSurface& surface, std::span<const Diagram> diagrams, DiagramLayer layer) const {
    const Results* results = calculation_ ? &calculation_->results : nullptr;
    drawPicture(surface, diagrams, {*project_, results, drive_.get()}, part_, layer);
}

/// What a saved picture shows: above diagrams with driven cranes also where these stand.
std::vector<Diagram> DiagramView::savedDiagrams() const {
    std::vector<Diagram> diagrams = diagrams_;
    if (drive_ && diagrams.front() != Diagram::Sketch) diagrams.insert(diagrams.begin(), Diagram::Sketch);
    return diagrams;
}

QSize DiagramView::savedSize() const {
    return {kSavedSize.width(), kSavedSize.height() * static_cast<int>(savedDiagrams().size())};
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
    draw(surface, savedDiagrams(), DiagramLayer::All);
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
            draw(surface, diagrams_, DiagramLayer::Still);
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
    if (drive_ && !outOfDate_) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        QtSurface surface(painter, QRectF(rect()), textScale(), ground);
        draw(surface, diagrams_, DiagramLayer::Moving);
        painter.restore();
    }
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
    const auto found = readPicture(diagrams_, {*project_, &calculation_->results}, place, reach, part_);
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
    if (pressedAt_ && !part_.isWhole()) {  // the beam follows the mouse
        const double shown = part_.to - part_.from;
        const double moved = (toLogical(*pressedAt_).x - toLogical(event->position()).x) / kBeamLength * shown;
        dragged_ = dragged_ || (event->position() - *pressedAt_).manhattanLength() >= QApplication::startDragDistance();
        if (!dragged_) return;
        pressedAt_ = event->position();
        const double from = std::clamp(part_.from + moved, 0.0, beamLength() - shown);
        return showPart({from, from + shown});
    }
    if (takesClicksAt(event->position()) || extremeAt(event->position())[0].isKnown()) {
        setCursor(Qt::PointingHandCursor);
    } else {
        unsetCursor();
    }
    if (calculation_) readUnder(event->position());
}

/// Reads the calculated place next to a point of the widget: a support, or one of the 21 points of a span.
void DiagramView::readUnder(QPointF point) {
    constexpr double kBesideBeam = 3.0;  // pixels beside the beam that still read its end
    Place place = toLogical(point);
    const double reach = toLogical({kBesideBeam, 0.0}).x - toLogical({0.0, 0.0}).x;
    const double from = kBeamStart - reach, to = kBeamStart + kBeamLength + reach;
    if (place.x >= from && place.x <= to) {
        double away = to - from;
        for (const double stop : readingStops(*project_, false, part_)) {
            if (stop < from || stop > to || std::abs(stop - toLogical(point).x) >= away) continue;
            away = std::abs(stop - toLogical(point).x);
            place.x = stop;
        }
    }
    read(place, 0.0);
}

/// Moves the reading by a key.
/// @return false for a key that moves nothing
bool DiagramView::walk(int key, bool bySupports) {
    const std::vector<double> stops = readingStops(*project_, bySupports, part_);
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
    const auto leftmost = std::lower_bound(stops.begin(), stops.end() - 1, kBeamStart - kSame);
    Place to = first ? Place{*leftmost, middles.front()} : readAt_;
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
    if (const double beyond = std::max(to.x - kBeamStart - kBeamLength, std::min(to.x - kBeamStart, 0.0));
        !part_.isWhole() && std::abs(beyond) > kSame) {  // the part that is shown goes along
        const double moved = beyond / kBeamLength * (part_.to - part_.from);
        const double from = std::clamp(part_.from + moved, 0.0, beamLength() - (part_.to - part_.from));
        showPart({from, from + part_.to - part_.from});
        to.x -= beyond;
    }
    read(to, 0.0);
    const Place point = pictureFrame(diagrams_).pointOf(to, width(), height());
    Q_EMIT readingMoved(QPointF(point.x, point.y).toPoint());
    return true;
}

/// Plus and minus zoom, Home fits the whole beam again.
/// @return false for a key that has no such meaning now
bool DiagramView::zoomByKey(int key) {
    if (key == Qt::Key_Plus || key == Qt::Key_Equal)
        zoom(kZoomStep);
    else if (key == Qt::Key_Minus)
        zoom(1.0 / kZoomStep);
    else if (key == Qt::Key_Home && !part_.isWhole())
        showWholeBeam();
    else
        return false;
    return true;
}

void DiagramView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && clickTo_ > clickFrom_) {
        Q_EMIT clicked();
    } else if (zoomByKey(event->key())) {
        return;
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

/// Where the cranes stand for the extreme under the pointer.
std::array<CraneStand, 2> DiagramView::extremeAt(QPointF point) const {
    if (!calculation_ || outOfDate_) return {};
    return standsAt(diagrams_, {*project_, &calculation_->results}, toLogical(point), part_);
}

void DiagramView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressedAt_ = event->position();
    dragged_ = false;
}

void DiagramView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressedAt_) return;
    pressedAt_.reset();
    if (dragged_) return;
    if (takesClicksAt(event->position())) Q_EMIT clicked();
    if (const auto stands = extremeAt(event->position()); stands[0].isKnown()) Q_EMIT extremeChosen(stands);
}

void DiagramView::mouseDoubleClickEvent(QMouseEvent*) {
    showWholeBeam();
}

void DiagramView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QWidget::wheelEvent(event);
    constexpr double kNotch = 120.0;  // of a wheel, in eighths of a degree
    zoom(std::pow(kZoomStep, event->angleDelta().y() / kNotch), toLogical(event->position()).x);
    event->accept();
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
        renderPicture([this](DrawingSurface& surface) { drawSaved(surface); }, savedSize()));
}

void DiagramView::savePictureAs() {
    if (diagrams_.empty()) return;
    const auto path = services_.questions.fileToSave(std::string(diagramName(diagrams_.front())) + ".png",
                                                     "PNG (*.png);;SVG (*.svg)", "png");
    if (!path) return;
    try {
        savePicture(
            *path, [this](DrawingSurface& surface) { drawSaved(surface); }, savedSize(), title());
    } catch (const OutputError& error) {
        services_.messages.show(error.what());
    }
}

}  // namespace borvik
