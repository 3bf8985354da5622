#pragma once

#include <QByteArray>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <functional>
#include <string>

#include "platform/printer.h"
#include "platform/qt/pdf_additions.h"
#include "platform/qt/qt_surface.h"

namespace borvik {

/// Pages of a PDF file, of a printer or of a print preview.
class QtPrinter : public Printer {
public:
    /// @param device  lives longer than this; takes its page size and margins from before
    explicit QtPrinter(QPagedPaintDevice& device);

    /// False when the printer could not be started.
    [[nodiscard]] bool isActive() const { return painter_.isActive(); }
    /// Sends the last page. @return false when the device reports a failure
    bool end() { return painter_.end() && !failed_; }

    [[nodiscard]] DrawingSurface& page() override { return surface_; }
    void newPage() override;
    [[nodiscard]] Extent printableArea() const override;
    void chapter(std::string_view title, double down) override;
    /// The chapters so far: pages from 0, places as parts of the printable height.
    [[nodiscard]] const std::vector<PdfChapter>& chapters() const { return chapters_; }
    [[nodiscard]] int pages() const { return pages_; }

private:
    QPagedPaintDevice& device_;
    QPainter painter_;
    QtSurface surface_;
    bool failed_ = false;
    int pages_ = 1;
    std::vector<PdfChapter> chapters_;
};

/// Prints a whole document.
using PrintedDocument = std::function<void(Printer&)>;

/// What a PDF reader shows about a document.
struct DocumentProperties {
    QString title;
    QString author;
    QString program;  ///< name and version
    QString subject;  ///< what the document is about
};

/// Those of a document of this program, by its user. @param title, subject  UTF-8
[[nodiscard]] DocumentProperties propertiesOf(const std::string& title, const std::string& subject);

/// @throws OutputError  where a file is named and is no picture that can be drawn
void checkPicture(const std::string& file);

/// The user's name as the system has it; the program's where there is none.
[[nodiscard]] QString documentAuthor();

/// Paper of a new document: A4, or Letter where that is the custom; portrait, with the narrow margins of a printer.
[[nodiscard]] QPageLayout defaultPageLayout();

/// A document as PDF, texts as texts with their fonts embedded, with an outline of its chapters where it has more than
/// four pages; empty where the pages can't be drawn.
[[nodiscard]] QByteArray renderPdf(const PrintedDocument& document, const QPageLayout& layout,
                                   const DocumentProperties& properties);

/// Saves a document as PDF. The old file stays until the new one is whole.
/// @throws OutputError  the file is then as it was
void savePdf(const std::string& fileName, const PrintedDocument& document, const QPageLayout& layout,
             const DocumentProperties& properties);

}  // namespace borvik
