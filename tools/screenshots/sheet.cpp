#include "sheet.h"

#include <QImage>
#include <QPainter>
#include <QTreeWidgetItemIterator>
#include <iostream>
#include <vector>

#include "camera.h"
#include "platform/messages.h"
#include "window/main_window.h"

namespace borvik {
namespace {

constexpr int kGap = 10;
constexpr int kSheetWidth = 2200;

/// The sketch above each diagram of the result tree.
std::vector<QImage> picturesOf(const std::string& project, QSize size) {
    MessageList messages;
    NoQuestions questions;
    SettingsInMemory settings;
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    MainWindow window(session, {messages, questions, settings});
    window.resize(size);
    window.show();
    QApplication::processEvents();
    if (!window.openProject(project)) std::cerr << messages.texts.back() << '\n';
    window.findChild<QPushButton*>("cmdCalc")->click();
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other->objectName() == "frmProgress" && other->isVisible())
            other->findChild<QPushButton*>("cmdOK")->click();
    QApplication::processEvents();

    std::vector<QImage> pictures = {window.grab().toImage(), window.findChild<QWidget*>("picBalk")->grab().toImage()};
    auto* tree = window.findChild<ResultTreeView*>("TreeView1");
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        bool ofDiagram = false;
        for (const QTreeWidgetItem* above = *item; above != nullptr; above = above->parent())
            ofDiagram = ofDiagram || above->text(0) == "Diagram";
        if (!ofDiagram || (*item)->childCount() > 0) continue;
        Q_EMIT tree->itemClicked(*item, 0);
        QApplication::processEvents();
        pictures.push_back(window.findChild<QWidget*>("picRes")->grab().toImage());
    }
    return pictures;
}

/// Pictures in rows from left to right, each at most `width` wide.
QImage sheetOf(const std::vector<QImage>& pictures, int width) {
    std::vector<std::pair<QPoint, QImage>> placed;
    QPoint next(kGap, kGap);
    int deepest = 0;
    for (const QImage& picture : pictures) {
        const QImage small = picture.width() > width ? picture.scaledToWidth(width, Qt::SmoothTransformation) : picture;
        if (next.x() > kGap && next.x() + small.width() + kGap > kSheetWidth) next = {kGap, deepest + kGap};
        placed.emplace_back(next, small);
        next.rx() += small.width() + kGap;
        deepest = std::max(deepest, next.y() + small.height());
    }
    QImage sheet(kSheetWidth, deepest + kGap, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    for (const auto& [place, picture] : placed) painter.drawImage(place, picture);
    return sheet;
}

}  // namespace

int takeSheet(const QStringList& arguments) {
    if (arguments.size() < 2) {
        std::cerr << "usage: borvik-screenshots --sheet OUT.png PROJECT.brvk [PAGE.png...]\n";
        return 2;
    }
    std::vector<QImage> pictures;
    for (const QSize size : {QSize(1024, 741), QSize(2560, 1440)})
        for (QImage& picture : picturesOf(arguments.at(1).toStdString(), size)) pictures.push_back(std::move(picture));
    for (const QString& page : arguments.mid(2)) pictures.emplace_back(page);
    if (sheetOf(pictures, 720).save(arguments.front())) return 0;
    std::cerr << "can't write " << arguments.front().toStdString() << '\n';
    return 5;
}

}  // namespace borvik
