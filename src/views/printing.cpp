#include "views/printing.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>
#include <ctime>

#include "base/whole_file.h"
#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/saved_bytes.h"
#include "platform/version.h"
#include "report/report.h"
#include "results/csv.h"
#include "results/spreadsheet.h"
#include "views/office_fields.h"

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

/// True when there is something to print; else a message has said so.
bool isReady(const Session& session, const Services& services) {
    if (canReport(session)) return true;
    services.messages.show(kCalculateBeforePrint);
    return false;
}

/// The file that a report is saved to unless the user chooses another: beside the project.
QString proposedFile(const Session& session, ReportScope scope) {
    const QFileInfo project(QString::fromStdString(session.FileName));
    const QString name = QString::fromStdString(reportFileName(session, scope));
    return project.isAbsolute() ? project.absoluteDir().filePath(name) : name;
}

void prepare(QPrinter& printer, const Session& session, ReportScope scope) {
    printer.setPageLayout(defaultPageLayout());
    printer.setCreator(QString::fromUtf8(kProgramAndVersion));
    // Where the user prints to a file this is the name that stands there; beside a printer the dialog makes one of the
    // document's name, which must be fit for it.
    printer.setDocName(QString::fromStdString(reportFileName(session, scope)));
    if (printer.outputFormat() == QPrinter::PdfFormat) printer.setOutputFileName(proposedFile(session, scope));
}

/// Writes a file; a fault begins with its name.
template <class Write>
void naming(const std::string& file, Write write) {
    try {
        write();
    } catch (const OutputError& error) {
        throw OutputError(file + ": " + error.what());
    }
}

/// Sends the pages that were asked for, as often as was asked for. Each copy begins with page 1. What goes to a file is
/// made in memory first and then saved with the same care as every other output.
/// @throws OutputError  with the name of the file, where there is one
void send(QPrinter& printer, const Session& session, ReportScope scope, const ReportExtras& extras) {
    checkPicture(extras.logo);
    const bool someOnly = printer.printRange() == QPrinter::PageRange;
    const int first = someOnly ? std::max(1, printer.fromPage()) : 1;
    const int last = someOnly ? printer.toPage() : 0;
    // A printer that makes the copies itself is left to do so.
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    const ReportTime when = now();
    bool hasPages = false;
    const auto draw = [&](Printer& pages) {
        for (int copy = 1; copy <= copies; ++copy) {
            if (copy > 1) pages.newPage();
            PageRange range(pages, first, last);
            PrintReport(range, session, scope, when, extras);
            hasPages = range.hasPages();
            if (!hasPages) return;
        }
    };
    const OutputError noPage(QObject::tr("The report has no page %1.").arg(first).toStdString());
    const QString file = printer.outputFileName();
    // A preview draws its pages on another engine, whatever the printer is.
    if (!file.isEmpty() && printer.paintEngine()->type() == QPaintEngine::Pdf) {
        const QByteArray bytes =
            renderPdf(draw, printer.pageLayout(), propertiesOf(reportTitle(session), kReportSubject));
        if (!hasPages) throw noPage;
        naming(file.toStdString(), [&] { saveBytes(file.toStdString(), bytes); });
        return;
    }
    printer.setDocName(QString::fromStdString(reportTitle(session)));
    QtPrinter pages(printer);
    if (!pages.isActive()) throw OutputError(QObject::tr("The printer can't be started.").toStdString());
    draw(pages);
    if (!hasPages) {
        printer.abort();
        throw noPage;
    }
    if (!pages.end()) throw OutputError(QObject::tr("The printer reports a failure.").toStdString());
}

void saveTo(const QString& from, QWidget* parent) {
    const auto chosen = QtQuestions().fileToSave("Results.xlsx", "*.xlsx", "xlsx");
    if (!chosen) return;
    QFile made(from);
    try {
        if (!made.open(QIODevice::ReadOnly)) throw OutputError(made.errorString().toStdString());
        saveBytes(*chosen, made.readAll());
    } catch (const OutputError& error) {
        QMessageBox::warning(parent, {},
                             QObject::tr("%1 can't be written: %2")
                                 .arg(QString::fromStdString(*chosen), QString::fromStdString(error.what())));
    }
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

std::string printReport(Session& session, int scope, ReportExtras& kept, const Services& services, QWidget* parent) {
    if (!isReady(session, services)) return {};
    ReportExtras extras = kept;
    const auto reportScope = static_cast<ReportScope>(scope);
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, session, reportScope);
    QPrintDialog dialog(&printer, parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintShowPageSize);
    // Copies come one after the other, each from its first page; the dialog has no option to hide this one.
    if (auto* reverse = dialog.findChild<QWidget*>("reverse")) reverse->hide();
    QWidget chapters;
    chapters.setWindowTitle(QObject::tr("Report"));  // the name of its tab
    auto* layout = new QVBoxLayout(&chapters);
    for (const ExtraChapter& chapter : extraChapters()) {
        QString title = QString::fromLatin1(chapter.title);
        auto* box = new QCheckBox(title.replace(0, 1, title[0].toUpper()));
        box->setObjectName(QString("chkPrint%1").arg(chapter.name));
        box->setChecked(extras.*chapter.wanted);
        QObject::connect(box, &QCheckBox::toggled, &chapters,
                         [&extras, wanted = chapter.wanted](bool on) { extras.*wanted = on; });
        layout->addWidget(box);
    }
    layout->addStretch();
    OfficeFields office(extras, services);
    dialog.setOptionTabs({&chapters, &office});
    if (dialog.exec() != QDialog::Accepted) return {};
    // First page, texts and logo are for the next report too, the chapters as the menu has them.
    kept.firstPage = extras.firstPage;
    kept.office = extras.office;
    kept.logo = extras.logo;
    saveOffice(services.settings, kept);
    try {
        send(printer, session, reportScope, extras);
    } catch (const OutputError& error) {
        services.messages.show(error.what());
        return {};
    }
    return printer.outputFileName().toStdString();
}

std::string previewReport(Session& session, int scope, ReportExtras& extras, const Services& services,
                          QWidget* parent) {
    if (!isReady(session, services)) return {};
    const auto reportScope = static_cast<ReportScope>(scope);
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, session, reportScope);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowTitle(QObject::tr("Print preview"));
    if (parent != nullptr) dialog.resize(parent->window()->size());
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* target) {
        try {
            send(*target, session, reportScope, extras);
        } catch (const OutputError& error) {
            services.messages.show(error.what());
        }
    });
    dialog.exec();
    return {};
}

std::string saveReportAsPdf(Session& session, int scope, ReportExtras& extras, const Services& services, QWidget*) {
    if (!isReady(session, services)) return {};
    const auto reportScope = static_cast<ReportScope>(scope);
    const auto file = services.questions.fileToSave(proposedFile(session, reportScope).toStdString(), "*.pdf", "pdf");
    if (!file) return {};
    try {
        checkPicture(extras.logo);
        naming(*file, [&] {
            savePdf(
                *file, [&](Printer& printer) { PrintReport(printer, session, reportScope, now(), extras); },
                defaultPageLayout(), propertiesOf(reportTitle(session), kReportSubject));
        });
    } catch (const OutputError& error) {
        services.messages.show(error.what());
        return {};
    }
    return *file;
}

void exportTable(const ResultTable& table, QWidget* parent) {
    // Nobody else can have made this folder, or read what is in it. The workbook is the user's as soon as it is open,
    // so the folder then stays; the desktop clears such folders in time.
    QTemporaryDir folder(QDir::temp().filePath("borvik-XXXXXX"));
    if (!folder.isValid()) {
        show(QObject::tr("The folder %1 can't be made.").arg(folder.path()));
        return;
    }
    const QString file = folder.filePath("Results.xlsx");
    try {
        WorkbookHead head;
        head.date = QDate::currentDate().toString(Qt::ISODate).toStdString();
        head.program = kProgramAndVersion;
        saveSpreadsheet(file.toStdString(), table, "Results", head);
    } catch (const OutputError& error) {
        show(QObject::tr("The workbook can't be written: %1").arg(QString::fromStdString(error.what())));
        return;
    }
    if (hasSpreadsheetProgram() && QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
        folder.setAutoRemove(false);
        return;
    }
    QMessageBox box(QMessageBox::Warning, QString(), QObject::tr("No spreadsheet program was found on this computer."),
                    QMessageBox::Save | QMessageBox::Cancel, parent);
    box.setInformativeText(QObject::tr("The table can be saved as a workbook (.xlsx) instead."));
    if (box.exec() == QMessageBox::Save) saveTo(file, parent);
}

void saveTableAsCsv(const ResultTable& table, QWidget* parent) {
    const auto file = QtQuestions().fileToSave("Results.csv", "*.csv", "csv");
    if (!file) return;
    const DecimalSign sign = QLocale().decimalPoint() == QLatin1String(",") ? DecimalSign::Comma : DecimalSign::Point;
    try {
        saveBytes(*file, QByteArray::fromStdString(csvText(table, sign)));
    } catch (const OutputError& error) {
        QMessageBox::warning(parent, {},
                             QObject::tr("%1 can't be written: %2")
                                 .arg(QString::fromStdString(*file), QString::fromStdString(error.what())));
    }
}

}  // namespace borvik
