#include "boxes/info_picture.h"

#include <QVBoxLayout>

namespace borvik {

namespace {
constexpr int kColumns = 90, kLines = 26;
}

InfoPicture::InfoPicture(const char* name, const QString& caption, PicturePainter draw, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QString::fromUtf8(name));
    setWindowTitle(caption);
    auto* layout = new QVBoxLayout(this);
    auto* picture = new Picture(std::move(draw), kColumns, kLines);
    picture->setObjectName(QStringLiteral("pic1"));
    layout->addWidget(picture);
}

void InfoPicture::mousePressEvent(QMouseEvent*) {
    close();
}

void showInfoPicture(const char* name, const QString& caption, PicturePainter draw, QWidget* parent) {
    auto* window = new InfoPicture(name, caption, std::move(draw), parent);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setModal(true);
    window->open();
}

}  // namespace borvik
