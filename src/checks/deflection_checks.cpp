#include "checks/deflection_checks.h"

#include "base/fault.h"
#include "checks/check_texts.h"

namespace borvik {

namespace {

/// @param formula  how row 1 begins
/// @param limit    the deflection may be the span divided by this
/// @param record   UzMaxSpan or UyMaxSpan
RowSet<5> deflectionRows(const char* formula, double length, double limit, const Table<Single>& record, int span) {
    const double deflection = record(span, 1);
    RowSet<5> rows;
    rows(1) = formula + noDecimals(limit) + ")=";
    rows(2) = oneDecimal(deflection) + "/(" + noDecimals(length) + "/" + noDecimals(limit) + ")=";
    setRatio(rows, deflection / (length / limit));
    rows(4) = " <  1.00 ";
    rows(5) = generalText(record(span, 2)) + "/" + generalText(record(span, 3));
    return rows;
}

/// The span whose ratio ranks highest, the earlier one at a tie. Row 5, which no
/// table shows of it, stays that of the first span.
RowSet<5> governing(const Array<RowSet<5>>& perSpan) {
    RowSet<5> rows = perSpan(1);
    for (int span = 2; span <= perSpan.last(); ++span)
        if (ranksAbove(perSpan(span)(3), rows(3))) copyRows(rows, perSpan(span), 1, 4);
    return rows;
}

}  // namespace

void DeflectionChecks(const Project& project, const SlsResults& sls, CheckResults& checks) {
    checks.DefZSpan = checks.DefYSpan = Array<RowSet<5>>(1, project.NofSpans);
    for (int span = 1; span <= project.NofSpans; ++span)
        watched("Deflection", span, [&] {
            const double L = project.Span(span);
            checks.DefZSpan(span) = deflectionRows("IR = dz/(L/", L, project.DefZ, sls.UzMaxSpan, span);
            checks.DefYSpan(span) = deflectionRows("IR = dy/(L/", L, project.DefY, sls.UyMaxSpan, span);
        });
    checks.DefZGov = governing(checks.DefZSpan);
    checks.DefYGov = governing(checks.DefYSpan);
}

}  // namespace borvik
