#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QSlider>
#include <QStyleFactory>
#include <iostream>

#include "boxes/info_picture.h"
#include "camera.h"
#include "dialogs/dialogs.h"
#include "help/help_window.h"
#include "pictures/fatigue_pictures.h"
#include "pictures/info_pictures.h"
#include "platform/messages.h"
#include "platform/version.h"
#include "project/project_file.h"
#include "sheet.h"
#include "tutorial.h"
#include "views/detailed_result_dialog.h"
#include "views/working_dialog.h"
#include "window/about_dialog.h"
#include "window/main_window.h"

/// Takes the pictures of the windows for the documents, from a project calculated in the real main window, and those of
/// the tutorial, whose project is saved beside them as tutorial.brvk.
/// Usage: borvik-screenshots FOLDER [PROJECT.brvk [WIDTH HEIGHT]] [--dark]
///        borvik-screenshots --sheet OUT.png PROJECT.brvk [PAGE.png...]

namespace {

using namespace borvik;

constexpr int kBetweenFrames = 8;  // pixels

QPalette darkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    dark.setColor(QPalette::Highlight, QColor(61, 125, 196));
    dark.setColor(QPalette::ToolTipBase, QColor(70, 70, 70));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    return dark;
}

void choose(QWidget& window, const QString& node) {
    auto* tree = window.findChild<ResultTreeView*>("TreeView1");
    auto* item = tree->itemOf(node);
    if (item != nullptr) Q_EMIT tree->itemClicked(item, 0);
}

/// All input forms, named after their windows. Those of a monorail show a project of their own.
void takeForms(Camera& camera, Session& session, Messages& messages) {
    Session monorail(session.tables);
    monorail.project.CraneType = CraneKind::Monorail;
    monorail.project.LoadLevel = LoadPoint::BottomFlange;
    for (const FormKind& kind : formKinds()) {
        Session& shown = kind.cranes == FormKind::Monorail ? monorail : session;
        const bool plates = kind.kind == DialogKind::ProfReinf;
        shown.CurrentSection.Reinforced = plates;
        shown.CurrentSection.ReinfText = plates ? "PL1" : "";
        if (kind.kind == DialogKind::CraneData) {
            LoadProject(BORVIK_SOURCE_DIR "/examples/workshop-crane-data.brvk", shown.project);
            shown.CurrentSection = {};
        }
        const auto form = makeDialog(
            kind.kind, shown, messages, [] {}, nullptr);
        form->show();
        camera.take(*form, form->objectName());
    }
    const std::pair<const char*, PicturePainter> explained[] = {
        {"frmInfoSetup-factors", fatigueFactorPicture()},
        {"frmInfoSetup-limits", deflectionLimitPicture()},
        {"frmInfoLoadComb", loadCombinationPicture()},
        {"frmInfoFatigue", fatigueDetailPicture(FatigueDetail::SupportPoint)}};
    for (const auto& [name, picture] : explained) {
        InfoPicture info(name, name, picture, nullptr);
        info.show();
        camera.take(info, name);
    }
}

/// Four moments of the crane's drive over the beam, in two rows.
void takeDrive(Camera& camera, MainWindow& window) {
    auto* pictures = window.findChild<QWidget*>("splitterPictures");
    auto* crane1 = window.findChild<QSlider*>("driveCrane1");
    window.findChild<QAction*>("mnuGoverning")->trigger();
    const int governing = crane1->value();
    QPixmap frames;
    int number = 0;
    for (const int step : {governing, governing + 20, governing + 40, governing + 75}) {
        crane1->setValue(step);
        QApplication::processEvents();
        const QPixmap frame = pictures->grab();
        if (frames.isNull()) {
            frames = QPixmap(frame.size() * 2 + QSize(kBetweenFrames, kBetweenFrames));
            frames.fill(Qt::white);
        }
        QPainter(&frames).drawPixmap((number % 2) * (frame.width() + kBetweenFrames),
                                     (number / 2) * (frame.height() + kBetweenFrames), frame);
        ++number;
    }
    camera.save(frames, "crane-on-the-beam");
    window.findChild<QAction*>("mnuDriveEnd")->trigger();
}

}  // namespace

int main(int argc, char** argv) {
    // Without a display forms are kept within a small screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QElapsedTimer sinceStart;
    sinceStart.start();
    QApplication application(argc, argv);
    QApplication::setApplicationName(kApplicationTitle);
    QApplication::setApplicationVersion(kVersion);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.removeAll("--dark") > 0) QApplication::setPalette(darkPalette());
    if (arguments.removeAll("--sheet") > 0) return takeSheet(arguments);
    if (arguments.isEmpty()) {
        std::cerr << "usage: borvik-screenshots FOLDER [PROJECT.brvk [WIDTH HEIGHT]] [--dark]\n";
        return 2;
    }
    Camera camera(arguments.at(0));

    MessageList messages;
    NoQuestions questions;
    SettingsInMemory settings;
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    MainWindow window(session, {messages, questions, settings});
    if (arguments.size() > 3) window.resize(arguments.at(2).toInt(), arguments.at(3).toInt());
    window.show();
    QApplication::processEvents();
    std::cout << "window usable after " << sinceStart.elapsed() << " ms\n";
    if (arguments.size() > 1 && !window.openProject(arguments.at(1).toStdString())) {
        std::cerr << messages.texts.back() << '\n';
        return 5;
    }
    camera.take(window, "main-start");
    window.findChild<QPushButton*>("cmdCalc")->click();
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other->objectName() == "frmProgress" && other->isVisible()) {
            camera.take(*other, "progress");
            other->findChild<QPushButton*>("cmdOK")->click();
        }
    if (!window.calculation()) {
        std::cerr << "the calculation was refused: " << messages.texts.back() << '\n';
        return 3;
    }
    camera.take(window, "main");
    auto* picRes = window.findChild<QWidget*>("picRes");
    for (const auto& [node, name] :
         {std::pair("My + Vz", "diagram-my-vz"), std::pair("Mz + Vy", "diagram-mz-vy"),
          std::pair("Uz + Uy", "diagram-uz-uy"), std::pair("Reactions", "diagram-reactions"),
          std::pair("Cr1-Point 1", "diagram-cr1-point1"), std::pair("Cr1-Point 2", "diagram-cr1-point2"),
          std::pair("Cr1-Point 3", "diagram-cr1-point3")}) {
        choose(window, node);
        camera.take(*picRes, name);
    }
    camera.take(*window.findChild<QWidget*>("picBalk"), "diagram-sketch");
    takeDrive(camera, window);
    choose(window, "Reactions for supports");
    window.findChild<ResultTableView*>("lstViewDetailed")->selectRow(1);
    camera.take(window, "reactions-for-supports");
    choose(window, "Notes");
    camera.take(window, "notes");

    const auto& buckling = window.calculation()->results.Checks["Ltb"];
    WorkingDialog working(workingsOf(session.tables, window.calculation()->project, window.calculation()->results,
                                     buckling.governing.Origin),
                          &window);
    working.show();
    camera.take(working, "how-calculated");
    working.close();

    DetailedResultDialog detailed(window.calculation(), &window);
    detailed.show();
    choose(detailed, "Static");
    camera.take(detailed, "detailed-results");
    HelpWindow help(BORVIK_SOURCE_DIR "/docs/help", &window);
    help.showPage("rail.md");
    help.show();
    camera.take(help, "help");
    CranePositionsDialog steps(window.calculation(), &window);
    steps.show();
    camera.take(steps, "steps");
    AboutDialog about(QString::fromStdString(fingerprintOf(session.project)), &window);
    about.show();
    camera.take(about, "about");

    takeForms(camera, session, messages);

    window.projectChanged("Material");
    camera.take(window, "main-out-of-date");
    takeTutorial(camera);
    return 0;
}
