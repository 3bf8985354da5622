#include "boxes/change_names.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QRadioButton>
#include <algorithm>

#include "base/number_text.h"
#include "boxes/form_binder.h"

namespace borvik {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("ChangeNames", text);
}

/// The quantity that a control stands for, from its name: "txtV3" and "iLfULS" are V3 and LfULS.
QString quantity(const QString& control) {
    for (const char* head : {"txt", "cbo"}) {
        if (!control.startsWith(QLatin1String(head))) continue;
        const QString name = control.mid(3);
        return name.left(1).toUpper() + name.mid(1);
    }
    return control.startsWith(QLatin1Char('i')) && control.size() > 3 ? control.mid(1) : control;
}

QString changed(const QString& what, const QString& before, const QString& now) {
    return what + QStringLiteral(" ") + before + QStringLiteral(" → ") + now;
}

int spansOf(const Project& project) {
    return static_cast<int>(
        std::count_if(project.Span.begin(), project.Span.end(), [](std::int32_t length) { return length != 0; }));
}

QString sectionOf(const Project& project, int span) {
    return project.SpanSection.has(span) ? QString::fromStdString(project.SpanSection(span).DisplayName).trimmed()
                                         : QString();
}

QStringList namesOf(const Project& project) {
    QStringList names;
    for (const SectionRecord& section : project.SectionList)
        names.append(QString::fromStdString(section.DisplayName).trimmed());
    return names;
}

}  // namespace

ControlTexts::ControlTexts(const QWidget& form, const FormBinder& binder, bool boxes) {
    for (const auto* button : form.findChildren<QAbstractButton*>()) {
        if (!button->isCheckable()) continue;
        QString caption = button->text().remove(QLatin1Char('&')).trimmed();
        texts_.push_back({std::move(caption), button->isChecked() ? tr("on") : tr("off"),
                          qobject_cast<const QRadioButton*>(button) != nullptr});
    }
    if (!boxes) return;
    for (const auto* list : form.findChildren<QComboBox*>())
        texts_.push_back({quantity(list->objectName()), list->currentText(), false});
    for (const NumberRow* row : binder.rows())
        texts_.push_back({quantity(QString::fromStdString(row->name)),
                          QString::fromStdString(generalText(row->field.get())), false});
}

QStringList ControlTexts::changesTo(const ControlTexts& now) const {
    QStringList changes;
    for (std::size_t i = 0; i < std::min(texts_.size(), now.texts_.size()); ++i) {
        const Text &before = texts_[i], &after = now.texts_[i];
        if (before == after || before.name != after.name) continue;
        const bool onOrOff = after.value == tr("on") || after.value == tr("off");
        if (!onOrOff) {
            changes.append(changed(after.name, before.value, after.value));
        } else if (!after.option) {
            changes.append(after.name + QStringLiteral(" ") + after.value);
        } else if (after.value == tr("on")) {
            changes.append(after.name);
        }
    }
    return changes;
}

QStringList spanChanges(const Project& before, const Project& now) {
    if (spansOf(before) != spansOf(now)) return {tr("%1 → %2 spans").arg(spansOf(before)).arg(spansOf(now))};
    QStringList changes;
    for (int span = 1; span <= kMaxSpans; ++span) {
        const QString name = tr("span %1").arg(span);
        if (before.Span(span) != now.Span(span))
            changes.append(changed(name, QString::number(before.Span(span)), QString::number(now.Span(span))));
        if (sectionOf(before, span) != sectionOf(now, span))
            changes.append(changed(name, sectionOf(before, span), sectionOf(now, span)));
    }
    return changes;
}

QStringList sectionChanges(const Project& before, const Project& now) {
    const QStringList old = namesOf(before), present = namesOf(now);
    QStringList changes;
    for (const QString& name : present)
        if (!old.contains(name)) changes.append(tr("%1 added").arg(name));
    for (const QString& name : old)
        if (!present.contains(name)) changes.append(tr("%1 removed").arg(name));
    if (changes.isEmpty() && old != present) changes.append(tr("order of the sections"));
    return changes;
}

}  // namespace borvik
