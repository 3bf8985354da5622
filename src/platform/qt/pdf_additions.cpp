#include "platform/qt/pdf_additions.h"

#include <QRegularExpression>
#include <map>

namespace borvik {
namespace {

/// A text of a PDF: UTF-16, in hexadecimal digits.
QByteArray pdfText(const QString& text) {
    QByteArray digits("FEFF");
    for (const QChar c : text) digits += QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    return "<" + digits + ">";
}

QByteArray reference(int object) {
    return QByteArray::number(object) + " 0 R";
}

/// The closing list of a file: its entries, the number of objects, and where its list of places is.
struct Trailer {
    QByteArray entries, places;
    int objects = 0, info = 0, root = 0;

    [[nodiscard]] bool isKnown() const { return objects > 0 && info > 0 && root > 0; }
};

Trailer trailerOf(const QByteArray& pdf) {
    static const QRegularExpression end(QStringLiteral("trailer\\s*<<(.*)>>\\s*startxref\\s*(\\d+)\\s*%%EOF\\s*$"),
                                        QRegularExpression::DotMatchesEverythingOption);
    const auto found = end.match(QString::fromLatin1(pdf.mid(pdf.lastIndexOf("trailer"))));
    if (!found.hasMatch()) return {};
    const QString entries = found.captured(1);
    const auto number = [&entries](const char* key) {
        const QRegularExpression entry(QStringLiteral("/%1 (\\d+)").arg(key));
        return entry.match(entries).captured(1).toInt();
    };
    return {entries.toLatin1(), found.captured(2).toLatin1(), number("Size"), number("Info"), number("Root")};
}

/// What stands between the outer "<<" and ">>" of an object; empty where it isn't as expected.
QByteArray entriesOf(const QByteArray& pdf, int object) {
    const QByteArray head = "\n" + QByteArray::number(object) + " 0 obj\n<<\n";
    const qsizetype at = pdf.indexOf(head);
    if (at < 0) return {};
    const qsizetype from = at + head.size(), to = pdf.indexOf(">>\nendobj", from);
    return to < 0 ? QByteArray() : pdf.mid(from, to - from);
}

/// Numbers of the objects of the pages, in their order.
std::vector<int> pageObjects(const QByteArray& pdf) {
    static const QRegularExpression kids(QStringLiteral("/Type /Pages\\s*/Kids\\s*\\[([^\\]]*)\\]"));
    const auto found = kids.match(QString::fromLatin1(pdf.mid(pdf.lastIndexOf("/Type /Pages"))));
    std::vector<int> objects;
    for (const QString& each : found.captured(1).split(QStringLiteral(" 0 R"), Qt::SkipEmptyParts))
        if (const int object = each.trimmed().toInt(); object > 0) objects.push_back(object);
    return objects;
}

double heightOf(const QByteArray& pdf, int page) {
    static const QRegularExpression box(QStringLiteral("/MediaBox \\[0 0 [\\d.]+ ([\\d.]+)\\]"));
    return box.match(QString::fromLatin1(entriesOf(pdf, page))).captured(1).toDouble();
}

using Objects = std::map<int, QByteArray>;  ///< entries by number of the object

/// The outline as a list of one level, opened beside the pages.
void addOutline(Objects& objects, const QByteArray& pdf, const Trailer& trailer,
                const std::vector<PdfChapter>& chapters) {
    const std::vector<int> pages = pageObjects(pdf);
    const QByteArray catalog = entriesOf(pdf, trailer.root);
    const auto count = static_cast<int>(chapters.size());
    if (chapters.empty() || catalog.isEmpty()) return;
    for (const PdfChapter& chapter : chapters)
        if (chapter.page >= static_cast<int>(pages.size())) return;
    const int outline = trailer.objects, first = outline + 1;
    objects[trailer.root] = catalog + "/Outlines " + reference(outline) + "\n/PageMode /UseOutlines\n";
    objects[outline] = "/Type /Outlines\n/First " + reference(first) + "\n/Last " + reference(outline + count) +
                       "\n/Count " + QByteArray::number(count) + "\n";
    for (int i = 0; i < count; ++i) {
        const PdfChapter& chapter = chapters[static_cast<std::size_t>(i)];
        const int page = pages[static_cast<std::size_t>(chapter.page)];
        const double up = heightOf(pdf, page) - chapter.down;
        QByteArray entries = "/Title " + pdfText(chapter.title) + "\n/Parent " + reference(outline) + "\n/Dest [" +
                             reference(page) + " /XYZ null " + QByteArray::number(up, 'f', 1) + " null]\n";
        if (i > 0) entries += "/Prev " + reference(first + i - 1) + "\n";
        if (i + 1 < count) entries += "/Next " + reference(first + i + 1) + "\n";
        objects[first + i] = entries;
    }
}

}  // namespace

QByteArray amendedPdf(const QByteArray& pdf, const PdfAdditions& additions) {
    const Trailer trailer = trailerOf(pdf);
    if (!trailer.isKnown()) return pdf;
    const QByteArray info = entriesOf(pdf, trailer.info);
    if (info.isEmpty()) return pdf;
    Objects objects;
    objects[trailer.info] = info + "/Author " + pdfText(additions.author) + "\n" +
                            (additions.subject.isEmpty() ? "" : "/Subject " + pdfText(additions.subject) + "\n");
    addOutline(objects, pdf, trailer, additions.outline);

    QByteArray made = pdf, places;
    for (const auto& [number, entries] : objects) {
        places += QByteArray::number(number) + " 1\n" + QByteArray::number(made.size()).rightJustified(10, '0') +
                  " 00000 n \n";
        made += QByteArray::number(number) + " 0 obj\n<<\n" + entries + ">>\nendobj\n";
    }
    const QByteArray list = QByteArray::number(made.size());
    const int size = std::max(trailer.objects, objects.rbegin()->first + 1);
    QByteArray entries = trailer.entries;
    entries.replace("/Size " + QByteArray::number(trailer.objects), "/Size " + QByteArray::number(size));
    return made + "xref\n" + places + "trailer\n<<" + entries + "/Prev " + trailer.places + "\n>>\nstartxref\n" + list +
           "\n%%EOF\n";
}

}  // namespace borvik
