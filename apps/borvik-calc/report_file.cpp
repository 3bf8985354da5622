#include "report_file.h"

#include <ctime>

#include "output.h"

#ifdef BORVIK_PICTURES
#include <QString>

#include "platform/qt/qt_printer.h"
#include "platform/version.h"
#include "qt_application.h"
#endif

namespace borvik {

#ifdef BORVIK_PICTURES

void saveReport(const Session& session, ReportScope scope, ReportExtras extras, const std::string& file) {
    needApplication();
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    naming(file, [&] {
        savePdf(
            file, [&](Printer& printer) { PrintReport(printer, session, scope, reportTime(local), extras); },
            defaultPageLayout(),
            {QString::fromStdString(reportTitle(session)), documentAuthor(), QString::fromUtf8(kProgramAndVersion)});
    });
}

#else

void saveReport(const Session&, ReportScope, ReportExtras, const std::string&) {
    throw OutputError("this program was built without printing");
}

#endif

}  // namespace borvik
