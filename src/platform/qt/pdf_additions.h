#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace borvik {

/// A chapter of a document, as a PDF reader lists it beside the pages.
struct PdfChapter {
    QString title;
    int page = 0;       ///< from 0
    double down = 0.0;  ///< its place below the upper edge of the page, points
};

/// What Qt's writer leaves out of a PDF.
struct PdfAdditions {
    QString author, subject;
    std::vector<PdfChapter> outline;  ///< empty: none
};

/// Adds to a PDF as Qt writes it, in the way that the format provides: changed and new objects are appended, with a
/// list of places of their own. A file of another build is given back as it came.
[[nodiscard]] QByteArray amendedPdf(const QByteArray& pdf, const PdfAdditions& additions);

}  // namespace borvik
