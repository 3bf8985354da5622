#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextDocument>
#include <iostream>

#include "help/help_library.h"

/// Makes the files of the package that are drawn: the icons in their fixed sizes and the theory manual as PDF.
/// Usage: borvik-package-files FOLDER

namespace {

using namespace borvik;

constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};

bool drawIcon(const QString& name, const QString& kind, const QDir& icons) {
    QSvgRenderer drawing(QStringLiteral(BORVIK_SOURCE_DIR "/packaging/icons/") + name + ".svg");
    bool all = drawing.isValid();
    for (const int size : kIconSizes) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter);
        painter.end();
        const QString folder = QStringLiteral("hicolor/%1x%1/%2").arg(size).arg(kind);
        all = icons.mkpath(folder) && image.save(icons.filePath(folder + '/' + name + ".png")) && all;
    }
    return all;
}

bool writeTheory(const QString& path) {
    QTextDocument document;
    if (!HelpLibrary(BORVIK_SOURCE_DIR "/docs/help").show("../theory.md", document)) return false;
    QPdfWriter writer(path);
    writer.setTitle("Borvik: theory manual");
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());  // the document keeps 20 mm itself
    QFont font("DejaVu Sans");
    font.setPointSizeF(9.0);
    document.setDefaultFont(font);
    document.print(&writer);
    return QFile(path).size() > 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: borvik-package-files FOLDER\n";
        return 2;
    }
    const QDir folder(QGuiApplication::arguments().at(1));
    const QDir icons(folder.filePath("icons"));
    const bool done = folder.mkpath("icons") && drawIcon("borvik", "apps", icons) &&
                      drawIcon("application-x-borvik", "mimetypes", icons) &&
                      writeTheory(folder.filePath("theory.pdf"));
    if (!done) std::cerr << "can't write all files to " << folder.path().toStdString() << '\n';
    return done ? 0 : 5;
}
