#include "formulas/formula_layout.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTextBlock>
#include <QTextLayout>
#include <memory>

#include "formulas/formula_object.h"
#include "formulas/formula_text.h"
#include "help/help_library.h"

namespace borvik {
namespace {

const QFont kFont("DejaVu Sans", 9);

/// What a PDF is drawn on: 1200 points an inch, so that no number is rounded to the pixels of a screen.
class FormulaLayout : public testing::Test {
protected:
    FormulaLayout() {
        file_.open();
        paper_ = std::make_unique<QPdfWriter>(file_.fileName());
        metrics = std::make_unique<QFontMetricsF>(kFont, paper_.get());
    }
    [[nodiscard]] FormulaBox box(const char* tex, FormulaStyle style = FormulaStyle::Display) const {
        return layFormula(readFormula(tex), kFont, paper_.get(), style);
    }
    std::unique_ptr<QFontMetricsF> metrics;

private:
    QTemporaryFile file_;
    std::unique_ptr<QPdfWriter> paper_;
};

TEST_F(FormulaLayout, aFractionHasItsBarAtTheHeightOfTheMinusAndWiderThanItsParts) {
    const FormulaBox fraction = box("\\frac{a b}{x + y}");
    const QRectF bar = fraction.shapes.boundingRect();
    const double minus = metrics->tightBoundingRect("−").center().y();
    EXPECT_NEAR(bar.center().y(), minus, 1.0);
    EXPECT_GT(bar.width(), box("x + y").width);
    EXPECT_GT(fraction.width, bar.width());
    EXPECT_LT(fraction.symbols.front().at.y(), bar.top());
    const double lowerTop = fraction.symbols.back().at.y() - metrics->tightBoundingRect("y").height();
    EXPECT_GT(lowerTop, bar.bottom());
    EXPECT_LT(box("\\frac{a b}{x + y}", FormulaStyle::Inline).width, fraction.width);
}

TEST_F(FormulaLayout, theRootSignCoversWhatStandsBelowIt) {
    for (const char* tex : {"x", "f_{yk}^2", "\\frac{I_w}{I_z} + x"}) {
        const FormulaBox inside = box(tex);
        const FormulaBox root = box(("\\sqrt{" + std::string(tex) + "}").c_str());
        const QRectF sign = root.shapes.boundingRect();
        EXPECT_LT(sign.top(), -inside.ascent) << tex;
        EXPECT_GE(sign.bottom(), inside.descent) << tex;
        const double shift = root.symbols.front().at.x() - inside.symbols.front().at.x();
        EXPECT_GE(sign.right(), shift + inside.width) << tex;
        EXPECT_GE(root.ascent, -sign.top() - 1.0) << tex;
    }
}

TEST_F(FormulaLayout, bracketsAreAsHighAsWhatTheyEnclose) {
    const FormulaBox inside = box("\\frac{a}{b}");
    const QRectF brackets = box("\\left( \\frac{a}{b} \\right)").shapes.boundingRect();
    EXPECT_LE(brackets.top(), -inside.ascent + 1.0);
    EXPECT_GE(brackets.bottom(), inside.descent - 1.0);
    EXPECT_TRUE(box("\\left( a \\right)").shapes.isEmpty()) << "low ones are ordinary";
}

TEST_F(FormulaLayout, anIndexAndAPowerStandAboveEachOtherWithoutTouching) {
    const FormulaBox both = box("t_{2}^{3}");
    ASSERT_EQ(both.symbols.size(), 3U);
    const FormulaBox::Symbols& index = both.symbols[1];
    const FormulaBox::Symbols& power = both.symbols[2];
    EXPECT_LT(power.at.y(), 0.0);
    EXPECT_GT(index.at.y(), 0.0);
    EXPECT_GT(index.at.y() - 0.7 * metrics->tightBoundingRect("2").height(), power.at.y());
    // How far the power gives way to the slant of the letter is up to the font.
    EXPECT_LT(power.at.x() - index.at.x(), 0.7 * metrics->horizontalAdvance("2"));
}

TEST_F(FormulaLayout, theLimitOfASumStandsBelowTheMiddleOfItsSign) {
    const FormulaBox sum = box("\\sum_{i}");
    ASSERT_EQ(sum.symbols.size(), 2U);
    EXPECT_GT(sum.symbols[1].at.y(), metrics->ascent() / 2.0);
    EXPECT_GT(sum.symbols[1].at.x(), sum.symbols[0].at.x());
    EXPECT_LT(sum.symbols[1].at.x(), sum.width / 2.0);
}

QStringList formulasOfTheTheoryManual() {
    QFile file(BORVIK_SOURCE_DIR "/docs/theory.md");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QStringList formulas;
    for (auto each = QRegularExpression("(\\$\\$?)([^$]+)\\1").globalMatch(text); each.hasNext();)
        formulas += each.next().captured(2);
    return formulas;
}

TEST_F(FormulaLayout, everyPieceOfTheTheoryManualFitsBetweenTheMarginsOfAPage) {
    const double textWidth = 120.0 / 25.4 * 1200.0;  // of A4, less margins and indent
    const QStringList functions{"max", "min", "sin", "cos", "sinh", "tanh"};
    const QRegularExpression unknown("[A-Za-z\\\\{}^_$]{2,}");
    for (const QString& tex : formulasOfTheTheoryManual()) {
        for (const QString& piece : formulaPieces(tex)) {
            const FormulaBox set = box(piece.toUtf8());
            EXPECT_LE(set.width, textWidth) << piece.toStdString();
            for (const FormulaBox::Symbols& each : set.symbols) {
                // Words are in the text of the manual as they are; what else has letters is a command not known.
                const bool word = tex.contains("{" + each.text) || functions.contains(each.text);
                EXPECT_TRUE(word || !unknown.match(each.text).hasMatch()) << each.text.toStdString();
            }
        }
    }
}

QString simplified(QString text) {
    return text.replace(QChar::Nbsp, ' ').simplified();
}

TEST(FormulaObject, writtenOnOneLineIsTheTextOfTheWholeFormula) {
    const QStringList formulas = formulasOfTheTheoryManual();
    ASSERT_GT(formulas.size(), 400);
    for (const QString& tex : formulas) {
        QTextDocument expected, document;
        expected.setHtml("<p>a " + formulaHtml(tex) + ", b</p>");
        document.setPlainText("a *, b");
        QTextCursor at = document.find("*");
        insertFormula(at, tex, false);
        putFormulasOnOneLine(document);
        EXPECT_EQ(simplified(document.toPlainText()).toStdString(), simplified(expected.toPlainText()).toStdString());
    }
}

TEST(FormulaObject, aLineIsHighEnoughForTheFormulaInIt) {
    const QString tex = "\\frac{f_{yk}}{\\sum_{i} W}";
    QTextDocument document;
    setManualText(document, "a $" + tex + "$ b");
    document.setTextWidth(400);
    const QTextLine line = document.begin().layout()->lineAt(0);
    const FormulaBox box = layFormula(readFormula(tex), document.defaultFont(), nullptr, FormulaStyle::Inline);
    EXPECT_GE(line.ascent(), box.ascent - 1.0);
    EXPECT_GE(line.descent(), box.descent - 1.0);
    EXPECT_GT(line.naturalTextWidth(), box.width);
}

}  // namespace
}  // namespace borvik
