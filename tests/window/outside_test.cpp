#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTimer>
#include <functional>

#include "base/fault.h"
#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_settings.h"
#include "support/temp_folder.h"
#include "window/guarded_application.h"

namespace borvik {
namespace {

/// Looks at the modal box that `show` brings up, and answers it.
void withBox(const std::function<void()>& show, const std::function<void(QMessageBox&)>& look) {
    QTimer::singleShot(20, [&look] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            look(*box);
        } else if (QWidget* other = QApplication::activeModalWidget()) {
            other->close();
        }
    });
    show();
}

TEST(QtMessages, showTheTextWordForWord) {
    QtMessages messages;
    for (const char* text :
         {" 50 <= fyk <= 2000 ", "<b>12000 > 11000</b> ; Traversen ryms ej på traversbalken!!", ""}) {
        bool seen = false;
        withBox([&] { messages.show(text); },
                [&](QMessageBox& box) {
                    seen = true;
                    EXPECT_EQ(box.text().toStdString(), text);
                    EXPECT_EQ(box.textFormat(), Qt::PlainText);
                    EXPECT_EQ(box.icon(), QMessageBox::Warning);
                    box.accept();
                });
        EXPECT_TRUE(seen) << text;
    }
}

TEST(QtMessages, aBoxDuringACalculationHasTheOrdinaryPointer) {
    QtMessages messages;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    withBox([&] { messages.show("box"); },
            [&](QMessageBox& box) {
                EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
                box.accept();
            });
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();
}

TEST(QtQuestions, giveTheAnswerOfTheButton) {
    QtQuestions questions;
    const std::pair<QMessageBox::StandardButton, Answer> answers[] = {
        {QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}};
    for (const auto& [button, expected] : answers) {
        Answer given = expected == Answer::Yes ? Answer::No : Answer::Yes;
        const QMessageBox::StandardButton pressed = button;
        withBox([&] { given = questions.yesNoCancel("Spara?"); },
                [&](QMessageBox& box) {
                    EXPECT_EQ(box.icon(), QMessageBox::Question);
                    box.button(pressed)->click();
                });
        EXPECT_EQ(given, expected);
    }
}

TEST(QtSettings, keepTextsBySectionAndKey) {
    const testing_support::TempFolder folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QString::fromStdString(folder.path().string()));
    const std::string odd = "/home/å, \"b\"; c=d/x.brvk";
    {
        QtSettings settings;
        EXPECT_EQ(settings.get("Borvik", "Recent Files", "RecentFile1", "none"), "none");
        settings.save("Borvik", "Recent Files", "RecentFile2", "second");
        settings.save("Borvik", "Recent Files", "RecentFile1", odd);
        settings.save("Borvik", "Settings", "MainLeft", "12");
    }
    QtSettings again;
    EXPECT_EQ(again.get("Borvik", "Recent Files", "RecentFile1"), odd);
    using Pairs = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(again.getAll("Borvik", "Recent Files"), (Pairs{{"RecentFile1", odd}, {"RecentFile2", "second"}}));
    EXPECT_TRUE(again.getAll("Another", "Recent Files").empty());
    EXPECT_EQ(folder.count(), 1) << "nothing is written elsewhere";
}

TEST(GuardedApplication, makesAFaultOfAnEventAMessageAndGoesOn) {
    auto& application = dynamic_cast<GuardedApplication&>(*QApplication::instance());
    MessageList shown;
    Messages& usual = application.tellFaultsTo(shown);
    bool reached = false;
    for (int i = 0; i < 2; ++i) QTimer::singleShot(0, [] { throw RuntimeFault("index 7 out of bounds"); });
    QTimer::singleShot(1, [&] { reached = true; });
    while (!reached) QApplication::processEvents();
    application.tellFaultsTo(usual);
    ASSERT_EQ(shown.texts.size(), 1U) << "a fault that repeats itself is shown once";
    EXPECT_NE(shown.texts.front().find("index 7 out of bounds"), std::string::npos);
}

}  // namespace
}  // namespace borvik
