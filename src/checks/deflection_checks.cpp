#include "checks/deflection_checks.h"

#include <cmath>

#include "checks/check_texts.h"

namespace borvik {

namespace {

/// @param formula  how row 1 begins
/// @param limit    the deflection may be the span divided by this
/// @param record   UzMaxSpan or UyMaxSpan
RowSet deflectionRows(const char* formula, double length, double limit, const Table<Single>& record, int span,
                      Working working) {
    const double deflection = record(span, 1);
    RowSet rows;
    rows(1) = formula + noDecimals(limit) + ")=";
    rows(2) = oneDecimal(deflection) + "/(" + noDecimals(length) + "/" + noDecimals(limit) + ")=";
    setRatio(rows, deflection / (length / limit));
    working.given("d", deflection, "mm", "largest magnitude of the walk");
    working.given("L", length, "mm");
    working.given("n", limit, "", "limit L/n, EN 1993-6 Tables 7.1, 7.2");
    working.step("IR", "d/(L/n)", rows.Ratio);
    rows(4) = " <  1.00 ";
    rows(5) = generalText(record(span, 2)) + "/" + generalText(record(span, 3));
    return rows;
}

/// The position of the largest deflection of a span.
CraneStand standOf(Effect effect, const Cube<Single>& points, const Table<WalkPosition>& positions, int span) {
    if (positions.rows() < span) return {};
    int point = 1;
    for (int k = 2; k <= kPoints; ++k)
        if (std::abs(points(span, k, 1)) > std::abs(points(span, point, 1))) point = k;
    return {WalkOf::Sls, effect, positions(span, kWholeSpan), span, point};
}

}  // namespace

RowSet verticalDeflectionRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    RowSet rows =
        deflectionRows("IR = dz/(L/", project.Span(span), project.DefZ, basis.sls.UzMaxSpan, span, basis.working);
    rows.Stands[0] = standOf(Effect::Uz, basis.sls.UzMaxPoint, basis.sls.At.Uz, span);
    return rows;
}

RowSet horizontalDeflectionRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    RowSet rows =
        deflectionRows("IR = dy/(L/", project.Span(span), project.DefY, basis.sls.UyMaxSpan, span, basis.working);
    rows.Stands[0] = standOf(Effect::Uy, basis.sls.UyMaxPoint, basis.sls.At.Uy, span);
    return rows;
}

}  // namespace borvik
