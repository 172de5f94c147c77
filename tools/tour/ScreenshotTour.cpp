// A scripted tour of the program that saves a screenshot of every window, for the
// README: the micro view running, both collision pages after a run
// with the results and an enlarged graph, their dialog, the liquid pages before and
// after mixing and their dialog, the film and the About box.
// Usage: floatrix_tour --lang el|en --out <folder>  (run offscreen by `make screenshots`)

#include "introduction/frmIntroduction.h"
#include "introduction/RunControl.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "shell/ProgramLanguage.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <cstdio>
#include <functional>

namespace {

QDir shots;
bool allSaved = true;

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void waitFor(const std::function<bool()>& done, int limitMilliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < limitMilliseconds)
        wait(50);
}

void shoot(QWidget* window, const QString& name)
{
    wait(200); // lets the last changes paint
    const QString file = shots.filePath(name + ".png");
    const bool saved = window->grab().save(file);
    std::printf("%s %s\n", saved ? "saved" : "FAILED to save", qPrintable(file));
    allSaved = allSaved && saved;
}

QPushButton* command(QWidget* window, int index)
{
    return window->findChild<QPushButton*>(QString("cmdCommand(%1)").arg(index));
}

// Opens a view from the Contents menu. Views are shot in their own child window,
// whole even where the main frame would cut them off.
QWidget* openView(MDIMain::ContentsItem item)
{
    MDIMain& frame = Form<MDIMain>();
    frame.findChild<QAction*>(QString("mnuContentsItem(%1)").arg(int(item)))->trigger();
    return frame.mdiArea()->activeSubWindow()->widget();
}

// Shoots the modal window that `open` opens, once it shows, and answers it with
// the button `close`.
void shootModal(const QString& name, const QString& close, const std::function<void()>& open)
{
    QTimer poll;
    bool shot = false;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (shot || !modal || !modal->isVisible())
            return;
        shot = true;
        shoot(modal, name);
        if (auto* button = modal->findChild<QPushButton*>(close))
            button->click();
        else
            modal->close();
    });
    poll.start(100);
    open();
    if (!shot) {
        std::printf("FAILED: %s did not open\n", qPrintable(name));
        allSaved = false;
    }
}

void goTo(frmIntroduction* book, int unit, int page)
{
    // Typed, as a pupil types them: the boxes follow what is typed.
    for (auto [name, number] : {std::pair{"txtUnit", unit}, {"txtPage", page}}) {
        auto* box = book->findChild<QLineEdit*>(name);
        box->selectAll();
        QTest::keyClicks(box, QString::number(number));
    }
    command(book, frmIntroduction::GoToButton)->click();
    wait(300);
}

void tourMicroView()
{
    QWidget* view = openView(MDIMain::MicroViewItem);
    command(view, 1)->click(); // Simulate
    wait(4000);
    shoot(view->parentWidget(), "microview");
    command(view, 1)->click(); // Pause
    command(view, 0)->click(); // Exit
}

// Runs the page's experiment to its end (or for `milliseconds` when it runs on).
void run(frmIntroduction* book, int milliseconds)
{
    command(book, frmIntroduction::SimulationButton)->click();
    waitFor([book] { return book->Run().RunCompleted(); }, milliseconds);
}

void clickPicture(frmIntroduction* book, Qt::MouseButton button, double heightFraction)
{
    auto* picture = book->findChild<QWidget*>("picIntroduction");
    QTest::mouseClick(picture, button, {}, QPoint(picture->width() / 2, int(picture->height() * heightFraction)));
    wait(300);
}

void tourCollisions(frmIntroduction* book)
{
    goTo(book, 3, 1);
    run(book, 60000);
    shoot(book->parentWidget(), "collision_forms");
    shootModal(
        "collision_forms_options", "cmdCommand(1)", [book] { command(book, frmIntroduction::OptionsButton)->click(); });

    goTo(book, 3, 2);
    run(book, 60000);
    shoot(book->parentWidget(), "collision_experiment");
    auto* results = book->findChild<QPushButton*>("cmdResults");
    results->click();
    shoot(book->parentWidget(), "collision_results");
    results->click();
    clickPicture(book, Qt::LeftButton, 0.65); // the force graph, enlarged
    shoot(book->parentWidget(), "collision_graph_enlarged");
    clickPicture(book, Qt::LeftButton, 0.65);
    shootModal(
        "collision_options", "cmdCommand(1)", [book] { command(book, frmIntroduction::OptionsButton)->click(); });
}

void tourLiquids(frmIntroduction* book)
{
    goTo(book, 2, 6);
    run(book, 3000);
    shoot(book->parentWidget(), "liquid");
    command(book, frmIntroduction::SimulationButton)->click(); // Finish
    shootModal("liquid_options", "cmdCommand(1)", [book] { command(book, frmIntroduction::OptionsButton)->click(); });

    goTo(book, 2, 8);
    run(book, 1000);
    clickPicture(book, Qt::LeftButton, 0.5); // takes the partition away
    wait(5000);
    shoot(book->parentWidget(), "liquid_mixed");
    command(book, frmIntroduction::SimulationButton)->click(); // Finish
}

void tourIntroduction()
{
    auto* book = static_cast<frmIntroduction*>(openView(MDIMain::IntroductionItem));
    tourCollisions(book);
    tourLiquids(book);
    command(book, frmIntroduction::ExitButton)->click();
}

void tourMacroView()
{
    QWidget* view = openView(MDIMain::MacroViewItem);
    command(view, 1)->click(); // Play
    wait(2500);
    shoot(view->parentWidget(), "macroview");
    command(view, 0)->click(); // Exit
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("Floatrix");
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addOptions(
        {{"lang", "The language of the tour.", "el|en"}, {"out", "The folder of the screenshots.", "folder"}});
    parser.process(app);
    shots = QDir(parser.value("out"));
    if (!shots.mkpath(".") || !ProgramLanguage::load(parser.value("lang"))) {
        std::fprintf(stderr, "floatrix_tour: cannot write to '%s' or no language '%s'\n",
            qPrintable(parser.value("out")), qPrintable(parser.value("lang")));
        return 2;
    }

    ShowMainWindow();
    MDIMain& frame = Form<MDIMain>();
    wait(300);
    tourMicroView();
    tourIntroduction();
    tourMacroView();
    shootModal("about", "cmdClose", [&frame] { frame.mnuHelpItem_Click(MDIMain::AboutItem); });
    EndProgram();
    return allSaved ? 0 : 1;
}
