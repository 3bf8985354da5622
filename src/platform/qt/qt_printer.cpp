#include "platform/qt/qt_printer.h"

#include <QBuffer>
#include <QLocale>
#include <QPdfWriter>
#include <QRegularExpression>
#include <algorithm>

#include "base/whole_file.h"
#include "platform/qt/saved_bytes.h"

#if __has_include(<pwd.h>)
#include <pwd.h>
#include <unistd.h>
#endif

namespace borvik {
namespace {

constexpr double kMarginMm = 5.0;
constexpr double kMillimetresPerInch = 25.4;

/// A text without what XML and the lists of PDF readers can't hold.
QString plain(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QChar(' '));
    return text;
}

/// Adds the author to the properties of a PDF, which the writer leaves without one: the changed properties are appended
/// with a list of places of their own, as the format provides.
QByteArray withAuthor(const QByteArray& pdf, const QString& author) {
    static const QRegularExpression end(
        QStringLiteral("trailer\\s*<<(.*/Info (\\d+) 0 R.*)>>\\s*startxref\\s*(\\d+)\\s*%%EOF\\s*$"),
        QRegularExpression::DotMatchesEverythingOption);
    const auto trailer = end.match(QString::fromLatin1(pdf.mid(pdf.lastIndexOf("trailer"))));
    if (!trailer.hasMatch()) return pdf;
    const QByteArray head = trailer.captured(2).toLatin1() + " 0 obj\n<<\n";
    const qsizetype from = pdf.indexOf(head), to = pdf.indexOf(">>\nendobj", from);
    if (from < 0 || to < 0) return pdf;
    QByteArray name("FEFF");
    for (const QChar c : author) name += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    QByteArray made = pdf;
    const auto place = [&made] { return QByteArray::number(made.size()); };
    const QByteArray properties = place();
    made += pdf.mid(from, to - from) + "/Author <" + name + ">\n>>\nendobj\n";
    const QByteArray list = place();
    made += "xref\n" + trailer.captured(2).toLatin1() + " 1\n" + properties.rightJustified(10, '0') +
            " 00000 n \ntrailer\n<<" + trailer.captured(1).toLatin1() + "/Prev " + trailer.captured(3).toLatin1() +
            "\n>>\nstartxref\n" + list + "\n%%EOF\n";
    return made;
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
        "   <dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>\n"
        "   <xmp:CreatorTool>%3</xmp:CreatorTool>\n"
        "  </rdf:Description>\n"
        " </rdf:RDF>\n"
        "</x:xmpmeta>\n"
        "<?xpacket end=\"w\"?>\n");
    return xmp
        .arg(plain(properties.title).toHtmlEscaped(), plain(properties.author).toHtmlEscaped(),
             properties.program.toHtmlEscaped())
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
#if __has_include(<pwd.h>)
    if (const passwd* user = ::getpwuid(::geteuid()); user != nullptr) return QString::fromLocal8Bit(user->pw_name);
#endif
    return QStringLiteral("Borvik");
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
    {
        QtPrinter printer(writer);
        if (!printer.isActive()) return {};
        document(printer);
        if (!printer.end()) return {};
    }
    return withAuthor(bytes, plain(properties.author));
}

void savePdf(const std::string& fileName, const PrintedDocument& document, const QPageLayout& layout,
             const DocumentProperties& properties) {
    const QByteArray bytes = renderPdf(document, layout, properties);
    if (bytes.isEmpty()) throw OutputError("The pages cannot be drawn");
    saveBytes(fileName, bytes);
}

}  // namespace borvik
