#include "tutorial.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>

#include "forms/dialogs.h"
#include "forms/main_window.h"
#include "project/project_file.h"

namespace borvik {

namespace {

/// A form and the hands that work in it.
class Hands {
public:
    explicit Hands(QWidget& form) : form_(form) {}

    template <class Control>
    Control& control(const char* name) const {
        auto* found = form_.findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    void click(const char* button) const { control<QAbstractButton>(button).click(); }
    void tick(const char* box, bool on) const {
        if (control<QAbstractButton>(box).isChecked() != on) click(box);
    }
    void type(const char* box, const char* text, Qt::Key leave = Qt::Key_Return) const {
        auto& edit = control<QLineEdit>(box);
        edit.setFocus(Qt::TabFocusReason);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, leave);
        QApplication::processEvents();
    }
    void choose(const char* list, const char* text) const {
        auto& box = control<QComboBox>(list);
        box.setCurrentText(text);
        Q_EMIT box.activated(box.currentIndex());
    }

private:
    QWidget& form_;
};

void chooseSection(const Hands& form) {
    form.choose("cboEuprofile", "HEB 400");
    form.click("addtoDBIu");
    form.click("OptLoadL1");
}

void layOutBeam(const Hands& form) {
    auto& rows = form.control<QTreeWidget>("lstViewTill");
    const auto select = [&rows](int row) {
        rows.clearSelection();
        rows.setCurrentItem(rows.topLevelItem(row - 1));
    };
    select(3);
    QTest::keyClick(&rows, Qt::Key_Delete);
    select(1);
    form.type("txtBeamLength", "6000");
    form.choose("cboProf", "HEB 400");
    form.click("Command1");
    form.tick("chkDead", true);
}

void putRailOn(const Hands& form) {
    form.choose("cboRail", "A 55");
    form.click("optRail2");
    form.tick("chkRail", true);
}

void enterCrane(const Hands& form) {
    form.click("optEn");
    form.click("optRorlig");
    form.choose("cboCraneClass1", "S4");
    const std::pair<const char*, const char*> entries[] = {{"txtPsiV1", "1.15"}, {"txtPsiH1", "1.5"}, {"txtV1", "70"},
                                                           {"txtH1", "8"},       {"txtV2", "70"},     {"txtH2", "-8"},
                                                           {"txtAvst1", "3000"}};
    for (const auto& [box, text] : entries) form.type(box, text);
}

void chooseDetails(const Hands& form) {
    form.click("Command10");
    form.tick("chkFat5", false);
}

}  // namespace

void takeTutorial(Camera& camera) {
    MessageList messages;
    NoQuestions questions;
    SettingsInMemory settings;
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    MainWindow window(session, {messages, questions, settings});
    window.show();
    window.activateWindow();
    (void)QTest::qWaitForWindowActive(&window);
    const Hands main(window);
    main.type("iproj", "Workshop", Qt::Key_Tab);
    main.type("iident", "Beam line B", Qt::Key_Tab);  // Enter would name the project after the beam
    window.WritefrmInput();
    camera.take(window, "tutorial-new");

    const struct {
        DialogKind kind;
        void (*work)(const Hands&);
        const char *name, *picture;
    } steps[] = {{DialogKind::Profile, chooseSection, "Profile", "tutorial-section"},
                 {DialogKind::Beam, layOutBeam, "Beam", "tutorial-beam"},
                 {DialogKind::Rail, putRailOn, "Rail", "tutorial-rail"},
                 {DialogKind::Load, enterCrane, "Loads", "tutorial-loads"},
                 {DialogKind::Fatigue1, chooseDetails, "Fatigue", "tutorial-fatigue"}};
    for (const auto& step : steps) {
        const auto form = makeDialog(
            step.kind, session, messages, [] {}, &window);
        form->show();
        form->activateWindow();
        QApplication::processEvents();
        step.work(Hands(*form));
        camera.take(*form, step.picture);
        form->close();
        window.projectChanged(step.name);
    }
    main.click("cmdCalc");
    window.statusBar()->clearMessage();
    camera.take(window, "tutorial-summary");
    SaveProject(camera.path("tutorial.brvk"), session.project);
    for (const std::string& text : messages.texts) std::cerr << "tutorial: " << text << '\n';
}

}  // namespace borvik
