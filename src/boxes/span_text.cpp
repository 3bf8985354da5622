#include "boxes/span_text.h"

#include <QCoreApplication>
#include <QStringList>

#include "base/number_text.h"
#include "boxes/form_binder.h"
#include "boxes/section_combo.h"

namespace borvik {

namespace {

QString said(const char* text) {
    return QCoreApplication::translate("SpanText", text);
}

/// @param fault  set to what is wrong with the line
SpanEntry readLine(const Project& project, const QString& line, QString& fault) {
    const QStringList cells = line.split(QLatin1Char('\t'));
    const QString first = cells.front().trimmed(), second = cells.value(1).trimmed();
    SpanEntry span;
    const int alone = cells.size() == 1 || second.isEmpty() ? listedSection(project, first) : -1;
    if (alone >= 0) {
        span.section = alone;
        return span;
    }
    const char* refusal = nullptr;
    span.length = typedLength(first, refusal);
    if (refusal != nullptr) fault = QString::fromUtf8(refusal);
    if (!second.isEmpty()) {
        span.section = listedSection(project, second);
        if (*span.section < 0) fault = said("the project's list has no section \"%1\"").arg(second);
    }
    for (int i = 2; i < cells.size(); ++i)
        if (!cells[i].trimmed().isEmpty()) fault = said("more than a length and a section");
    return span;
}

}  // namespace

std::optional<int> typedLength(const QString& text, const char*& refusal) {
    const auto number = plainNumber(text);
    if (!number) {
        refusal = kNoLength;
        return std::nullopt;
    }
    const Single length = DecimalValue(*number);
    if (!spanLengthRange().holds(length)) {
        refusal = kLengthLimits;
        return std::nullopt;
    }
    return roundHalfEven(DecimalValue(formatNumber(length, "##0")));
}

int listedSection(const Project& project, const QString& name) {
    for (int i = project.SectionList.first(); i <= project.SectionList.last(); ++i)
        if (!name.isEmpty() && bareName(QString::fromStdString(project.SectionList(i).DisplayName)) == bareName(name))
            return i;
    return -1;
}

std::vector<SpanEntry> pastedSpans(const Project& project, const QString& text, QString& refusal) {
    QStringList lines = text.split(QLatin1Char('\n'));
    while (!lines.isEmpty() && lines.back().trimmed().isEmpty()) lines.pop_back();
    std::vector<SpanEntry> spans;
    for (int i = 0; i < lines.size(); ++i) {
        QString line = lines[i], fault;
        if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
        spans.push_back(readLine(project, line, fault));
        if (fault.isEmpty()) continue;
        refusal = said("Row %1 of what is pasted, \"%2\": %3").arg(i + 1).arg(line.simplified(), fault);
        return {};
    }
    return spans;
}

}  // namespace borvik
