#include "tutorial.h"

#include <QStatusBar>

#include "project/project_file.h"
#include "tutorial_steps.h"
#include "window/main_window.h"

namespace borvik {

void takeTutorial(Camera& camera) {
    MessageList messages;
    NoQuestions questions;
    SettingsInMemory settings;
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    MainWindow window(session, {messages, questions, settings});
    window.show();
    window.activateWindow();
    (void)QTest::qWaitForWindowActive(&window);
    const FormHands main(window);
    main.enter("iproj", "Workshop", Qt::Key_Tab);
    main.enter("iident", "Beam line B", Qt::Key_Tab);  // Enter would name the project after the beam
    window.WritefrmInput();
    camera.take(window, "tutorial-new");

    for (const TutorialStep& step : tutorialSteps()) {
        const auto form = makeDialog(
            step.kind, session, messages, [] {}, &window);
        form->show();
        form->activateWindow();
        QApplication::processEvents();
        step.work(FormHands(*form));
        camera.take(*form, step.picture);
        form->close();
        window.projectChanged(step.what);
    }
    main.click("cmdCalc");
    window.statusBar()->clearMessage();
    camera.take(window, "tutorial-summary");
    SaveProject(camera.path("tutorial.brvk"), session.project);
    for (const std::string& text : messages.texts) std::cerr << "tutorial: " << text << '\n';
}

}  // namespace borvik
