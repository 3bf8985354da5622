#include "window/help.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeData>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <functional>

#include "dialogs/dialogs.h"
#include "formulas/formula_object.h"
#include "formulas/formula_text.h"
#include "help/help_window.h"
#include "platform/messages.h"
#include "views/detailed_result_dialog.h"
#include "views/result_tree_view.h"
#include "window/about_dialog.h"
#include "window/input_tree.h"

namespace borvik {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

const QString kFolder = BORVIK_SOURCE_DIR "/docs/help";

std::vector<std::string> found(const char* words) {
    std::vector<std::string> files;
    for (const HelpText& page : HelpLibrary(kFolder).search(words)) files.push_back(page.file.toStdString());
    return files;
}

std::string plain(const QTextDocument& document) {
    const std::unique_ptr<QTextDocument> text(document.clone());
    putFormulasOnOneLine(*text);
    return text->toPlainText().toStdString();
}

TEST(HelpLibrary, everyPageIsInTheContentsAndEveryEntryIsAPage) {
    QStringList listed{"index.md"};
    const HelpLibrary library(kFolder);
    for (const HelpText& page : library.pages()) {
        EXPECT_TRUE(QFile::exists(kFolder + '/' + page.file)) << page.file.toStdString();
        if (!page.file.startsWith("..")) listed.append(page.file);
    }
    listed.sort();
    EXPECT_EQ(listed, QDir(kFolder).entryList({"*.md"}, QDir::Files, QDir::Name));
}

TEST(HelpLibrary, everyLinkAndEveryPictureIsThere) {
    const QRegularExpression link("\\]\\(([^)#]+)");
    const HelpLibrary library(kFolder);
    for (const HelpText& page : library.pages()) {
        QFile file(library.folder().filePath(page.file));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const QDir from = QFileInfo(file).dir();
        for (auto each = link.globalMatch(text); each.hasNext();) {
            const QString target = each.next().captured(1);
            if (target.contains("://")) continue;
            EXPECT_TRUE(from.exists(target)) << page.file.toStdString() << " -> " << target.toStdString();
        }
    }
}

TEST(HelpLibrary, searchPutsThePageOfTheSubjectFirst) {
    EXPECT_EQ(found("fatigue").front().substr(0, 7), "fatigue");
    EXPECT_EQ(found("rail").front(), "rail.md");
    EXPECT_EQ(found("C1").front(), "lateral-torsional-buckling.md");
    EXPECT_EQ(found("Reinforce").front(), "reinforcement.md");
    EXPECT_THAT(found("print report"), Contains("printing.md"));
}

TEST(HelpLibrary, allWordsMustBeFoundAsBeginningsOfWords) {
    EXPECT_THAT(found("rail xyzzy"), IsEmpty());
    EXPECT_THAT(found("  "), IsEmpty());
    EXPECT_THAT(found("ail"), IsEmpty());
}

TEST(HelpLibrary, aMissingFolderHasNoPages) {
    EXPECT_TRUE(HelpLibrary("/nowhere").pages().isEmpty());
}

TEST(ManualText, formulasAreSetAndCodeIsLeftAlone) {
    QTextDocument document;
    setManualText(document, "Take $\\bar\\lambda_{LT}$ of `$HOME`:\n\n$$\\frac{W f_{yk}}{M_{cr}}$$\n");
    EXPECT_EQ(plain(document), "Take λ\u0304LT of $HOME:\n(Wfyk)/Mcr");
}

TEST(ManualText, everyFormulaOfTheTheoryManualIsUnderstood) {
    QTextDocument document;
    ASSERT_TRUE(HelpLibrary(kFolder).show("../theory.md", document));
    const QRegularExpression leftOver(".*([$\\\\{}\\x{E000}]|frac\\b|sqrt|mathrm).*");
    EXPECT_EQ(leftOver.match(document.toPlainText()).captured().toStdString(), "");
}

struct Typeset {
    const char* tex;
    const char* html;
};

class FormulaText : public testing::TestWithParam<Typeset> {};

TEST_P(FormulaText, isRichText) {
    EXPECT_EQ(formulaHtml(GetParam().tex).toStdString(), GetParam().html);
}

INSTANTIATE_TEST_SUITE_P(
    Formulas, FormulaText,
    testing::Values(Typeset{"x^2", "<i>x</i><sup>2</sup>"},
                    Typeset{"M_{y,Ed}", "<i>M</i><sub><i>y</i>,<i>E</i><i>d</i></sub>"},
                    Typeset{"\\frac{a}{b+c}", "<i>a</i>/(<i>b</i> + <i>c</i>)"},
                    Typeset{"\\frac{x}{L} M_{r-1}", "<i>x</i>/<i>L</i> · <i>M</i><sub><i>r</i>−1</sub>"},
                    Typeset{"\\frac{x}{L} \\right)", "<i>x</i>/<i>L</i>)"},
                    Typeset{"\\sqrt[3]{I/t}", "<sup>3</sup>√(<i>I</i>/<i>t</i>)"},
                    Typeset{"-a - b", "−<i>a</i> − <i>b</i>"}, Typeset{"a < b", "<i>a</i> &lt; <i>b</i>"},
                    Typeset{"\\chi_{\\text{LT}}", "χ<sub>LT</sub>"}));

/// A window and its help page.
struct Own {
    std::string window, page;
};

void expectOwnPage(QWidget& window, const std::string& page) {
    window.show();
    QTest::keyClick(&window, Qt::Key_F1);
    const auto* help = window.findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr) << window.objectName().toStdString();
    EXPECT_EQ(help->currentPage().toStdString(), page);
    EXPECT_TRUE(help->isVisible());
}

class HelpInTheProgram : public testing::Test {
protected:
    void SetUp() override {
        QDir::setSearchPaths(kHelpPath, {kFolder});
        qApp->installEventFilter(&key);
    }
    void TearDown() override { QDir::setSearchPaths(kHelpPath, {}); }

    MessageList messages;
    HelpKey key{messages};
    Session session{LoadTables(BORVIK_SOURCE_DIR "/data")};
};

TEST_F(HelpInTheProgram, f1InEachInputFormOpensItsOwnPage) {
    for (const FormKind& kind : formKinds()) {
        const auto form = makeDialog(
            kind.kind, session, messages, [] {}, nullptr);
        EXPECT_EQ(form->objectName(), kind.window);
        expectOwnPage(*form, kind.helpPage);
    }
    CranePositionsDialog steps(nullptr, nullptr);
    expectOwnPage(steps, "crane-positions.md");
    AboutDialog about("0123456789ab", nullptr);
    expectOwnPage(about, "index.md");
}

TEST_F(HelpInTheProgram, f1InABoxOfAFormOpensTheFormsPage) {
    const auto form = makeDialog(
        DialogKind::Setup, session, messages, [] {}, nullptr);
    form->show();
    QTest::keyClick(form->findChild<QWidget*>("ineta"), Qt::Key_F1);
    ASSERT_NE(form->findChild<HelpWindow*>(), nullptr);
    EXPECT_EQ(form->findChild<HelpWindow*>()->currentPage(), "setup.md");
}

TEST_F(HelpInTheProgram, aWindowWithoutAPageTakesThatOfItsOwner) {
    QDialog owner;
    owner.setObjectName("frmRail");
    const QDialog box(&owner);
    EXPECT_EQ(helpPageOf(&box), "rail.md");
    EXPECT_EQ(helpPageOf(nullptr), "index.md");
}

TEST_F(HelpInTheProgram, everyNodeOfTheMainTreeHasAPage) {
    session.project.NofCranes = 2;
    const std::function<void(const TreeNode&)> check = [&](const TreeNode& node) {
        for (const bool monorail : {false, true})
            EXPECT_TRUE(QFileInfo::exists(QString(kFolder) + "/" + helpPageOf(node, monorail))) << node.text;
        EXPECT_EQ(helpPageOf(node, false) == "main-window.md", node.opens == NodeOpens::Nothing) << node.text;
        for (const TreeNode& child : node.children) check(child);
    };
    check(mainTree(inputTree(), session.project, true));
}

TEST_F(HelpInTheProgram, f1OnANodeOpensItsPage) {
    ResultTreeView tree("tree");
    QShortcut contents(QKeySequence::HelpContents, &tree);
    int shortcuts = 0;
    std::string wanted;
    QObject::connect(&contents, &QShortcut::activated, &tree, [&] { ++shortcuts; });
    QObject::connect(&tree, &ResultTreeView::helpWanted, &tree, [&](const TreeNode& node) { wanted = node.text; });
    tree.showTree(mainTree(inputTree(), session.project, true));
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tree));
    QTest::keyClick(&tree, Qt::Key_F1);
    EXPECT_EQ(shortcuts, 1) << "the root opens nothing";
    tree.setCurrentItem(tree.itemOf("Uz + Uy"));
    QTest::keyClick(&tree, Qt::Key_F1);
    EXPECT_EQ(shortcuts, 1);
    EXPECT_EQ(wanted, "Uz + Uy");
}

TEST_F(HelpInTheProgram, aMissingHelpIsSaid) {
    QDir::setSearchPaths(kHelpPath, {"/nowhere"});
    QDialog form;
    form.show();
    QTest::keyClick(&form, Qt::Key_F1);
    ASSERT_EQ(messages.texts.size(), 1U);
    EXPECT_THAT(messages.texts[0], testing::HasSubstr("help pages are missing"));
}

TEST_F(HelpInTheProgram, theMenuOpensContentsSearchAndTheory) {
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    showHelp(HelpPage::Theory, messages);
    auto* help = window.findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->currentPage(), "../theory.md");
    help->showPage("rail.md");
    EXPECT_TRUE(help->windowTitle().contains("Rail"));

    auto* search = help->findChild<QLineEdit*>("helpSearch");
    auto* contents = help->findChild<QTreeWidget*>("helpContents");
    QTest::keyClicks(search, "reinforcement");
    EXPECT_EQ(contents->topLevelItem(0)->text(0), "Reinforcement");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(help->currentPage(), "reinforcement.md");
}

TEST_F(HelpInTheProgram, thePageIsSearchedAndItsPicturesFitIt) {
    HelpWindow help(kFolder, nullptr);
    help.setAttribute(Qt::WA_DeleteOnClose, false);
    help.show();
    help.showPage("rail.md");
    auto* page = help.findChild<QTextBrowser*>("helpPage");
    const auto found = [&] { return help.findChild<QLabel*>("helpFound")->text().toStdString(); };
    auto* find = help.findChild<QLineEdit*>("helpFind");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    find->setFocus();
    QTest::keyClicks(find, "rail");
    const auto marks = page->extraSelections().size();
    ASSERT_GT(marks, 2);
    EXPECT_EQ(found(), "1 of " + std::to_string(marks));
    QTest::keyClick(find, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(found(), std::to_string(marks) + " of " + std::to_string(marks)) << "round to the last one";
    QTest::keyClick(find, Qt::Key_Return);
    EXPECT_EQ(found(), "1 of " + std::to_string(marks));
    find->setText("xyzzy");
    EXPECT_EQ(found(), "Not in this page");
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_TRUE(help.isVisible() && find->text().isEmpty()) << "the first Escape ends the search only";

    for (const int width : {700, 1500}) {
        help.resize(width, 700);
        QCoreApplication::processEvents();
        EXPECT_FALSE(page->horizontalScrollBar()->isVisible()) << width;
    }
}

TEST_F(HelpInTheProgram, whatIsCopiedHasItsFormulasAsText) {
    HelpWindow help(kFolder, nullptr);
    help.setAttribute(Qt::WA_DeleteOnClose, false);
    help.showPage("../theory.md");
    auto* page = help.findChild<QTextBrowser*>("helpPage");
    page->selectAll();
    page->copy();
    const QMimeData* copied = QGuiApplication::clipboard()->mimeData();
    EXPECT_TRUE(copied->text().contains("IR = Fz/Fz,Rd"));
    EXPECT_FALSE(copied->text().contains(QChar::ObjectReplacementCharacter));
    EXPECT_TRUE(copied->html().contains("vertical-align:sub"));
}

}  // namespace
}  // namespace borvik
