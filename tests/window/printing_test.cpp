#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTimer>
#include <filesystem>
#include <functional>

#include "support/temp_folder.h"
#include "window/window_support.h"

namespace borvik {
namespace {

/// Waits for the next modal window, does something with it and closes it. @return whether one came
bool withModal(const std::function<void()>& open, const std::function<void(QDialog&)>& use) {
    bool came = false;
    QTimer poll;
    poll.setInterval(20);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || came) return;
        came = true;
        use(*dialog);
        if (dialog->isVisible()) dialog->reject();
    });
    poll.start();
    open();
    return came;
}

const char* const kCommands[] = {"LmnuPrintULS", "mnuPrintULSSLS", "mnuPreviewAll", "mnuPdfCompressed"};

TEST(Printing, nothingIsPrintedBeforeACalculation) {
    WindowFixture f;
    for (const char* command : kCommands) {
        f.messages.texts.clear();
        EXPECT_FALSE(withModal([&] { f.trigger(command); }, [](QDialog&) {})) << command;
        EXPECT_EQ(f.lastMessage(), "  Calculate before print  ") << command;
    }
    EXPECT_TRUE(f.questions.asked.empty());
}

TEST(Printing, cancelledDialogsLeaveEverything) {
    WindowFixture f;
    f.click("cmdCalc");
    const Project before = f.project();
    f.messages.texts.clear();
    EXPECT_TRUE(withModal([&] { f.trigger("LmnuPrintALL"); },
                          [](QDialog& dialog) { EXPECT_NE(qobject_cast<QPrintDialog*>(&dialog), nullptr); }));
    f.trigger("mnuPdfAll");  // no answer prepared: the chooser is cancelled
    EXPECT_EQ(f.questions.asked.size(), 1U);
    EXPECT_TRUE(f.messages.texts.empty());
    EXPECT_TRUE(f.session.Calculated);
    EXPECT_EQ(f.project(), before);
}

TEST(Printing, thePreviewShowsThePages) {
    WindowFixture f;
    f.click("cmdCalc");
    int pages = 0;
    EXPECT_TRUE(withModal([&] { f.trigger("mnuPreviewAll"); },
                          [&](QDialog& dialog) {
                              auto* preview = dialog.findChild<QPrintPreviewWidget*>();
                              ASSERT_NE(preview, nullptr);
                              preview->updatePreview();
                              pages = preview->pageCount();
                          }));
    EXPECT_GE(pages, 3);
    EXPECT_TRUE(f.messages.texts.empty() || f.session.Calculated);
}

TEST(Printing, theNotesAreOfferedAndOffUnlessChosen) {
    WindowFixture f;
    f.click("cmdCalc");
    const testing_support::TempFolder folder;
    const auto sizeOfPdf = [&](const char* name) {
        f.questions.toSave.push_back((folder.path() / name).string());
        f.trigger("mnuPdfULS");
        return std::filesystem::file_size(folder.path() / name);
    };
    const auto boxIsChecked = [&] {
        bool checked = false;
        EXPECT_TRUE(withModal([&] { f.trigger("mnuPrintULS"); },
                              [&](QDialog& dialog) {
                                  const auto* box = dialog.findChild<QCheckBox*>("chkPrintNotes");
                                  ASSERT_NE(box, nullptr);
                                  checked = box->isChecked();
                              }));
        return checked;
    };
    EXPECT_FALSE(boxIsChecked());
    const auto without = sizeOfPdf("without.pdf");
    f.trigger("mnuPrintNotes");
    EXPECT_TRUE(boxIsChecked());
    EXPECT_GT(sizeOfPdf("with.pdf"), without + 500);
}

TEST(Printing, theDialogWritesAFileOnlyOfPagesThatAreThere) {
    WindowFixture f;
    const testing_support::TempFolder folder;
    f.session.FileName = folder.file("hall 12.5 t.brvk");
    f.click("cmdCalc");
    f.messages.texts.clear();
    const std::string file = folder.file("hall 12.5 t-ULS.pdf");
    for (const int page : {9, 1}) {
        EXPECT_TRUE(withModal([&] { f.trigger("mnuPrintULS"); },
                              [&](QDialog& dialog) {
                                  EXPECT_EQ(dialog.findChild<QLineEdit*>("filename")->text().toStdString(), file);
                                  EXPECT_TRUE(dialog.findChild<QWidget*>("reverse")->isHidden());
                                  dialog.findChild<QRadioButton*>("printRange")->click();
                                  dialog.findChild<QSpinBox*>("to")->setValue(page);
                                  dialog.findChild<QSpinBox*>("from")->setValue(page);
                                  dialog.accept();
                              }));
        EXPECT_EQ(std::filesystem::exists(file), page == 1);
        EXPECT_EQ(f.lastMessage(), "The report has no page 9.");
    }
    EXPECT_THAT(testing_support::bytesOf(file), testing::HasSubstr("/Author <FEFF"));
}

TEST(Printing, thePdfIsWrittenWhereTheUserSays) {
    WindowFixture f;
    f.click("cmdCalc");
    const testing_support::TempFolder folder;
    const std::string file = (folder.path() / "report.pdf").string();
    f.questions.toSave.push_back(file);
    f.messages.texts.clear();
    f.trigger("mnuPdfULS");
    EXPECT_TRUE(f.messages.texts.empty());
    EXPECT_EQ(testing_support::bytesOf(file).substr(0, 5), "%PDF-");
    EXPECT_THAT(f.questions.asked.back(), testing::EndsWith(".pdf"));
    EXPECT_EQ(f.window.statusBar()->currentMessage().toStdString(), "Saved: " + file);

    f.questions.toSave.push_back((folder.path() / "no such folder" / "report.pdf").string());
    f.trigger("mnuPdfULS");
    EXPECT_THAT(f.lastMessage(), testing::HasSubstr("no such folder"));
}

}  // namespace
}  // namespace borvik
