#include "checks/governing_rows.h"

namespace borvik {

RowSet highestText(const Array<RowSet>& spans) {
    RowSet highest;
    for (const RowSet& rows : spans)
        if (ranksAbove(rows(3), highest(3))) highest = rows;
    return highest;
}

RowSet governingLocal(const Array<RowSet>& spans) {
    const int last = spans.last();
    const bool lastGoverns = last == 1 || spans(last - 1).Ratio <= spans(last).Ratio;
    RowSet governing;
    copyRows(governing, spans(lastGoverns ? last : last - 1), 1, 4);
    return governing;
}

RowSet governingDeflection(const Array<RowSet>& spans) {
    RowSet governing = spans(1);
    for (int span = 2; span <= spans.last(); ++span)
        if (ranksAbove(spans(span)(3), governing(3))) copyRows(governing, spans(span), 1, 4);
    return governing;
}

RowSet worseShear(const RowSet& max, const RowSet& min) {
    if (max.Ratio > min.Ratio) return max;
    RowSet rows;
    copyRows(rows, min, 1, 6);
    copyRows(rows, max, 7, 8);
    return rows;
}

RowSet worseBending(const RowSet& max, const RowSet& min) {
    RowSet rows;
    copyRows(rows, ranksAbove(max(3), min(3)) ? max : min, 1, 4);
    copyRows(rows, max, 5, 8);
    return rows;
}

RowSet worseBuckling(const RowSet& positive, const RowSet& negative) {
    return positive.Ratio > negative.Ratio ? positive : negative;
}

}  // namespace borvik
