#include "help/help_page_view.h"

#include <QAbstractTextDocumentLayout>
#include <QDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "help/help_library.h"

namespace borvik {

void HelpPageView::fitPicturesToPage(bool all) {
    const int bar = verticalScrollBar()->isVisible() ? 0 : verticalScrollBar()->sizeHint().width();
    const int width = viewport()->width() - bar - 2 * static_cast<int>(document()->documentMargin());
    if (width < 100 || searchPaths().isEmpty() || (!all && width == fitted_)) return;
    fitted_ = width;
    fitPictures(*document(), searchPaths().constFirst(), width, devicePixelRatioF());
}

void HelpPageView::resizeEvent(QResizeEvent* event) {
    fitPicturesToPage(false);
    FormulaBrowser::resizeEvent(event);
}

QString HelpPageView::smallPictureAt(QPoint point) const {
    const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
    const QString name = document()->documentLayout()->imageAt(point + scrolled);
    if (name.isEmpty() || searchPaths().isEmpty()) return {};
    const QString file = QDir(searchPaths().constFirst()).absoluteFilePath(name);
    return QImageReader(file).size().width() > fitted_ ? file : QString();
}

void HelpPageView::mouseMoveEvent(QMouseEvent* event) {
    FormulaBrowser::mouseMoveEvent(event);
    if (!smallPictureAt(event->pos()).isEmpty()) viewport()->setCursor(Qt::PointingHandCursor);
}

void HelpPageView::mouseReleaseEvent(QMouseEvent* event) {
    FormulaBrowser::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || textCursor().hasSelection()) return;
    if (const QString file = smallPictureAt(event->pos()); !file.isEmpty()) showInFull(file);
}

void HelpPageView::showInFull(const QString& file) {
    QDialog dialog(this);
    dialog.setObjectName("helpPicture");
    dialog.setWindowTitle(QFileInfo(file).completeBaseName());
    auto* picture = new QLabel;
    picture->setPixmap(QPixmap(file));
    auto* scrolled = new QScrollArea;
    scrolled->setWidget(picture);
    scrolled->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scrolled);
    dialog.resize((picture->sizeHint() + QSize(4, 4)).boundedTo(screen()->availableSize() * 0.95));
    dialog.exec();
}

}  // namespace borvik
