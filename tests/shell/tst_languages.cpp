#include "FrameViews.h"
#include "ModalAnswerer.h"
#include "TextChecks.h"
#include "WindowChecks.h"

#include "introduction/frmIntroduction.h"
#include "introduction/RunControl.h"
#include "microview/ForceStatistics.h"
#include "microview/frmMicroView.h"
#include "microview/TickDriver.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"
#include "shell/ProgramLanguage.h"

#include <QAction>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <QtTest>

// The program in the language CTest chooses (FLOATRIX_TEST_LANGUAGE, "el" or "en"),
// with the catalogues built into it: every window speaks that language alone, and
// the run controls work under their translated captions.

namespace {

const bool inGreek = qgetenv("FLOATRIX_TEST_LANGUAGE") == "el";

QString says(const char* english, const char* greek)
{
    return QString::fromUtf8(inGreek ? greek : english);
}

// Words of Latin letters a Greek window may show: names, units, file kinds and the
// force symbols.
const QStringList latinInGreek = {"Ludophys", "LUDOPHYS", "Floatrix", "Floatrixon", "Monte", "Carlo", "PNG", "CSV",
    "Ctrl", "Shift", "kgr", "sec", "mtot", "Fleft", "Fright", "Ftop", "Fhorizontal", "Fvertical", "floatrixo", "avi"};

// The texts of the other language: a Greek letter in English (but the υ the
// formulas write velocities with), or an English word in Greek.
QStringList foreignTexts(const QStringList& texts)
{
    static const QRegularExpression greekLetter(QStringLiteral("[\u0370-\u03c4\u03c6-\u03ff\u1f00-\u1fff]"));
    static const QRegularExpression latinWord(QStringLiteral("[A-Za-z]{3,}"));
    QStringList foreign;
    for (const QString& shown : texts) {
        // A table of figures is read for its words, not its markup.
        const QString text = Qt::mightBeRichText(shown) ? QTextDocumentFragment::fromHtml(shown).toPlainText() : shown;
        if (!inGreek && text.contains(greekLetter))
            foreign << shown;
        if (!inGreek)
            continue;
        for (const auto& word : latinWord.globalMatch(text))
            if (!latinInGreek.contains(word.captured()))
                foreign << shown;
    }
    foreign.removeDuplicates();
    return foreign;
}

// Everything a window shows and a screen reader reads out.
QStringList foreignTextsOf(QWidget& window)
{
    QStringList texts = shownTexts(window, frameHintOf);
    for (auto* control : window.findChildren<QWidget*>())
        texts << control->accessibleName() << control->accessibleDescription();
    return foreignTexts(texts);
}

QPushButton* command(QWidget& window, int index)
{
    return window.findChild<QPushButton*>(QString("cmdCommand(%1)").arg(index));
}

void goTo(frmIntroduction& book, int unit, int page)
{
    for (auto [name, number] : {std::pair{"txtUnit", unit}, {"txtPage", page}}) {
        auto* box = book.findChild<QLineEdit*>(name);
        box->selectAll();
        QTest::keyClicks(box, QString::number(number));
    }
    command(book, frmIntroduction::GoToButton)->click();
}

// Opens the page's "Options" dialog and answers it with "Cancel"; returns the
// dialog's title and the texts in it of the other language.
std::pair<QString, QStringList> optionsDialogOf(frmIntroduction& book)
{
    std::pair<QString, QStringList> seen;
    ModalAnswerer answerer([&](QWidget* dialog) {
        seen = {dialog->windowTitle(), foreignTextsOf(*dialog)};
        command(*dialog, 1)->click();
    });
    command(book, frmIntroduction::OptionsButton)->click();
    return seen;
}

} // namespace

// Fails with the foreign texts listed.
#define QVERIFY_NONE_FOREIGN(texts)                                                                                    \
    do {                                                                                                               \
        const QStringList foreign = (texts);                                                                           \
        QVERIFY2(foreign.isEmpty(), qPrintable(foreign.join(" | ")));                                                  \
    } while (false)

class tst_languages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ProgramLanguage::load(inGreek ? "el" : "en")); }

    void init()
    {
        ShowMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&Form<MDIMain>()));
    }

    void cleanup() { QCOMPARE(closeLeftoverWindows(), 1); }

    void theMainFrameSpeaksTheLanguage()
    {
        MDIMain& frame = Form<MDIMain>();
        QCOMPARE(
            frame.windowTitle(), says("Ludophys - The Floatrixon (Floatrix)", "Ludophys - Το Floatrixon (Floatrix)"));
        QStringList menus;
        for (QAction* menu : frame.menuBar()->actions())
            menus << menu->text().remove('&');
        QCOMPARE(menus.first(), says("Contents", "Περιεχόμενα"));
        QVERIFY_NONE_FOREIGN(foreignTexts(menus));
        // The question and its buttons: the toolkit has no Greek captions of its own.
        QString question;
        QStringList buttons;
        ModalAnswerer no([&](QWidget* modal) {
            auto* box = static_cast<QMessageBox*>(modal);
            question = box->text();
            for (auto which : {QMessageBox::Yes, QMessageBox::No})
                buttons << box->button(which)->text().remove('&');
            box->button(QMessageBox::No)->click();
        });
        frame.mnuContentsItem_Click(MDIMain::ExitItem);
        QCOMPARE(question, says("Are you sure you want to exit ?", "Είστε βέβαιοι ότι θέλετε να βγείτε;"));
        QCOMPARE(buttons.join(" "), says("Yes No", "Ναι Όχι"));
        QVERIFY(frame.isVisible());
    }

    // Simulate and Pause start and stop the gas under their translated captions.
    void theMicroViewRunsInTheLanguage()
    {
        auto* view = static_cast<frmMicroView*>(openView(MDIMain::MicroViewItem));
        QCOMPARE(view->windowTitle(), says("Microscopic View of Gas", "Μικροσκοπική Όψη Αερίου"));
        QPushButton* run = command(*view, 1);
        run->click();
        QCOMPARE(run->text(), says("Pause", "Παύση"));
        QTRY_VERIFY(view->statistics().TickCount() > 2);
        run->click();
        QVERIFY(!view->simulationTimer().Enabled());
        QCOMPARE(run->text(), says("Simulate", "Προσομοίωση"));
        QVERIFY_NONE_FOREIGN(foreignTextsOf(*view));
    }

    // The default collision runs on unit 3 page 2 under translated run buttons, and
    // both pages' dialogs speak the language.
    void theIntroductionAndItsDialogsSpeakTheLanguage()
    {
        auto* book = static_cast<frmIntroduction*>(openView(MDIMain::IntroductionItem));
        goTo(*book, 3, 2);
        QCOMPARE(command(*book, frmIntroduction::GoToButton)->text(), says("Go To", "Μετάβαση"));
        command(*book, frmIntroduction::SimulationButton)->click();
        QVERIFY(book->Run().Timer1().isActive());
        QCOMPARE(command(*book, frmIntroduction::PauseButton)->text(), says("Pause", "Παύση"));
        command(*book, frmIntroduction::PauseButton)->click();
        QVERIFY(!book->Run().Timer1().isActive());
        QVERIFY_NONE_FOREIGN(foreignTextsOf(*book));
        command(*book, frmIntroduction::PauseButton)->click();
        QTRY_VERIFY_WITH_TIMEOUT(book->Run().RunCompleted(), 30000);

        auto [collisionTitle, collisionForeign] = optionsDialogOf(*book);
        QCOMPARE(collisionTitle, says("Parameters of the Elastic Collision", "Παράμετροι Ελαστικής Κρούσης"));
        QVERIFY_NONE_FOREIGN(collisionForeign);

        goTo(*book, 2, 6);
        QVERIFY_NONE_FOREIGN(foreignTextsOf(*book));
        auto [fluidTitle, fluidForeign] = optionsDialogOf(*book);
        QCOMPARE(fluidTitle, says("Parameters of Gas Molecules", "Παράμετροι μορίων αερίου"));
        QVERIFY_NONE_FOREIGN(fluidForeign);
    }

    void theMovieViewAndTheAboutBoxSpeakTheLanguage()
    {
        QWidget* movie = openView(MDIMain::MacroViewItem);
        QCOMPARE(movie->windowTitle(), says("Macroscopic View", "Μακροσκοπική Όψη"));
        QVERIFY_NONE_FOREIGN(foreignTextsOf(*movie));

        QStringList aboutForeign = {"not shown"};
        ModalAnswerer answerer([&](QWidget* about) {
            aboutForeign = foreignTextsOf(*about);
            about->findChild<QPushButton*>("cmdClose")->click();
        });
        Form<MDIMain>().mnuHelpItem_Click(MDIMain::AboutItem);
        QVERIFY_NONE_FOREIGN(aboutForeign);
    }
};

QTEST_MAIN(tst_languages)
#include "tst_languages.moc"
