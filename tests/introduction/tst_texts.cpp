#include "ModalAnswerer.h"
#include "TextChecks.h"
#include "TestWindow.h"
#include "WindowChecks.h"

#include "canvas/Rgb.h"
#include "introduction/frmCollisionOptions.h"
#include "introduction/frmIntroduction.h"
#include "introduction/RunControl.h"
#include "microview/frmLGOptions.h"
#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"
#include "widgets/OptionsWidgets.h"
#include "widgets/StatusLine.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

namespace {

QString lastStatus;

// The hint a control writes into the status line when the mouse comes over it.
QString hintOf(QWidget* control)
{
    lastStatus.clear();
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(control, &enter);
    return lastStatus;
}

// Every text a window shows: its caption, and the captions, titles, texts and
// status-line hints of its controls. Typed numbers are the learner's, not the
// program's.
QStringList untranslatedTexts(QWidget& window)
{
    QStringList texts = {window.windowTitle(), hintOf(&window)};
    for (auto* button : window.findChildren<QAbstractButton*>())
        texts << button->text() << hintOf(button);
    // A table of figures is made of translated headers and numbers; its own text is
    // no catalogue entry.
    for (auto* label : window.findChildren<QLabel*>())
        texts << (label->textFormat() == Qt::RichText ? QString() : label->text()) << hintOf(label);
    for (auto* frame : window.findChildren<QGroupBox*>())
        texts << frame->title() << hintOf(frame);
    for (auto* box : window.findChildren<QLineEdit*>())
        texts << hintOf(box);
    for (auto* pane : window.findChildren<QPlainTextEdit*>())
        texts << pane->toPlainText();
    QStringList untranslated;
    for (const QString& text : texts)
        if (!isBracketed(text))
            untranslated << text;
    return untranslated;
}

CollisionSetup setup;
FluidParameters fluid;

TestWindow<frmIntroduction>& introduction()
{
    static TestWindow<frmIntroduction> window([] { return new frmIntroduction(setup, fluid); });
    return window;
}

QPushButton* button(int index)
{
    return introduction().get().findChild<QPushButton*>(OptionsWidgets::indexedName("cmdCommand", index));
}

void goTo(int unit, int page)
{
    for (auto [name, number] : {std::pair{"txtUnit", unit}, {"txtPage", page}}) {
        auto* box = introduction().get().findChild<QLineEdit*>(name);
        box->selectAll();
        QTest::keyClicks(box, QString::number(number));
    }
    button(frmIntroduction::GoToButton)->click();
}

} // namespace

class tst_texts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::installTranslator(&m_translator);
        StatusLine::setTarget([](const QString& text) { lastStatus = text; });
    }

    void cleanupTestCase()
    {
        QCoreApplication::removeTranslator(&m_translator);
        StatusLine::setTarget({});
    }

    void cleanup()
    {
        introduction().unload();
        QCOMPARE(closeLeftoverWindows(), 0);
    }

    // With a catalogue loaded, every text of the introduction, its run buttons and
    // both parameter dialogs comes from it, and the run works as it does untranslated.
    void everyShownTextIsTranslated_data()
    {
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("dialog");
        QTest::newRow("title page") << 4 << 2 << QString();
        QTest::newRow("collision forms") << 3 << 1 << "frmCollisionOptions";
        QTest::newRow("experiment") << 3 << 2 << "frmCollisionOptions";
        QTest::newRow("first liquid page") << 2 << 6 << "frmLGOptions";
        QTest::newRow("second liquid page") << 2 << 8 << "frmLGOptions";
    }

    void everyShownTextIsTranslated()
    {
        QFETCH(int, unit);
        QFETCH(int, page);
        QFETCH(QString, dialog);
        frmIntroduction& window = introduction().get();
        window.show();
        goTo(unit, page);
        QCOMPARE(untranslatedTexts(window), QStringList());
        QCOMPARE(window.CurrentPage(), int16_t(page));

        // The run's states follow the clicks, not the captions.
        if (button(frmIntroduction::SimulationButton)->isEnabled()) {
            button(frmIntroduction::SimulationButton)->click();
            button(frmIntroduction::PauseButton)->click();
            QVERIFY(!window.Run().Timer1().isActive());
            button(frmIntroduction::StepButton)->click();
            QCOMPARE(untranslatedTexts(window), QStringList());
            QCOMPARE(window.Run().pauseState(), RunControl::PauseState::Next);
            button(frmIntroduction::StepButton)->click();
            QVERIFY(window.Run().Timer1().isActive());
            window.Run().StopSimulation();
        }

        QStringList dialogTexts;
        QString opened;
        ModalAnswerer answerer([&](QWidget* modal) {
            opened = modal->objectName();
            dialogTexts = untranslatedTexts(*modal);
            modal->findChild<QPushButton*>("cmdCommand(1)")->click();
        });
        button(frmIntroduction::OptionsButton)->click();
        QCOMPARE(opened, dialog);
        QCOMPARE(dialogTexts, QStringList());
    }

    // The collision check's message box, title and text, comes from the catalogue.
    void theCollisionCheckMessageIsTranslated()
    {
        introduction().get().show();
        ModalAnswerer answerer;
        setup.Ux[1] = -100;
        goTo(3, 2);
        setup.resetDefaults(Rgb::RGB(255, 255, 255));
        QCOMPARE(answerer.count(), 1);
        QCOMPARE(answerer.title(), QString("[Simulation Results]"));
        QVERIFY2(answerer.text().startsWith("[Attention!\r[Initial positions"), qPrintable(answerer.text()));
    }

private:
    BracketingTranslator m_translator;
};

QTEST_MAIN(tst_texts)
#include "tst_texts.moc"
