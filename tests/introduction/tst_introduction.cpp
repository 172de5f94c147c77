#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "widgets/CanvasWidget.h"
#include "core/ScopedRandomSequence.h"
#include "introduction/IntroductionBook.h"
#include "widgets/OptionsWidgets.h"
#include "introduction/RunControl.h"
#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "microview/frmLGOptions.h"
#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"
#include "shell/Forms.h"
#include "shell/ProgramRecords.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "widgets/StatusLine.h"

#include <QCheckBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

namespace {

frmIntroduction& intro()
{
    return Form<frmIntroduction>();
}

QPushButton* button(int index)
{
    return intro().findChild<QPushButton*>(OptionsWidgets::indexedName("cmdCommand", index));
}

QLineEdit* box(const char* name)
{
    return intro().findChild<QLineEdit*>(name);
}

CanvasWidget* picture()
{
    return intro().findChild<CanvasWidget*>("picIntroduction");
}

void type(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Backspace);
    else
        QTest::keyClicks(edit, text);
}

QString paneText()
{
    return intro().findChild<QPlainTextEdit*>("txtIntro")->toPlainText();
}

// The unit and page boxes' colours (B blue, G grey) and whether Go To can be clicked.
QString entryState()
{
    QString state;
    for (const char* name : {"txtUnit", "txtPage"}) {
        const int32_t colour = OptionsWidgets::textColor(box(name));
        state += colour == OptionsWidgets::ValidTextColor     ? 'B'
                 : colour == OptionsWidgets::InvalidTextColor ? 'G'
                                                              : '?';
    }
    return state + (button(6)->isEnabled() ? '+' : '-');
}

// The indices of the buttons that can be clicked.
QString enabledButtons()
{
    QString indices;
    for (int i = 0; i <= 9; ++i)
        if (button(i)->isEnabled())
            indices += QString::number(i);
    return indices;
}

QString hintOf(QWidget* control)
{
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(control, &enter);
    return Form<MDIMain>().statusLine();
}

void goTo(int unit, int page)
{
    type(box("txtUnit"), QString::number(unit));
    type(box("txtPage"), QString::number(page));
    button(6)->click();
}

CollisionState& state()
{
    return intro().Experiment().State();
}

QString captions()
{
    return button(8)->text() + "/" + button(9)->text();
}

void clickPicture(Qt::MouseButton which, float twipsY)
{
    QTest::mouseClick(picture(), which, {}, QPoint(100, int(twipsY / 15)));
}

QImage shownPicture()
{
    return picture()->canvas().image();
}

// Ticks a started collision run through to its end.
void runToTheEnd()
{
    RunControl& run = intro().Run();
    for (int ticks = 0; run.Timer1().isActive() && ticks < 1000; ++ticks)
        run.Timer1_Timer();
    QVERIFY(run.RunCompleted());
}

} // namespace

class IntroductionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void arrowButtonsWalkTheBookAndRestoreTheDefaults();
    void typedNumbersAreCheckedAtEveryKeystroke();
    void collisionPagesShowTheirTextsAndTheirCheck();
    void liquidPagesShowTheVesselAndTheirMolecules();
    void aLiquidRunKeepsItsGroupsApartUntilFinishOrExit();
    void liquidMoleculesStartInRowsAndInTheirOwnHalves();
    void aDamagedVesselPictureIsNamedAndLeftOut_data();
    void aDamagedVesselPictureIsNamedAndLeftOut();
    void aDefaultRunStopsByItselfAndItsGraphsZoom();
    void aStartEndsAnEnlargedGraphOnEveryPage();
    void aPageSetUpAlwaysLeavesTheSceneWithinReach();
    void theTimerRunsTheExperimentAtTheDelayBarsPace();
    void pauseStepNextAndRestoreActOnTheClock();
    void optionsOpensTheDialogOfThePage();

private:
    std::unique_ptr<ScopedRandomSequence> m_random;
};

void IntroductionTest::init()
{
    m_random.reset();
    m_random = std::make_unique<ScopedRandomSequence>(1.0);
    ShowMainWindow();
    Form<MDIMain>().ShowChild(&intro());
    QVERIFY(QTest::qWaitForWindowExposed(&intro()));
}

void IntroductionTest::cleanup()
{
    QCOMPARE(closeLeftoverWindows(), 1); // the main frame that holds the introduction
    QVERIFY(!IsLoaded<frmIntroduction>());
}

void IntroductionTest::arrowButtonsWalkTheBookAndRestoreTheDefaults()
{
    struct Move
    {
        int fromUnit, fromPage, index, toUnit, toPage;
    };
    const Move moves[] = {
        {1, 1, 2, 1, 1}, {1, 1, 1, 1, 1}, {1, 2, 2, 1, 1}, {2, 8, 3, 3, 1}, {3, 1, 2, 2, 8},
        {2, 4, 1, 1, 1}, {2, 4, 4, 3, 1}, {4, 4, 3, 5, 1}, {5, 3, 3, 5, 3}, {5, 3, 4, 5, 3},
        {5, 1, 2, 4, 4}, {4, 2, 3, 4, 3},
    };
    ModalAnswerer answerer;
    CollisionSetup& setup = ProgramRecords::instance().Collision;
    FluidParameters& fluid = ProgramRecords::instance().Fluid;
    for (const Move& move : moves) {
        // Go To keeps changed parameters; every move restores the defaults, a button that cannot move nothing.
        setup.Mass[1] = 3;
        fluid.FluidRows = 2;
        goTo(move.fromUnit, move.fromPage);
        QVERIFY(setup.Mass[1] == 3 && fluid.FluidRows == 2);
        button(move.index)->click();
        const QString where = QString("from %1/%2 by %3").arg(move.fromUnit).arg(move.fromPage).arg(move.index);
        QVERIFY2(intro().CurrentUnit() == move.toUnit && intro().CurrentPage() == move.toPage, qPrintable(where));
        const QString boxes = box("txtUnit")->text() + "/" + box("txtPage")->text();
        QCOMPARE(boxes, QString("%1/%2").arg(move.toUnit).arg(move.toPage));
        const bool moved = move.toUnit != move.fromUnit || move.toPage != move.fromPage;
        QVERIFY2(setup.Mass[1] == (moved ? 10 : 3) && fluid.FluidRows == (moved ? 6 : 2), qPrintable(where));
    }
    goTo(4, 2);
    QCOMPARE(paneText(), QString("Unit:4 , Page:2"));
    QCOMPARE(answerer.count(), 0);
}

void IntroductionTest::typedNumbersAreCheckedAtEveryKeystroke()
{
    QLineEdit* unit = box("txtUnit");
    QLineEdit* page = box("txtPage");
    QCOMPARE(unit->text() + page->text() + paneText(), QString("11Unit:1 , Page:1"));
    QCOMPARE(entryState(), QString("BB+"));
    type(unit, "9");
    QCOMPARE(entryState(), QString("GB-"));
    QCOMPARE(intro().CurrentUnit(), int16_t(1));
    type(unit, "2");
    QCOMPARE(entryState(), QString("BB+"));
    QCOMPARE(intro().CurrentUnit(), int16_t(2));
    // Typing moves the position at once: the arrows work from the typed place.
    type(page, "8");
    button(3)->click();
    QVERIFY(intro().CurrentUnit() == 3 && intro().CurrentPage() == 1);

    for (const char* refused : {"-1", "1.", "0", "a", "", "123"}) {
        type(page, "1");
        type(page, refused);
        QVERIFY2(entryState() == "BG-", refused);
    }
    QCOMPARE(page->text(), QString("12"));
    type(page, "3");
    QCOMPARE(entryState(), QString("BB+"));

    // A unit that changes straight to another leaves a page beyond its end alone:
    // "Go To" then shows the empty title of a page that does not exist.
    type(unit, "2");
    type(page, "8");
    type(unit, "3");
    QCOMPARE(entryState(), QString("BB+"));
    button(6)->click();
    QCOMPARE(paneText(), QString());
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionTest::collisionPagesShowTheirTextsAndTheirCheck()
{
    std::optional<ModalAnswerer> answerer(std::in_place);
    auto* frame = intro().findChild<QGroupBox*>("fraDraw");
    goTo(3, 1);
    QCOMPARE(frame->title(), QString("Collision Forms (view from above)"));
    const QString a = paneText();
    QVERIFY(a.startsWith("Collisions are observed frequently in nature"));
    QVERIFY(a.contains("colliding bodies  and change their trajectories.\nIn every collision"));
    QVERIFY(a.contains("is NOT conserved.Of course there is"));
    QVERIFY(a.endsWith("kinetic energy is not conserved."));
    goTo(3, 2);
    QCOMPARE(frame->title(), QString("Experiment (Side view) / Graphs"));
    const QStringList lines = paneText().split('\n');
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines[1], QString("V1=(m2\u03C52+\u03C51(m1-m2))/mtot and"));
    QCOMPARE(lines[2], QString("V2=(m1\u03C51+\u03C52(m2-m1))/mtot"));
    QCOMPARE(lines[3], QString("where mtot=m1+m2"));
    QVERIFY(IntroductionBook::TextB().contains("\r\nwhere"));
    // A title-only page leaves the frame's caption as it was.
    QVERIFY(button(5)->isEnabled());
    goTo(3, 3);
    QCOMPARE(frame->title(), QString("Experiment (Side view) / Graphs"));
    QCOMPARE(paneText(), QString("Unit:3 , Page:3"));
    QVERIFY(!button(5)->isEnabled());
    QCOMPARE(answerer->count(), 0);

    // A failed check says why and blocks the run.
    ProgramRecords::instance().Collision.Ux[1] = -100;
    goTo(3, 2);
    QCOMPARE(answerer->count(), 1);
    QCOMPARE(answerer->title(), QString("Simulation Results"));
    QCOMPARE(answerer->text(),
        QString("Attention!\rInitial positions and velocities lead to increasing distance of bodies. Please "
                "try again with different parameters by clicking on the button \"Options\"."));
    QCOMPARE(answerer->icon(), QMessageBox::Critical);
    QVERIFY(!button(5)->isEnabled());
    // Equal velocities meet nowhere: the learner is told so as well.
    answerer.emplace();
    ProgramRecords::instance().Collision.Ux[1] = 50;
    button(6)->click();
    QCOMPARE(answerer->count(), 1);
    QVERIFY(answerer->text().contains("x components of velocity are equal"));
    QVERIFY(!button(5)->isEnabled());
    // Equal x and y velocities from above make a code without a message of its own.
    ProgramRecords::instance().Collision.Uy[1] = ProgramRecords::instance().Collision.Uy[2] = 10;
    goTo(3, 1);
    QCOMPARE(answerer->count(), 1);
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionTest::liquidPagesShowTheVesselAndTheirMolecules()
{
    goTo(2, 6);
    LiquidPage& liquid = intro().Liquid();
    ImageCanvas& canvas = picture()->canvas();
    QVERIFY(canvas.hasPicture());
    QCOMPARE(liquid.LiquidLevel(), int16_t(2600));
    QVERIFY(liquid.PartitionVisible());
    QCOMPARE(intro().findChild<QGroupBox*>("fraDraw")->title(), QString());
    const LiquidMolecules& molecules = liquid.Molecules();
    QCOMPARE(molecules.MoleculeCount(), int16_t(30));
    // 6 rows down, 5 columns across: three in the left half, two in the right.
    QCOMPARE(molecules.Molecule(1).Xcoord(), 1000 + 0.5f * 1240 / 3);
    QCOMPARE(molecules.Molecule(1).Ycoord(), 2600 + 0.5f * 1825 / 6);
    QCOMPARE(molecules.Molecule(2).Xcoord(), 1000 + 1.5f * 1240 / 3);
    QCOMPARE(molecules.Molecule(4).Xcoord(), 2240 + 0.5f * 1240 / 2);
    QCOMPARE(molecules.Molecule(6).Ycoord(), 2600 + 1.5f * 1825 / 6);
    QCOMPARE(molecules.Molecule(1).radius(), int16_t(150));
    QCOMPARE(molecules.GroupRight(1), 2240.0f);
    // Each group shows in its own colour over the picture.
    for (int16_t k : {1, 30}) {
        const Particle& molecule = molecules.Molecule(k);
        const int32_t shown = canvas.pixelColor(int(canvas.toDeviceX(molecule.Xcoord())),
            int(canvas.toDeviceY(molecule.Ycoord())));
        QCOMPARE(shown, int32_t(ProgramRecords::instance().Fluid.FluidGroupColor[k == 1 ? 1 : 2]));
    }

    // A click on the picture takes the partition out; both groups get the vessel.
    QTest::mouseClick(picture(), Qt::LeftButton, {}, QPoint(100, 200));
    QVERIFY(!liquid.PartitionVisible());
    QCOMPARE(molecules.GroupLeft(2), 1000.0f);
    QCOMPARE(molecules.GroupRight(1), 3480.0f);

    ProgramRecords::instance().Fluid.FluidRows = 2;
    ProgramRecords::instance().Fluid.FluidColumns = 3;
    button(6)->click();
    QCOMPARE(molecules.MoleculeCount(), int16_t(6));
    QVERIFY(liquid.PartitionVisible());
    // Page 8 without its picture: the vessel alone, and the status line says which is missing.
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath("pot_t1.bmp");
    QFile::rename(path, path + ".hidden");
    const auto restore = qScopeGuard([&] { QFile::rename(path + ".hidden", path); });
    button(3)->click();
    button(3)->click();
    QCOMPARE(intro().CurrentPage(), int16_t(8));
    QCOMPARE(liquid.LiquidLevel(), int16_t(2100));
    QCOMPARE(molecules.MoleculeCount(), int16_t(30));
    QCOMPARE(molecules.Molecule(1).radius(), int16_t(50));
    QVERIFY(!canvas.hasPicture());
    QVERIFY(Form<MDIMain>().statusLine().contains("pot_t1.bmp"));
    QCOMPARE(canvas.pixelColor(2240 / 15, 3000 / 15), 0);
}

void IntroductionTest::aLiquidRunKeepsItsGroupsApartUntilFinishOrExit()
{
    goTo(2, 8);
    RunControl& run = intro().Run();
    QCOMPARE(hintOf(button(5)), QString("Simulation of phenomenon"));
    button(5)->click();
    QCOMPARE(button(5)->text(), QString("Finish"));
    QCOMPARE(hintOf(button(5)), QString("Stop simulation"));
    QVERIFY(run.Timer1().isActive());
    QCOMPARE(enabledButtons(), QString("0589"));

    // The molecules stay in their halves of the vessel while they move.
    const LiquidMolecules& molecules = intro().Liquid().Molecules();
    const float firstX = molecules.Molecule(1).Xcoord();
    QVERIFY(molecules.Molecule(1).Vx() != molecules.Molecule(2).Vx());
    for (int tick = 0; tick < 300; ++tick)
        run.Timer1_Timer();
    QVERIFY(molecules.Molecule(1).Xcoord() != firstX);
    for (int16_t k = 1; k <= molecules.MoleculeCount(); ++k) {
        const Particle& molecule = molecules.Molecule(k);
        const float x = molecule.Xcoord();
        QVERIFY(x > 1000 - 40 && x < 3480 + 40);
        QVERIFY(molecule.Ycoord() > 2100 - 40 && molecule.Ycoord() < 4425 + 40);
        QVERIFY((x < 2240) == (molecules.Group(k) == 1));
    }
    button(9)->click();
    QCOMPARE(hintOf(button(8)), QString("Next snapshot of simulation process"));
    QTest::mouseClick(intro().findChild<QWidget*>("lblPage"), Qt::LeftButton);
    QCOMPARE(Form<MDIMain>().statusLine(), QString("Select Page"));
    button(9)->click();

    button(5)->click();
    QCOMPARE(button(5)->text(), QString("Simulation"));
    QVERIFY(!run.Timer1().isActive());
    QCOMPARE(enabledButtons(), QString("0123467"));

    // "Exit" during a run closes the window; nothing of the run is kept.
    button(6)->click();
    button(5)->click();
    button(0)->click();
    QCOMPARE(Form<MDIMain>().statusLine(), QString("The Floatrixon - A modern Greek game"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!IsLoaded<frmIntroduction>());
    Form<MDIMain>().ShowChild(&intro());
    QCOMPARE(intro().CurrentUnit(), int16_t(1));
    QVERIFY(!intro().Run().Timer1().isActive());
}

void IntroductionTest::liquidMoleculesStartInRowsAndInTheirOwnHalves()
{
    const LiquidMolecules& molecules = intro().Liquid().Molecules();
    for (const auto& [page, rows, columns] : {std::tuple{6, 6, 5}, {6, 4, 1}, {8, 1, 3}, {6, 5, 5}, {8, 3, 4}}) {
        // The learner sets the counts in the page's options.
        ModalAnswerer answerer([&](QWidget* modal) {
            type(modal->findChild<QLineEdit*>("txtNoOfRows"), QString::number(rows));
            type(modal->findChild<QLineEdit*>("txtNoOfColumns"), QString::number(columns));
            modal->findChild<QPushButton*>("cmdCommand(0)")->click();
        });
        goTo(2, page);
        button(7)->click();
        const QString counts = QString("page %1, %2 x %3").arg(page).arg(rows).arg(columns);
        QVERIFY2(molecules.MoleculeCount() == rows * columns, qPrintable(counts));
        QSet<float> xs, ys;
        for (int16_t k = 1; k <= molecules.MoleculeCount(); ++k) {
            const Particle& molecule = molecules.Molecule(k);
            const int16_t group = molecules.Group(k);
            const int row = (k - 1) / columns;
            const int column = (k - 1) % columns;
            xs << molecule.Xcoord();
            ys << molecule.Ycoord();
            // Rows go down, columns across; the left half holds the first columns.
            if (column > 0)
                QVERIFY2(molecule.Xcoord() > molecules.Molecule(k - 1).Xcoord(), qPrintable(counts));
            if (row > 0)
                QVERIFY2(molecule.Ycoord() > molecules.Molecule(int16_t(k - columns)).Ycoord(), qPrintable(counts));
            QVERIFY2(molecule.Xcoord() - molecule.radius() >= molecules.GroupLeft(group), qPrintable(counts));
            QVERIFY2(molecule.Xcoord() + molecule.radius() <= molecules.GroupRight(group), qPrintable(counts));
            QVERIFY2(molecule.Ycoord() - molecule.radius() >= intro().Liquid().LiquidLevel(), qPrintable(counts));
            QVERIFY2((group == 1) == (column < (columns + 1) / 2), qPrintable(counts));
        }
        QVERIFY2(xs.size() == columns && ys.size() == rows, qPrintable(counts));
    }
}

void IntroductionTest::aDamagedVesselPictureIsNamedAndLeftOut_data()
{
    QFile real(QDir(QCoreApplication::applicationDirPath()).filePath("pot_t2.bmp"));
    QVERIFY(real.open(QIODevice::ReadOnly));
    const QByteArray whole = real.readAll();
    QByteArray garbage(4000, 0);
    for (int i = 0; i < garbage.size(); ++i)
        garbage[i] = char((i * 7919 + 13) % 251);
    QByteArray scrambledHeader = whole;
    scrambledHeader.replace(14, 40, QByteArray(40, char(0xFF)));

    QTest::addColumn<bool>("present");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("problem"); // empty: the picture is shown
    QTest::newRow("whole") << true << whole << QString();
    QTest::newRow("cut to half") << true << whole.left(whole.size() / 2) << "cannot be read";
    QTest::newRow("cut by a byte") << true << whole.chopped(1) << "cannot be read";
    QTest::newRow("empty") << true << QByteArray() << "cannot be read";
    QTest::newRow("garbage") << true << garbage << "cannot be read";
    QTest::newRow("garbled header") << true << scrambledHeader << "cannot be read";
    QTest::newRow("missing") << false << QByteArray() << "is missing";
}

void IntroductionTest::aDamagedVesselPictureIsNamedAndLeftOut()
{
    QFETCH(bool, present);
    QFETCH(QByteArray, content);
    QFETCH(QString, problem);
    QTemporaryDir folder;
    if (present) {
        QFile file(folder.filePath("pot_t2.bmp"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    intro().Liquid().setPictureFolder(folder.path());
    SetStatusLine(QString());
    goTo(2, 6);

    ImageCanvas& canvas = picture()->canvas();
    if (problem.isEmpty()) {
        QVERIFY(canvas.hasPicture());
        QCOMPARE(Form<MDIMain>().statusLine(), QString());
        return;
    }
    QVERIFY(!canvas.hasPicture());
    QCOMPARE(Form<MDIMain>().statusLine(),
        QString("The picture pot_t2.bmp %1: the vessel is shown without it").arg(problem));
    // Above the liquid nothing is drawn: no part of a broken picture shows there.
    const QImage shown = canvas.image();
    for (int y = 0; y < int(canvas.toDeviceY(2500)); ++y)
        for (int x = 0; x < shown.width(); ++x)
            QVERIFY(shown.pixel(x, y) == shown.pixel(0, 0));
    QCOMPARE(canvas.pixelColor(0, 0), Rgb::RGB(255, 255, 255));
}

void IntroductionTest::aDefaultRunStopsByItselfAndItsGraphsZoom()
{
    goTo(3, 2);
    CollisionGraphs& graphs = intro().Experiment().Graphs();
    QCOMPARE(graphs.GraphCount, int16_t(3));
    QCOMPARE(state().ContactStart, 1.6f);
    // Before a run a click enlarges nothing.
    const float middleOfPanel2 = (graphs.PanelTop[2] + graphs.PanelBottom[2]) / 2;
    clickPicture(Qt::LeftButton, middleOfPanel2);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));

    button(5)->click();
    RunControl& run = intro().Run();
    QVERIFY(run.Timer1().isActive());
    QCOMPARE(enabledButtons(), QString("089"));
    float lastTime = 0;
    int ticks = 0;
    for (; run.Timer1().isActive() && ticks < 1000; ++ticks) {
        lastTime = state().SimulationTime + state().TimeStep;
        run.Timer1_Timer();
    }
    QVERIFY(ticks == 100 || ticks == 101);
    QVERIFY(qAbs(lastTime - 3.2f) < 0.04f);
    QCOMPARE(state().SimulationTime, 0.0f);
    QVERIFY(run.RunCompleted());
    QCOMPARE(enabledButtons(), QString("0123467"));
    QCOMPARE(button(5)->text(), QString("Simulation"));

    clickPicture(Qt::LeftButton, middleOfPanel2);
    QCOMPARE(graphs.GraphZoomed, int16_t(1));
    QCOMPARE(graphs.SelectedGraph, int16_t(2));
    QCOMPARE(graphs.GraphTimeMax[4], 3.2f);
    clickPicture(Qt::RightButton, 0);
    QVERIFY(graphs.ContactZoom);
    QVERIFY(qAbs(graphs.GraphTimeMin[4] - (1.6f - 6 * state().TimeStep)) < 1e-4f);
    QVERIFY(qAbs(graphs.GraphTimeMax[4] - (1.6f + 18 * state().TimeStep)) < 1e-4f);
    clickPicture(Qt::RightButton, 0);
    QVERIFY(!graphs.ContactZoom);
    QCOMPARE(graphs.GraphZoomed, int16_t(1));
    QCOMPARE(graphs.GraphTimeMax[4], 3.2f);
    clickPicture(Qt::LeftButton, 0);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));
    // Between the panels there is nothing to enlarge.
    clickPicture(Qt::LeftButton, 4800);
    QCOMPARE(graphs.GraphZoomed, int16_t(0));

    // Go To sets the page up again, and its check offers a new run.
    button(6)->click();
    QVERIFY(button(5)->isEnabled());
    QVERIFY(!run.RunCompleted());
}

void IntroductionTest::aStartEndsAnEnlargedGraphOnEveryPage()
{
    // Two graphs, a finished run, one of them enlarged.
    ModalAnswerer answerer([](QWidget* modal) {
        modal->findChild<QCheckBox*>("chkGraphS")->setChecked(false);
        modal->findChild<QPushButton*>("cmdCommand(0)")->click();
    });
    goTo(3, 2);
    button(7)->click();
    CollisionGraphs& graphs = intro().Experiment().Graphs();
    QCOMPARE(graphs.GraphCount, int16_t(2));
    button(5)->click();
    runToTheEnd();
    clickPicture(Qt::LeftButton, (graphs.PanelTop[1] + graphs.PanelBottom[1]) / 2);
    QCOMPARE(graphs.GraphZoomed, int16_t(1));

    // A liquid run starts and finishes.
    goTo(2, 6);
    button(5)->click();
    QCOMPARE(graphs.GraphZoomed, int16_t(0));
    QVERIFY(!graphs.ContactZoom);
    button(5)->click();

    // Back on the side view with the default three graphs, each has its own panel.
    button(4)->click();
    button(3)->click();
    QCOMPARE(graphs.GraphCount, int16_t(3));
    const float h = 3 * 4935 / 12.0f;
    const float margin = 0.02f * 4575;
    for (int16_t g = 1; g <= 3; ++g) {
        QCOMPARE(graphs.PanelTop[g], (g - 1) * h + margin);
        QCOMPARE(graphs.PanelBottom[g], graphs.PanelTop[g] + h - margin);
    }
}

void IntroductionTest::aPageSetUpAlwaysLeavesTheSceneWithinReach()
{
    goTo(3, 2);
    CollisionGraphs& graphs = intro().Experiment().Graphs();
    const float middleOfPanel2 = (graphs.PanelTop[2] + graphs.PanelBottom[2]) / 2;
    button(5)->click();
    runToTheEnd();
    const QImage afterARun = shownPicture();

    // After Go To, and after the dialog, the set-up's scene stays whatever is clicked,
    // and a new run draws over nothing but that scene.
    for (const bool viaOptions : {false, true}) {
        clickPicture(Qt::LeftButton, middleOfPanel2);
        QCOMPARE(graphs.GraphZoomed, int16_t(1));
        ModalAnswerer answerer([](QWidget* modal) { modal->findChild<QPushButton*>("cmdCommand(0)")->click(); });
        button(viaOptions ? 7 : 6)->click();
        const QImage scene = shownPicture();
        for (const Qt::MouseButton which : {Qt::RightButton, Qt::RightButton, Qt::LeftButton}) {
            clickPicture(which, middleOfPanel2);
            QVERIFY(shownPicture() == scene);
        }
        button(5)->click();
        runToTheEnd();
        QVERIFY(shownPicture() == afterARun);
    }

    // The view from above never shows a graph, also with a zoom carried over.
    clickPicture(Qt::LeftButton, middleOfPanel2);
    goTo(3, 1);
    const QImage above = shownPicture();
    for (const Qt::MouseButton which : {Qt::RightButton, Qt::RightButton, Qt::LeftButton, Qt::RightButton}) {
        clickPicture(which, middleOfPanel2);
        QVERIFY(shownPicture() == above);
    }
}

void IntroductionTest::theTimerRunsTheExperimentAtTheDelayBarsPace()
{
    auto* delay = intro().findChild<QScrollBar*>("HScrSimulationDelay");
    QCOMPARE(delay->value(), 1);
    QCOMPARE(intro().Run().Timer1().interval(), 10);
    const int expected[] = {10, 40, 90, 160, 250};
    for (int value = 5; value >= 1; --value) {
        delay->setValue(value);
        QCOMPARE(intro().Run().Timer1().interval(), expected[value - 1]);
    }

    goTo(3, 1);
    button(5)->click();
    QEventLoop loop;
    QTimer poll;
    connect(&poll, &QTimer::timeout, &loop, [&] {
        if (!intro().Run().Timer1().isActive())
            loop.quit();
    });
    poll.start(20);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(!intro().Run().Timer1().isActive());
    QVERIFY(intro().Run().RunCompleted());
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionTest::pauseStepNextAndRestoreActOnTheClock()
{
    goTo(3, 2);
    RunControl& run = intro().Run();
    button(5)->click();
    QCOMPARE(captions(), QString("Pause/Step"));
    for (int i = 0; i < 10; ++i)
        run.Timer1_Timer();
    const float step = state().TimeStep;
    const float atPause = state().SimulationTime;

    // Each click in turn: the captions it leaves, whether the clock runs, the steps taken since.
    const std::tuple<int, const char*, bool, int> clicks[] = {{8, "Continue/Step", false, 0},
        {8, "Pause/Step", true, 0}, {9, "Next/Restore", false, 0}, {8, "Next/Restore", false, 1},
        {9, "Pause/Step", true, 1}};
    for (const auto& [index, shown, running, steps] : clicks) {
        button(index)->click();
        QCOMPARE(captions(), QString(shown));
        QCOMPARE(run.Timer1().isActive(), running);
        QCOMPARE(state().SimulationTime, atPause + steps * step);
    }

    // A run that ends while stepping keeps "Next" and "Restore" on the buttons.
    button(9)->click();
    while (button(8)->isEnabled())
        button(8)->click();
    QCOMPARE(captions(), QString("Next/Restore"));
    QVERIFY(run.RunCompleted());
    QCOMPARE(state().SimulationTime, 0.0f);
}

void IntroductionTest::optionsOpensTheDialogOfThePage()
{
    QStringList titles;
    ModalAnswerer answerer([&](QWidget* modal) {
        titles << modal->windowTitle();
        if (auto* mass = modal->findChild<QLineEdit*>("txtm(0)")) {
            mass->selectAll();
            QTest::keyClicks(mass, "20");
        }
        modal->findChild<QPushButton*>("cmdCommand(0)")->click();
    });
    goTo(3, 2);
    button(7)->click();
    QCOMPARE(ProgramRecords::instance().Collision.Page, int16_t(2));
    QCOMPARE(ProgramRecords::instance().Collision.Mass[1], int16_t(20));
    QVERIFY(button(5)->isEnabled());
    QCOMPARE(intro().CurrentPage(), int16_t(2));

    goTo(2, 8);
    button(7)->click();
    QCOMPARE(ProgramRecords::instance().Collision.Page, int16_t(8));
    goTo(4, 1);
    button(7)->click();
    QCOMPARE(titles, QStringList({"Παράμετροι Ελαστικής Κρούσης", "Parameters of Gas Molecules"}));
    QVERIFY(!IsLoaded<frmCollisionOptions>() && !IsLoaded<frmLGOptions>());
}

QTEST_MAIN(IntroductionTest)
#include "tst_introduction.moc"
