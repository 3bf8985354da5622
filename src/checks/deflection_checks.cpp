#include "checks/deflection_checks.h"

#include "checks/check_texts.h"

namespace borvik {

namespace {

/// @param formula  how row 1 begins
/// @param limit    the deflection may be the span divided by this
/// @param record   UzMaxSpan or UyMaxSpan
RowSet deflectionRows(const char* formula, double length, double limit, const Table<Single>& record, int span) {
    const double deflection = record(span, 1);
    RowSet rows;
    rows(1) = formula + noDecimals(limit) + ")=";
    rows(2) = oneDecimal(deflection) + "/(" + noDecimals(length) + "/" + noDecimals(limit) + ")=";
    setRatio(rows, deflection / (length / limit));
    rows(4) = " <  1.00 ";
    rows(5) = generalText(record(span, 2)) + "/" + generalText(record(span, 3));
    return rows;
}

}  // namespace

RowSet verticalDeflectionRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    return deflectionRows("IR = dz/(L/", project.Span(span), project.DefZ, basis.sls.UzMaxSpan, span);
}

RowSet horizontalDeflectionRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    return deflectionRows("IR = dy/(L/", project.Span(span), project.DefY, basis.sls.UyMaxSpan, span);
}

}  // namespace borvik
