#include "help/help_library.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <algorithm>
#include <cmath>

#include "formulas/formula_object.h"

namespace borvik {

namespace {

constexpr int kTitleWeight = 100;  // a word in the title outweighs as many in the text

// Formulas wait between two private characters while the rest is read as Markdown.
constexpr char16_t kFormulaStart = 0xE000;
constexpr char16_t kFormulaEnd = 0xE001;

QString textOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Takes the formulas out of the text. Dollar signs within code are no formulas.
QString takeFormulas(const QString& markdown, QStringList& formulas) {
    static const QRegularExpression codeOrFormula("```.*?```|`[^`\\n]*`|\\$\\$(.+?)\\$\\$|\\$([^$\\n]+?)\\$",
                                                  QRegularExpression::DotMatchesEverythingOption);
    QString text;
    qsizetype from = 0;
    for (auto found = codeOrFormula.globalMatch(markdown); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        text += markdown.mid(from, match.capturedStart() - from);
        from = match.capturedEnd();
        if (match.capturedLength(1) == 0 && match.capturedLength(2) == 0) {
            text += match.captured();
            continue;
        }
        text += QChar(kFormulaStart) + QString::number(formulas.size()) + QChar(kFormulaEnd);
        formulas += match.capturedLength(1) > 0 ? match.captured(1) : match.captured(2);
    }
    return text + markdown.mid(from);
}

void putFormulasBack(QTextDocument& document, const QStringList& formulas) {
    static const QRegularExpression waiting(QString(QChar(kFormulaStart)) + "(\\d+)" + QChar(kFormulaEnd));
    for (QTextCursor at = document.find(waiting); !at.isNull(); at = document.find(waiting, at)) {
        const QString marked = at.selectedText();
        const bool alone = at.block().text().trimmed() == marked && at.currentTable() == nullptr;
        insertFormula(at, formulas.at(marked.mid(1, marked.size() - 2).toInt()), alone);
        if (!alone) continue;
        QTextBlockFormat indented = at.blockFormat();
        indented.setIndent(indented.indent() + 1);
        at.setBlockFormat(indented);
    }
}

void frameTables(QTextDocument& document) {
    const auto frames = document.rootFrame()->childFrames();
    for (QTextFrame* frame : frames) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(1.0);
        format.setBorderBrush(Qt::lightGray);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setCellPadding(3);
        table->setFormat(format);
    }
}

/// How often a word, or a word that begins with it, stands in a text.
qsizetype occurrences(const QString& text, const QString& word) {
    const QRegularExpression pattern(
        "(?<![\\w])" + QRegularExpression::escape(word),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return text.count(pattern);
}

}  // namespace

void setManualText(QTextDocument& document, const QString& markdown) {
    QStringList formulas;
    if (document.findChild<FormulaObject*>() == nullptr) new FormulaObject(document);
    QTextCursor whole(&document);
    whole.beginEditBlock();  // the page is laid out when a block ends
    document.setMarkdown(takeFormulas(markdown, formulas), QTextDocument::MarkdownDialectGitHub);
    whole.endEditBlock();
    whole.beginEditBlock();  // now tables are known
    putFormulasBack(document, formulas);
    frameTables(document);
    whole.endEditBlock();
}

void fitPictures(QTextDocument& document, const QDir& folder, int width, double density) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat picture = part.fragment().charFormat().toImageFormat();
            if (!picture.isValid()) continue;
            const QImage full(folder.absoluteFilePath(picture.name()));
            if (full.isNull()) continue;
            const double shown = std::min(width, full.width());
            const double height = std::round(shown * full.height() / full.width());
            const QSize pixels = (QSizeF(shown, height) * density).toSize();
            document.addResource(QTextDocument::ImageResource, QUrl(picture.name()),
                                 pixels.width() < full.width()
                                     ? full.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                     : full);
            picture.setWidth(shown);
            picture.setHeight(height);
            QTextCursor at(&document);
            at.setPosition(part.fragment().position());
            at.setPosition(part.fragment().position() + part.fragment().length(), QTextCursor::KeepAnchor);
            at.setCharFormat(picture);
            break;  // the fragments are new now; a picture stands in a paragraph of its own
        }
    }
}

HelpLibrary::HelpLibrary(const QString& folder) : folder_(folder) {
    if (folder.isEmpty()) return;
    static const QRegularExpression groupLine("^## (.+)$");
    static const QRegularExpression pageLine("^- \\[(.+)\\]\\((.+\\.md)\\)");
    QString group;
    const QStringList contents = textOf(folder_.filePath("index.md")).split('\n');
    for (const QString& line : contents) {
        if (const auto heading = groupLine.match(line); heading.hasMatch()) group = heading.captured(1);
        const auto entry = pageLine.match(line);
        if (!entry.hasMatch()) continue;
        pages_.append({entry.captured(2), entry.captured(1), group});
    }
}

QList<HelpText> HelpLibrary::search(const QString& words) const {
    const QStringList wanted = words.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    if (wanted.isEmpty()) return {};
    if (plainTexts_.isEmpty()) {
        for (const HelpText& page : pages_) {
            QTextDocument document;
            show(page.file, document);
            putFormulasOnOneLine(document);
            plainTexts_.append(document.toPlainText());
        }
    }
    QList<std::pair<qsizetype, HelpText>> found;
    for (qsizetype i = 0; i < pages_.size(); ++i) {
        qsizetype weight = 0;
        const bool all = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
            const qsizetype here =
                occurrences(plainTexts_[i], word) + kTitleWeight * occurrences(pages_[i].title, word);
            weight += here;
            return here > 0;
        });
        if (all) found.append({weight, pages_[i]});
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    QList<HelpText> pages;
    for (const auto& [weight, page] : found) pages.append(page);
    return pages;
}

bool HelpLibrary::show(const QString& file, QTextDocument& document) const {
    const QString path = folder_.filePath(file);
    const QString markdown = textOf(path);
    setManualText(document, markdown);
    return !markdown.isEmpty();
}

}  // namespace borvik
