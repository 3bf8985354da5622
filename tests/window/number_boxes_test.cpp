#include <QTabWidget>
#include <cmath>

#include "base/number_text.h"
#include "boxes/form_binder.h"
#include "support/golden.h"
#include "window/form_support.h"

namespace borvik {
namespace {

/// A project in which every box of every form can be used and counts.
class NumberBoxes : public FormTest {
protected:
    NumberBoxes() {
        project.NofCranes = 2;
        project.MinAvst = 2000;
        project.V(5) = 20;
        project.Fixerad = true;
        project.DefaultCfactor = false;
        for (int j = 1; j <= 4; ++j) project.ChkFat5Sp(j) = project.ChkFatR5Sp(j) = true;
        for (std::string* weld :
             {&project.W1, &project.W2, &project.W3, &project.RW1, &project.RW2, &project.RW3, &project.RW4})
            *weld = "FW";
    }

    void openAt(DialogKind kind) {
        open(kind);
        binder = form->findChild<FormBinder*>();
    }

    /// Types a value in and leaves the box: refused or not, it stays stored and is shown by its mask.
    void tryValue(const NumberRow& row, double value) {
        const std::string typed = formatNumber(value, "0.###");
        const bool accepted = binder->rangeOf(row).holds(DecimalValue(typed));
        SCOPED_TRACE(row.name + " = " + typed);
        messages.texts.clear();
        const int before = changes;
        enter(row.name, typed);
        EXPECT_EQ(double(row.field.get()), double(DecimalValue(typed)));
        EXPECT_TRUE(row.refused || shown(row.name) == formatNumber(row.field.get(), row.mask));
        EXPECT_EQ(control(row.name).refused(), !accepted);
        EXPECT_EQ(changes > before, accepted);
        EXPECT_EQ(messages.texts, accepted ? std::vector<std::string>{} : std::vector<std::string>{row.message});
        EXPECT_TRUE(accepted || focused() == row.name);
    }

    FormBinder* binder = nullptr;
};

TEST_F(NumberBoxes, areThoseOfTheTable) {
    std::string table;
    for (const FormKind& kind : formKinds()) {
        openAt(kind.kind);
        for (const NumberRow* row : binder->rows()) {
            const QString tip = control(row->name).toolTip().replace("\n", " / ");
            const bool ofProject = !row->range;
            const std::string place = ofProject ? inputNumber(project, row->field.place()).name : "";
            for (const std::string& column : {form->objectName().toStdString(), row->name, place,
                                              std::string(row->mask), std::string(row->message)})
                table += column + " | ";
            table += tip.toStdString() + "\n";
        }
        form.reset();
    }
    EXPECT_EQ(testing_support::goldenDifference("number-boxes.txt", table), "");
}

TEST_F(NumberBoxes, takeWhatLiesWithinTheirLimitsAndRefuseTheRest) {
    for (const FormKind& kind : formKinds()) {
        openAt(kind.kind);
        for (const NumberRow* row : binder->rows()) {
            if (kind.kind == DialogKind::Profile)
                control<QTabWidget>("SSTab1").setCurrentIndex(row->name.starts_with("ius") ? 2 : 1);
            // a step of the last decimal that the box shows
            const std::string mask = row->mask;
            const std::size_t point = mask.find('.');
            const double step =
                std::pow(10.0, point == std::string::npos ? 0.0 : double(point) + 1.0 - double(mask.size()));
            const Range range = binder->rangeOf(*row);
            for (const double limit : {double(range.lowest), double(range.highest)})
                for (const double value : {limit + step, limit, limit - step})
                    if (std::isfinite(value)) tryValue(*row, value);
            tryValue(*row, std::isfinite(double(range.highest)) ? double(range.highest) - step : 123456);
        }
        form.reset();
    }
}

}  // namespace
}  // namespace borvik
