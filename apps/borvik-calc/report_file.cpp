#include "report_file.h"

#include <ctime>

#include "output.h"

#ifdef BORVIK_PICTURES
#include "platform/qt/qt_printer.h"
#include "qt_application.h"
#endif

namespace borvik {

#ifdef BORVIK_PICTURES

void saveReport(const Session& session, const ReportWish& wish, const std::string& file) {
    needApplication();
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    QPageLayout layout = defaultPageLayout();
    if (!wish.paper.empty()) layout.setPageSize(QPageSize(wish.paper == "letter" ? QPageSize::Letter : QPageSize::A4));
    checkPicture(wish.extras.logo);
    naming(file, [&] {
        savePdf(
            file, [&](Printer& printer) { PrintReport(printer, session, wish.scope, reportTime(local), wish.extras); },
            layout, propertiesOf(reportTitle(session), kReportSubject));
    });
}

#else

void saveReport(const Session&, const ReportWish&, const std::string&) {
    throw OutputError("this program was built without printing");
}

#endif

}  // namespace borvik
