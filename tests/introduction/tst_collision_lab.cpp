#include "ModalAnswerer.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "core/CsvTable.h"
#include "core/ScopedRandomSequence.h"
#include "introduction/RunControl.h"
#include "introduction/frmIntroduction.h"
#include "microview/frmMicroView.h"
#include "model/LiquidMolecules.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "widgets/CanvasWidget.h"
#include "widgets/FileExport.h"
#include "widgets/OptionsWidgets.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

frmIntroduction& intro()
{
    return Form<frmIntroduction>();
}

template <class T = QWidget>
T* control(const QString& name)
{
    return intro().findChild<T*>(name);
}

QPushButton* button(int index)
{
    return control<QPushButton>(OptionsWidgets::indexedName("cmdCommand", index));
}

void goTo(int unit, int page)
{
    for (const auto& [name, value] : {std::pair{"txtUnit", unit}, std::pair{"txtPage", page}}) {
        auto* box = control<QLineEdit>(name);
        box->selectAll();
        QTest::keyClicks(box, QString::number(value));
    }
    button(6)->click();
}

// The parameters dialog answered as a learner fills it: boxes typed, switches
// clicked, then "Ok". Returns the texts of the message boxes that followed.
QStringList setOptions(const QList<std::pair<QString, QString>>& typed, const QStringList& clicked)
{
    QStringList messages;
    ModalAnswerer answerer([&](QWidget* dialog) {
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            messages << box->text();
            box->button(QMessageBox::Ok)->click();
            return;
        }
        for (const auto& [name, text] : typed) {
            auto* box = dialog->findChild<QLineEdit*>(name);
            box->selectAll();
            QTest::keyClicks(box, text);
        }
        for (const QString& name : clicked)
            QTest::mouseClick(dialog->findChild<QWidget*>(name), Qt::LeftButton, {}, QPoint(8, 8));
        dialog->findChild<QPushButton*>("cmdCommand(0)")->click();
    });
    button(7)->click();
    return messages;
}

void runToTheEnd()
{
    button(5)->click();
    RunControl& run = intro().Run();
    for (int ticks = 0; run.Timer1().isActive() && ticks < 1000; ++ticks)
        run.Timer1_Timer();
    QVERIFY(run.RunCompleted());
}

int pixelsOf(const QImage& image, int32_t colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == Rgb::toQColor(colour).rgb();
    return count;
}

QString figures()
{
    return control<QLabel>("lblResults")->text();
}

// Answers the save dialog with a file of the folder.
ModalAnswerer* saveAs(const QString& path)
{
    return new ModalAnswerer([path](QWidget* modal) {
        auto* dialog = qobject_cast<QFileDialog*>(modal);
        QVERIFY(dialog);
        dialog->selectFile(path);
        dialog->findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Save)->click();
    });
}

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

} // namespace

class CollisionLabTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ShowMainWindow();
        Form<MDIMain>().ShowChild(&intro());
        QVERIFY(QTest::qWaitForWindowExposed(&intro()));
    }

    void cleanup()
    {
        Unload<frmMicroView>();
        QCOMPARE(closeLeftoverWindows(), 1);
        QVERIFY(!IsLoaded<frmIntroduction>());
    }

    void plasticRunWithMomentaMergesTheVelocitiesAndShowsTheFigures()
    {
        goTo(3, 2);
        QVERIFY(control("cmdResults")->isVisible());
        setOptions({}, {"chkPlastic", "chkShowMomenta"});
        QVERIFY(button(5)->isEnabled());
        const int narrow = intro().width();
        control<QPushButton>("cmdResults")->click();
        QVERIFY(control("fraResults")->isVisible());
        QVERIFY(intro().width() > narrow);
        // The picture stays where it was and nothing covers it.
        QVERIFY(control("fraResults")->x() >= control("fraDraw")->geometry().right());
        QVERIFY(figures().contains("Run the experiment"));

        runToTheEnd();
        // Both velocity curves end at the common 70 m/sec.
        CollisionGraphs& graphs = intro().Experiment().Graphs();
        QCOMPARE(graphs.GraphQuantity[2], int16_t(2));
        QCOMPARE(graphs.GraphLastValue[2][1], graphs.GraphLastValue[2][2]);
        QVERIFY(std::fabs(graphs.GraphLastValue[2][1] - 70) < 1e-3);
        // The momentum arrows in their violet, beside the bodies.
        QVERIFY(pixelsOf(control<CanvasWidget>("picIntroduction")->canvas().image(), Rgb::RGB(128, 0, 160)) > 0);
        // 1750 kg·m/sec before and after; 68750 J fall by 7500 J.
        for (const char* expected : {"1750.0", "68750.0", "61250.0", "-7500.0", "-300.0", "300.0"})
            QVERIFY2(figures().contains(expected), expected);
        QVERIFY(!figures().contains("py"));

        // Another page closes the panel and the window shrinks back.
        goTo(4, 1);
        QVERIFY(control("cmdResults")->isHidden() && control("fraResults")->isHidden());
        QCOMPARE(intro().width(), narrow);
    }

    void obliqueRunFromAboveDeflectsBothBodies()
    {
        goTo(3, 1);
        // Equal x velocities meeting in y: the central line refuses them.
        const QStringList refusal = setOptions({{"txtm(1)", "10"}, {"txtx(1)", "10"}, {"txty(1)", "100"},
                                                 {"txtux(0)", "20"}, {"txtux(1)", "20"}, {"txtuy(1)", "-50"}},
                                                {});
        QCOMPARE(refusal.size(), 1);
        QVERIFY(refusal[0].contains("x components of velocity are equal"));
        QVERIFY(!button(5)->isEnabled());
        QCOMPARE(setOptions({}, {"OptType1(1)"}), QStringList());
        QVERIFY(button(5)->isEnabled());
        CollisionScene& scene = intro().Experiment().Scene();
        QCOMPARE(scene.ScaleXFactor, -scene.ScaleYFactor);
        control<QPushButton>("cmdResults")->click();
        runToTheEnd();
        // Worked by hand: the line of centres at 60 degrees at the contact.
        const CollisionState& state = intro().Experiment().State();
        QVERIFY(std::fabs(state.FinalVx[1] - -1.650635f) < 1e-3 && std::fabs(state.FinalVy[2] - -12.5f) < 1e-3);
        for (const char* expected : {"py", "400.0", "-500.0", "-375.0", "-125.0", "14500.0"})
            QVERIFY2(figures().contains(expected), expected);
    }

    void picturesAndRunsAreSavedAndReadBack()
    {
        QTemporaryDir folder;
        goTo(3, 2);
        control<QPushButton>("cmdResults")->click();
        QVERIFY(!control("cmdSaveData")->isEnabled()); // nothing run yet
        runToTheEnd();
        const QString csv = folder.filePath("run.csv");
        std::unique_ptr<ModalAnswerer> answer(saveAs(csv));
        QTest::keyClick(button(7), Qt::Key_S, Qt::ControlModifier);
        QTRY_COMPARE(answer->count(), 1);
        const QStringList lines = linesOf(csv);
        QCOMPARE(lines.value(0), QString("t,x1,v1,F1,x2,v2,F2"));
        QVERIFY(lines.size() == 102 || lines.size() == 103);
        QCOMPARE(lines.value(1), QString("0,0,100,0,100,50,0"));
        const QStringList contact = lines.value(51).split(',');
        QVERIFY(std::fabs(contact.value(0).toDouble() - 1.6) < 1e-5 && std::fabs(contact.value(1).toDouble() - 160) < 1e-3);
        QCOMPARE(contact.value(3), QString("-1e+09")); // the linear model's spike at the contact
        QVERIFY(lines.last().contains(",324"));

        const QString png = folder.filePath("run.png");
        answer.reset(saveAs(png));
        control<QPushButton>("cmdSavePicture")->click();
        QCOMPARE(QImage(png).convertToFormat(QImage::Format_RGB32),
                 control<CanvasWidget>("picIntroduction")->canvas().image().convertToFormat(QImage::Format_RGB32));
        answer.reset();

        // A write that fails says so and leaves everything else alone.
        ModalAnswerer failure;
        QVERIFY(!FileExport::WriteTable(intro().Experiment().Record().Table(), folder.filePath("none/run.csv")));
        QCOMPARE(failure.count(), 1);
        QCOMPARE(failure.title(), QString("Floatrix"));
        QVERIFY(failure.text().contains("run.csv"));
        QCOMPARE(linesOf(csv).size(), lines.size());
    }

    void microViewSavesItsWallForces()
    {
        QTemporaryDir folder;
        ScopedRandomSequence sequence(3);
        auto& view = Form<frmMicroView>();
        Form<MDIMain>().ShowChild(&view);
        for (int tick = 0; tick < 25; ++tick)
            view.SimulationTimer_Timer();
        const QString csv = folder.filePath("walls.csv");
        std::unique_ptr<ModalAnswerer> answer(saveAs(csv));
        view.findChild<QPushButton*>("cmdSaveData")->click();
        const QStringList lines = linesOf(csv);
        QCOMPARE(lines.value(0), QString("tick,Fleft,Fright,Ftop,<Fleft>,<Fright>,<Ftop>"));
        QCOMPARE(lines.size(), 26);
        const QStringList last = lines.last().split(',');
        QCOMPARE(last.value(0), QString("25"));
        QVERIFY(std::fabs(last.value(4).toDouble() - view.statistics().SumLeft() / 25) < 1e-4);

        const QString png = folder.filePath("walls.png");
        answer.reset(saveAs(png));
        view.activateWindow();
        view.setFocus();
        QTRY_VERIFY(QApplication::focusWidget() == &view);
        QTest::keyClick(&view, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(answer->count(), 1);
        QCOMPARE(QImage(png).size(), view.grab().toImage().size());
    }

    void liquidPageCountsEachColourInEachHalf()
    {
        ScopedRandomSequence sequence(5);
        goTo(2, 8);
        auto* counts = control<QPushButton>("cmdResults");
        QCOMPARE(counts->text(), QString("Counts"));
        counts->click();
        const LiquidMolecules& molecules = intro().Liquid().Molecules();
        const auto expected = [&] {
            const auto c = molecules.HalfCounts();
            return QString("%1</td><td align=right>%2").arg(c[0][0]).arg(c[0][1]);
        };
        QCOMPARE(molecules.HalfCounts()[0][1] + molecules.HalfCounts()[1][0], 0);
        QVERIFY(figures().contains(expected()));
        QTest::mouseClick(control("picIntroduction"), Qt::LeftButton);
        button(5)->click();
        for (int tick = 0; tick < 400; ++tick) {
            intro().Run().Timer1_Timer();
            QVERIFY(figures().contains(expected()));
        }
        button(5)->click();
        const auto mixed = molecules.HalfCounts();
        QVERIFY(mixed[0][1] + mixed[1][0] > 0); // the colours have begun to mix
    }
};

QTEST_MAIN(CollisionLabTest)
#include "tst_collision_lab.moc"
