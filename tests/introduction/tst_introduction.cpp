#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/CanvasWidget.h"
#include "introduction/IntroductionBook.h"
#include "introduction/OptionsWidgets.h"
#include "introduction/RunControl.h"
#include "introduction/frmIntroduction.h"
#include "model/CollisionSetup.h"
#include "shell/FluidParameters.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

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

bool isBlue(QLineEdit* edit)
{
    return OptionsWidgets::textColor(edit) == OptionsWidgets::ValidTextColor;
}

bool isGrey(QLineEdit* edit)
{
    return OptionsWidgets::textColor(edit) == OptionsWidgets::InvalidTextColor;
}

void goTo(int unit, int page)
{
    type(box("txtUnit"), QString::number(unit));
    type(box("txtPage"), QString::number(page));
    button(6)->click();
}

// Renames one of the program's pictures for as long as it lives.
class HiddenPicture
{
public:
    explicit HiddenPicture(const QString& name)
        : m_path(QDir(QCoreApplication::applicationDirPath()).filePath(name)), m_hidden(m_path + ".hidden")
    {
        QFile::rename(m_path, m_hidden);
    }
    ~HiddenPicture() { QFile::rename(m_hidden, m_path); }

private:
    QString m_path;
    QString m_hidden;
};

} // namespace

class IntroductionTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void opensOnTheFirstPageWithTheBook();
    void arrowButtonsWalkTheBookAndStopAtItsEnds();
    void everyMoveRestoresTheDefaultsButGoToKeepsThem();
    void typedNumbersAreCheckedAtEveryKeystroke();
    void aUnitChangeLeavesAnOutOfRangePageAlone();
    void collisionPagesShowTheirTextsAndCaptions();
    void simulationIsOfferedOnlyWithAnExperiment();
    void liquidPagesShowTheVesselAndTheirMolecules();
    void aLiquidRunRedrawsUntilFinish();
    void aMissingPictureIsReportedInTheStatusLine();
    void hintsFollowTheControls();
};

void IntroductionTest::init()
{
    ShowMainWindow();
    Form<MDIMain>().ShowChild(&intro());
    QVERIFY(QTest::qWaitForWindowExposed(&intro()));
}

void IntroductionTest::cleanup()
{
    QCOMPARE(closeLeftoverWindows(), 1); // the main frame that holds the introduction
    QVERIFY(!IsLoaded<frmIntroduction>());
}

void IntroductionTest::opensOnTheFirstPageWithTheBook()
{
    QCOMPARE(intro().windowTitle(), QString("Introduction"));
    QCOMPARE(intro().CurrentUnit(), int16_t(1));
    QCOMPARE(intro().CurrentPage(), int16_t(1));
    QCOMPARE(box("txtUnit")->text(), QString("1"));
    QCOMPARE(box("txtPage")->text(), QString("1"));
    QVERIFY(isBlue(box("txtUnit")) && isBlue(box("txtPage")));
    QCOMPARE(paneText(), QString("Unit:1 , Page:1"));
    const IntroductionBook& book = intro().Book();
    int pages = 0;
    for (int16_t unit = 1; unit <= 5; ++unit)
        pages += book.PagesInUnit(unit);
    QCOMPARE(pages, 21);
    QCOMPARE(book.PagesInUnit(2), int16_t(8));
    QCOMPARE(book.PageTitle(3, 4), QString());
    QCOMPARE(book.PageTitle(2, 6), QString("Unit:2 , Page:6"));
}

void IntroductionTest::arrowButtonsWalkTheBookAndStopAtItsEnds()
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
    for (const Move& move : moves) {
        goTo(move.fromUnit, move.fromPage);
        button(move.index)->click();
        const QString where = QString("from %1/%2 by %3").arg(move.fromUnit).arg(move.fromPage).arg(move.index);
        QVERIFY2(intro().CurrentUnit() == move.toUnit && intro().CurrentPage() == move.toPage, qPrintable(where));
        QCOMPARE(box("txtUnit")->text(), QString::number(move.toUnit));
        QCOMPARE(box("txtPage")->text(), QString::number(move.toPage));
    }
    goTo(4, 2);
    QCOMPARE(paneText(), QString("Unit:4 , Page:2"));
    QCOMPARE(answerer.count(), 0);
}

void IntroductionTest::everyMoveRestoresTheDefaultsButGoToKeepsThem()
{
    CollisionSetup& setup = CollisionSetup::global();
    FluidParameters& fluid = FluidParameters::shared();
    setup.Mass[1] = 3;
    fluid.FluidRows = 2;
    button(6)->click();
    QCOMPARE(setup.Mass[1], int16_t(3));
    QCOMPARE(fluid.FluidRows, int16_t(2));
    button(3)->click();
    QCOMPARE(setup.Mass[1], int16_t(10));
    QCOMPARE(fluid.FluidRows, int16_t(6));
    // A button that cannot move does nothing at all.
    setup.Mass[1] = 3;
    goTo(1, 1);
    button(1)->click();
    QCOMPARE(setup.Mass[1], int16_t(3));
}

void IntroductionTest::typedNumbersAreCheckedAtEveryKeystroke()
{
    QLineEdit* unit = box("txtUnit");
    QLineEdit* page = box("txtPage");
    type(unit, "9");
    QVERIFY(isGrey(unit));
    QVERIFY(!button(6)->isEnabled());
    QCOMPARE(intro().CurrentUnit(), int16_t(1));
    type(unit, "2");
    QVERIFY(isBlue(unit));
    QVERIFY(button(6)->isEnabled());
    QCOMPARE(intro().CurrentUnit(), int16_t(2));
    // Typing moves the position at once: the arrows work from the typed place.
    type(page, "8");
    button(3)->click();
    QCOMPARE(intro().CurrentUnit(), int16_t(3));
    QCOMPARE(intro().CurrentPage(), int16_t(1));

    for (const char* refused : {"-1", "1.", "0", "a", ""}) {
        type(page, "1");
        type(page, refused);
        QVERIFY2(isGrey(page), refused);
        QVERIFY2(!button(6)->isEnabled(), refused);
    }
    type(page, "123");
    QCOMPARE(page->text(), QString("12"));
    QVERIFY(isGrey(page));
    type(page, "3");
    QVERIFY(isBlue(page));
    QVERIFY(button(6)->isEnabled());
}

void IntroductionTest::aUnitChangeLeavesAnOutOfRangePageAlone()
{
    QLineEdit* unit = box("txtUnit");
    QLineEdit* page = box("txtPage");
    type(unit, "2");
    type(page, "8");
    QVERIFY(isBlue(page) && button(6)->isEnabled());
    type(unit, "3");
    QVERIFY(isBlue(unit));
    QVERIFY(isBlue(page));
    QVERIFY(button(6)->isEnabled());
    button(6)->click();
    QCOMPARE(paneText(), QString());
    QVERIFY(!button(5)->isEnabled());
}

void IntroductionTest::collisionPagesShowTheirTextsAndCaptions()
{
    ModalAnswerer answerer;
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
    goTo(3, 3);
    QCOMPARE(frame->title(), QString("Experiment (Side view) / Graphs"));
    QCOMPARE(paneText(), QString("Unit:3 , Page:3"));
    QCOMPARE(answerer.count(), 0);
}

void IntroductionTest::simulationIsOfferedOnlyWithAnExperiment()
{
    ModalAnswerer answerer;
    QVERIFY(!button(5)->isEnabled());
    goTo(3, 2);
    QVERIFY(button(5)->isEnabled());
    goTo(2, 6);
    QVERIFY(button(5)->isEnabled());
    goTo(4, 1);
    QVERIFY(!button(5)->isEnabled());
    QVERIFY(!button(8)->isEnabled() && !button(9)->isEnabled());
}

void IntroductionTest::liquidPagesShowTheVesselAndTheirMolecules()
{
    goTo(2, 6);
    LiquidPage& liquid = intro().Liquid();
    ImageCanvas& canvas = intro().findChild<CanvasWidget*>("picIntroduction")->canvas();
    QVERIFY(canvas.hasPicture());
    QCOMPARE(liquid.LiquidLevel(), int16_t(2600));
    QVERIFY(liquid.PartitionVisible());
    QCOMPARE(intro().findChild<QGroupBox*>("fraDraw")->title(), QString());
    const LiquidMolecules& molecules = liquid.Molecules();
    QCOMPARE(molecules.MoleculeCount(), int16_t(30));
    // An even grid, the first index along x: 6 columns across, 5 rows down.
    QCOMPARE(molecules.Molecule(1).Xcoord(), 1000 + 0.5f * 2480 / 6);
    QCOMPARE(molecules.Molecule(1).Ycoord(), 2600 + 0.5f * 1825 / 5);
    QCOMPARE(molecules.Molecule(6).Xcoord(), 1000 + 1.5f * 2480 / 6);
    QCOMPARE(molecules.Molecule(1).radius(), int16_t(150));
    QCOMPARE(molecules.GroupRight(1), 2240.0f);
    // Each group shows in its own colour over the picture.
    for (int16_t k : {1, 30}) {
        const Particle& molecule = molecules.Molecule(k);
        const int32_t shown = canvas.pixelColor(int(canvas.toDeviceX(molecule.Xcoord())),
            int(canvas.toDeviceY(molecule.Ycoord())));
        QCOMPARE(shown, int32_t(FluidParameters::shared().FluidGroupColor[k == 1 ? 1 : 2]));
    }

    // A click on the picture takes the partition out; both groups get the vessel.
    QTest::mouseClick(intro().findChild<CanvasWidget*>("picIntroduction"), Qt::LeftButton, {}, QPoint(100, 200));
    QVERIFY(!liquid.PartitionVisible());
    QCOMPARE(molecules.GroupLeft(2), 1000.0f);
    QCOMPARE(molecules.GroupRight(1), 3480.0f);

    FluidParameters::shared().FluidRows = 2;
    FluidParameters::shared().FluidColumns = 3;
    button(6)->click();
    QCOMPARE(molecules.MoleculeCount(), int16_t(6));
    QVERIFY(liquid.PartitionVisible());
    button(3)->click();
    button(3)->click();
    QCOMPARE(intro().CurrentPage(), int16_t(8));
    QCOMPARE(liquid.LiquidLevel(), int16_t(2100));
    QCOMPARE(molecules.MoleculeCount(), int16_t(30));
    QCOMPARE(molecules.Molecule(1).radius(), int16_t(50));
}

void IntroductionTest::aLiquidRunRedrawsUntilFinish()
{
    goTo(2, 8);
    RunControl& run = intro().Run();
    button(5)->click();
    QCOMPARE(button(5)->text(), QString("Finish"));
    QVERIFY(button(5)->isEnabled());
    QVERIFY(run.Timer1().isActive());
    for (int i = 1; i <= 4; ++i)
        QVERIFY(!button(i)->isEnabled());
    QVERIFY(!button(6)->isEnabled() && !button(7)->isEnabled());

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
        QVERIFY((x < 2240 + 40) == (k <= 15));
    }

    button(5)->click();
    QCOMPARE(button(5)->text(), QString("Simulation"));
    QVERIFY(!run.Timer1().isActive());
    QVERIFY(!button(5)->isEnabled() && !button(8)->isEnabled() && !button(9)->isEnabled());
    QVERIFY(button(1)->isEnabled() && button(7)->isEnabled());
}

void IntroductionTest::aMissingPictureIsReportedInTheStatusLine()
{
    HiddenPicture hidden("pot_t1.bmp");
    goTo(2, 8);
    ImageCanvas& canvas = intro().findChild<CanvasWidget*>("picIntroduction")->canvas();
    QVERIFY(!canvas.hasPicture());
    QVERIFY(Form<MDIMain>().statusLine().contains("pot_t1.bmp"));
    QCOMPARE(intro().Liquid().Molecules().MoleculeCount(), int16_t(30));
    QCOMPARE(canvas.pixelColor(2240 / 15, 3000 / 15), 0);
}

void IntroductionTest::hintsFollowTheControls()
{
    auto hintOf = [](QWidget* control) {
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(control, &enter);
        return Form<MDIMain>().statusLine();
    };
    QCOMPARE(hintOf(box("txtUnit")), QString("select unit"));
    QCOMPARE(hintOf(box("txtPage")), QString("Select page"));
    QCOMPARE(hintOf(intro().findChild<QWidget*>("picIntroduction")), QString("Visualisation"));
    QCOMPARE(hintOf(button(6)), QString("Go to Unit and/or Page"));
    QCOMPARE(hintOf(button(5)), QString("Simulation of phenomenon"));
    QCOMPARE(hintOf(button(9)), QString("Activate step by step simulation"));
    QTest::mouseClick(intro().findChild<QWidget*>("lblPage"), Qt::LeftButton);
    QCOMPARE(Form<MDIMain>().statusLine(), QString("Select Page"));
    button(0)->click();
    QCOMPARE(Form<MDIMain>().statusLine(), QString("The Floatrixon - A modern Greek game"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!IsLoaded<frmIntroduction>());
}

QTEST_MAIN(IntroductionTest)
#include "tst_introduction.moc"
