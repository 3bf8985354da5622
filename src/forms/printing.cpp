#include "forms/printing.h"

#include <QCheckBox>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>
#include <ctime>

#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_printer.h"
#include "platform/version.h"
#include "results/report.h"
#include "results/spreadsheet.h"

namespace borvik {
namespace {

ReportTime now() {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return reportTime(local);
}

void show(const QString& text) {
    QtMessages().show(text.toStdString());
}

/// True when there is something to print; else the user has been told.
bool isReady(const Session& session, const Services& services) {
    if (canReport(session)) return true;
    services.messages.show(kCalculateBeforePrint);
    return false;
}

/// The file that a report is saved to unless the user chooses another: beside the project.
QString proposedFile(const Session& session, ReportScope scope) {
    const QFileInfo project(QString::fromStdString(session.context.FileName));
    const QString name = QString::fromStdString(reportFileName(session, scope));
    return project.isAbsolute() ? project.absoluteDir().filePath(name) : name;
}

void prepare(QPrinter& printer, const Session& session, ReportScope scope) {
    printer.setPageLayout(defaultPageLayout());
    printer.setDocName(QString::fromStdString(reportTitle(session)));
    printer.setCreator(QString::fromUtf8(kProgramAndVersion));
    // Where the user prints to a file this is the name that stands there.
    const QString file = proposedFile(session, scope);
    if (printer.outputFileName().isEmpty() && !printer.isValid()) printer.setOutputFileName(file);
}

/// Sends the pages that were asked for, as often as was asked for. Each copy begins with page 1.
/// @return empty, or what went wrong
QString send(QPrinter& printer, const Session& session, ReportScope scope, bool withNotes) {
    const bool someOnly = printer.printRange() == QPrinter::PageRange;
    const int first = someOnly ? std::max(1, printer.fromPage()) : 1;
    const int last = someOnly ? printer.toPage() : 0;
    // A printer that makes the copies itself is left to do so.
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    const ReportTime when = now();
    QtPrinter pages(printer);
    if (!pages.isActive()) return QObject::tr("The printer can't be started.");
    for (int copy = 1; copy <= copies; ++copy) {
        if (copy > 1) pages.newPage();
        PageRange range(pages, first, last);
        PrintReport(range, session, scope, when, withNotes);
        if (!range.hasPages()) {
            printer.abort();
            return QObject::tr("The report has no page %1.").arg(first);
        }
    }
    return pages.end() ? QString() : QObject::tr("The printer reports a failure.");
}

void saveTo(const QString& from, QWidget* parent) {
    const auto chosen = QtQuestions().fileToSave("Results.xlsx", "*.xlsx", "xlsx");
    if (!chosen) return;
    const QString file = QString::fromStdString(*chosen);
    QFile::remove(file);  // the chooser has asked
    if (!QFile::copy(from, file)) QMessageBox::warning(parent, {}, QObject::tr("%1 can't be written.").arg(file));
}

/// False when the desktop knows no program for workbooks. A desktop that can't be asked counts as one that has.
bool hasSpreadsheetProgram() {
    const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (query.isEmpty()) return true;
    constexpr int kPatienceMs = 3000;
    QProcess process;
    process.start(query, {QStringLiteral("query"), QStringLiteral("default"),
                          QStringLiteral("application/vnd.openxmlformats-officedocument.spreadsheetml.sheet")});
    if (!process.waitForFinished(kPatienceMs)) return true;
    return !process.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace

bool canPrint() {
    return true;
}

void printReport(Session& session, int scope, bool withNotes, const Services& services, QWidget* parent) {
    if (!isReady(session, services)) return;
    const auto reportScope = static_cast<ReportScope>(scope);
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, session, reportScope);
    QPrintDialog dialog(&printer, parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    QWidget chapters;
    chapters.setWindowTitle(QObject::tr("Report"));  // the name of its tab
    QCheckBox notes(QObject::tr("Notes for the checking engineer"), &chapters);
    notes.setObjectName("chkPrintNotes");
    notes.setChecked(withNotes);
    auto* layout = new QVBoxLayout(&chapters);
    layout->addWidget(&notes);
    layout->addStretch();
    dialog.setOptionTabs({&chapters});
    if (dialog.exec() != QDialog::Accepted) return;
    if (const QString failed = send(printer, session, reportScope, notes.isChecked()); !failed.isEmpty())
        services.messages.show(failed.toStdString());
}

void previewReport(Session& session, int scope, bool withNotes, const Services& services, QWidget* parent) {
    if (!isReady(session, services)) return;
    const auto reportScope = static_cast<ReportScope>(scope);
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, session, reportScope);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowTitle(QObject::tr("Print preview"));
    if (parent != nullptr) dialog.resize(parent->window()->size());
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
        if (const QString failed = send(*target, session, reportScope, withNotes); !failed.isEmpty())
            services.messages.show(failed.toStdString());
    });
    dialog.exec();
}

void saveReportAsPdf(Session& session, int scope, bool withNotes, const Services& services, QWidget*) {
    if (!isReady(session, services)) return;
    const auto reportScope = static_cast<ReportScope>(scope);
    const auto file = services.questions.fileToSave(proposedFile(session, reportScope).toStdString(), "*.pdf", "pdf");
    if (!file) return;
    const QString failed = savePdf(
        *file, [&](Printer& printer) { PrintReport(printer, session, reportScope, now(), withNotes); }, defaultPageLayout(),
        {QString::fromStdString(reportTitle(session)), documentAuthor(), QString::fromUtf8(kProgramAndVersion)});
    if (!failed.isEmpty()) services.messages.show(*file + ": " + failed.toStdString());
}

bool canExportTable() {
    return true;
}

void exportTable(const ResultTable& table, QWidget* parent) {
    // The workbook is the user's as soon as it is open, so its folder stays; the desktop clears such folders in time.
    const QString folder = QDir::temp().filePath(
        QStringLiteral("borvik-") + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz")));
    const QString file = folder + QStringLiteral("/Results.xlsx");
    if (!QDir().mkpath(folder)) {
        show(QObject::tr("The folder %1 can't be made.").arg(folder));
        return;
    }
    if (const std::string failed = SaveSpreadsheet(file.toStdString(), table, "Results"); !failed.empty()) {
        show(QObject::tr("The workbook can't be written: %1").arg(QString::fromStdString(failed)));
        return;
    }
    if (hasSpreadsheetProgram() && QDesktopServices::openUrl(QUrl::fromLocalFile(file))) return;
    QMessageBox box(QMessageBox::Warning, QString(), QObject::tr("No spreadsheet program was found on this computer."),
                    QMessageBox::Save | QMessageBox::Cancel, parent);
    box.setInformativeText(QObject::tr("The table can be saved as a workbook (.xlsx) instead."));
    if (box.exec() == QMessageBox::Save) saveTo(file, parent);
    QDir(folder).removeRecursively();
}

}  // namespace borvik
