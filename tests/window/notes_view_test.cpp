// The notes in the main window: node, table, details, status bar and the way to the check.

#include <gtest/gtest.h>

#include <QToolButton>

#include "results/notes_table.h"
#include "window_support.h"

namespace borvik {
namespace {

class NotesView : public testing::Test, public WindowFixture {
protected:
    ResultTableView& list() { return control<ResultTableView>("lstViewDetailed"); }
    std::string details() { return control<QTextBrowser>("lstViewDetailedDetails").toPlainText().toStdString(); }
    std::string title() { return control<QLabel>("lstViewDetailedTitle").text().toStdString(); }
    const Notes& notes() { return *window.calculation()->notes; }
    int rowOf(const std::string& check) {
        const auto& rows = list().table().rows;
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (rows[row][0].text == check) return static_cast<int>(row);
        return -1;
    }
};

TEST_F(NotesView, listsTheNotesWithTheirDetails) {
    auto& state = control<QToolButton>("stateNotes");
    EXPECT_FALSE(state.isVisible());
    click("cmdCalc");
    ASSERT_GT(notes().notes.size(), 2u);
    EXPECT_TRUE(state.isVisible());
    EXPECT_EQ(state.text(), QString("%1 notes").arg(notes().notes.size()));
    EXPECT_FALSE(control<QTextBrowser>("lstViewDetailedDetails").isVisible()) << "other tables have none";

    state.click();
    EXPECT_TRUE(list().hasFocus()) << "so that the arrows walk the notes";
    EXPECT_EQ(title(), "Notes for the checking engineer");
    EXPECT_EQ(control<ResultTreeView>("TreeView1").currentItem()->text(0), "Notes");
    const auto& rows = list().table().rows;
    ASSERT_EQ(rows.size(), notes().notes.size() + 1);
    EXPECT_EQ(rows.back()[0].text, "Assumptions");
    const int patchLoad = rowOf("Patch load, span 3");
    ASSERT_GE(patchLoad, 0);
    EXPECT_EQ(rows[static_cast<std::size_t>(patchLoad)][1].text, "0.057");
    EXPECT_EQ(rows[static_cast<std::size_t>(patchLoad)][2].text, "0.084");
    const Note& first = notes().notes[0];
    EXPECT_EQ(details().rfind(first.rule->key + (": " + noteText(first)), 0), 0u) << "the first row is the current one";
    list().selectRow(static_cast<int>(rows.size()) - 1);
    EXPECT_NE(details().find("\u2022 A7: Supports are rigid"), std::string::npos);

    enter("ifyk", "300");
    click("chkStartStop");
    EXPECT_FALSE(state.isVisible()) << "notes of an input that has changed";
}

TEST_F(NotesView, leadToTheCheckTheySpeakOf) {
    click("cmdCalc");
    const std::pair<const char*, const char*> ways[] = {{"Patch load, span 3", "IR = Fz,Ed/Fz,Rd"},
                                                        {"Horizontal deflection, span 3", "IR = dy/(L/600)"}};
    for (const auto& [note, check] : ways) {
        clickNode("Notes");
        const int row = rowOf(note);
        ASSERT_GE(row, 0) << note;
        list().selectRow(row);
        QTest::keyClick(&list(), Qt::Key_Return);
        EXPECT_EQ(control<ResultTreeView>("TreeView1").currentItem()->text(0), "Detailed Results") << note;
        EXPECT_EQ(title(), "Static") << note;
        EXPECT_EQ(list().currentIndex().siblingAtColumn(0).data().toString(), "3") << note;
        const QString shown = list().currentIndex().siblingAtColumn(1).data().toString();
        EXPECT_TRUE(shown.startsWith(check)) << note << ": " << shown.toStdString();
    }
}

}  // namespace
}  // namespace borvik
