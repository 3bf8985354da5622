#include "platform/qt/qt_printer.h"

#include <QBuffer>
#include <QImage>
#include <QLocale>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <algorithm>

#include "base/whole_file.h"
#include "platform/qt/pdf_additions.h"
#include "platform/qt/saved_bytes.h"
#include "platform/version.h"

#if __has_include(<pwd.h>)
#include <pwd.h>
#include <unistd.h>
#endif

namespace borvik {
namespace {

constexpr int kPagesWithoutOutline = 4;
constexpr double kMarginMm = 5.0;
constexpr double kMillimetresPerInch = 25.4;

/// A text without what XML and the lists of PDF readers can't hold.
QString plain(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QChar(' '));
    return text;
}

/// The document's properties in the form that PDF readers and archives look for.
QByteArray metadata(const DocumentProperties& properties) {
    const QString xmp = QStringLiteral(
        "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "  <rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n"
        "   <dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>\n"
        "   <dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">%4</rdf:li></rdf:Alt></dc:description>\n"
        "   <dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>\n"
        "   <xmp:CreatorTool>%3</xmp:CreatorTool>\n"
        "  </rdf:Description>\n"
        " </rdf:RDF>\n"
        "</x:xmpmeta>\n"
        "<?xpacket end=\"w\"?>\n");
    return xmp
        .arg(plain(properties.title).toHtmlEscaped(), plain(properties.author).toHtmlEscaped(),
             properties.program.toHtmlEscaped(), plain(properties.subject).toHtmlEscaped())
        .toUtf8();
}

}  // namespace

QtPrinter::QtPrinter(QPagedPaintDevice& device)
    : device_(device), painter_(&device), surface_(painter_, QRectF(0.0, 0.0, device.width(), device.height())) {}

void QtPrinter::newPage() {
    if (!device_.newPage()) failed_ = true;
    ++pages_;
}

void QtPrinter::chapter(std::string_view title, double down) {
    chapters_.push_back({QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())), pages_ - 1, down});
}

Extent QtPrinter::printableArea() const {
    return {device_.width() * kMillimetresPerInch / device_.logicalDpiX(),
            device_.height() * kMillimetresPerInch / device_.logicalDpiY()};
}

QString documentAuthor() {
    for (const char* variable : {"USER", "USERNAME", "LOGNAME"})
        if (QString name = qEnvironmentVariable(variable); !name.isEmpty()) return name;
#if __has_include(<pwd.h>)
    if (const passwd* user = ::getpwuid(::geteuid()); user != nullptr) return QString::fromLocal8Bit(user->pw_name);
#endif
    return QStringLiteral("Borvik");
}

DocumentProperties propertiesOf(const std::string& title, const std::string& subject) {
    return {QString::fromStdString(title), documentAuthor(), QString::fromUtf8(kProgramAndVersion),
            QString::fromStdString(subject)};
}

void checkPicture(const std::string& file) {
    if (file.empty()) return;
    const QString name = QString::fromStdString(file);
    const bool isDrawing = name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    if (isDrawing ? !QSvgRenderer(name).isValid() : QImage(name).isNull())
        throw OutputError("the logo " + file + " can't be read as a picture (PNG, JPEG or SVG)");
}

QPageLayout defaultPageLayout() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter};
}

QByteArray renderPdf(const PrintedDocument& document, const QPageLayout& layout, const DocumentProperties& properties) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(layout);
    writer.setTitle(plain(properties.title));
    writer.setCreator(properties.program);
    writer.setDocumentXmpMetadata(metadata(properties));
    PdfAdditions additions{plain(properties.author), plain(properties.subject), {}};
    {
        QtPrinter printer(writer);
        if (!printer.isActive()) return {};
        document(printer);
        if (!printer.end()) return {};
        if (printer.pages() > kPagesWithoutOutline)
            for (PdfChapter chapter : printer.chapters()) {
                const QRectF printed = layout.paintRectPoints();
                chapter.down = printed.top() + chapter.down * printed.height();
                additions.outline.push_back(std::move(chapter));
            }
    }
    return amendedPdf(bytes, additions);
}

void savePdf(const std::string& fileName, const PrintedDocument& document, const QPageLayout& layout,
             const DocumentProperties& properties) {
    const QByteArray bytes = renderPdf(document, layout, properties);
    if (bytes.isEmpty()) throw OutputError("The pages cannot be drawn");
    saveBytes(fileName, bytes);
}

}  // namespace borvik
