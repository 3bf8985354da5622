#include "platform/qt/qt_printer.h"

#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>

#include "platform/qt/saved_bytes.h"

namespace borvik {
namespace {

constexpr double kMarginMm = 5.0;
constexpr double kMillimetresPerInch = 25.4;

/// The document's properties in the form that PDF readers and archives look for.
QByteArray metadata(const DocumentProperties& properties) {
    const QString xmp = QStringLiteral(
        "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
        " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "  <rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
        " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\">\n"
        "   <dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>\n"
        "   <dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>\n"
        "   <xmp:CreatorTool>%3</xmp:CreatorTool>\n"
        "  </rdf:Description>\n"
        " </rdf:RDF>\n"
        "</x:xmpmeta>\n"
        "<?xpacket end=\"w\"?>\n");
    return xmp
        .arg(properties.title.toHtmlEscaped(), properties.author.toHtmlEscaped(), properties.program.toHtmlEscaped())
        .toUtf8();
}

}  // namespace

QtPrinter::QtPrinter(QPagedPaintDevice& device)
    : device_(device), painter_(&device), surface_(painter_, QRectF(0.0, 0.0, device.width(), device.height())) {}

void QtPrinter::newPage() {
    if (!device_.newPage()) failed_ = true;
}

Extent QtPrinter::printableArea() const {
    return {device_.width() * kMillimetresPerInch / device_.logicalDpiX(),
            device_.height() * kMillimetresPerInch / device_.logicalDpiY()};
}

QString documentAuthor() {
    for (const char* variable : {"USER", "USERNAME", "LOGNAME"})
        if (QString name = qEnvironmentVariable(variable); !name.isEmpty()) return name;
    return QStringLiteral("Borvik");
}

QPageLayout defaultPageLayout() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm), QPageLayout::Millimeter};
}

QString savePdf(const std::string& fileName, const PrintedDocument& document, const QPageLayout& layout,
                const DocumentProperties& properties) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageLayout(layout);
    writer.setTitle(properties.title);
    writer.setCreator(properties.program);
    writer.setDocumentXmpMetadata(metadata(properties));
    {
        QtPrinter printer(writer);
        if (!printer.isActive()) return QStringLiteral("The pages cannot be drawn");
        document(printer);
        if (!printer.end()) return QStringLiteral("The pages cannot be drawn");
    }
    return saveBytes(fileName, bytes);
}

}  // namespace borvik
