#include "FrameViews.h"
#include "ModalAnswerer.h"
#include "TextChecks.h"
#include "WindowChecks.h"

#include "macroview/frmMacroView.h"
#include "microview/ForceStatistics.h"
#include "microview/frmMicroView.h"
#include "microview/TickDriver.h"
#include "shell/Forms.h"
#include "shell/GlobDef.h"
#include "shell/MDIMain.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

class tst_texts_shell : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::installTranslator(&m_translator); }
    void cleanupTestCase() { QCoreApplication::removeTranslator(&m_translator); }

    void init()
    {
        ShowMainWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&Form<MDIMain>()));
    }

    void cleanup() { QCOMPARE(closeLeftoverWindows(), 1); }

    // The frame's title, menus and items, and its two messages, come from the catalogue.
    void mainFrameMenusAndMessagesAreTranslated()
    {
        MDIMain& frame = Form<MDIMain>();
        QStringList texts = {frame.windowTitle()};
        for (QAction* menu : frame.menuBar()->actions())
            texts << menu->text();
        for (const char* name : {"mnuContents", "mnuHelp"})
            for (QAction* item : frame.findChild<QMenu*>(name)->actions())
                texts << (item->isSeparator() ? QString() : item->text());
        QStringList unbracketed;
        for (const QString& text : texts)
            if (!isBracketed(text))
                unbracketed << text;
        QCOMPARE(unbracketed, QStringList());
        QCOMPARE(texts.size(), 13);

        {
            ModalAnswerer sorry(QMessageBox::Ok);
            frame.mnuHelpItem_Click(MDIMain::SearchItem);
            QCOMPARE(sorry.count(), 1);
            QCOMPARE(sorry.title(), QString("[Floatrix]"));
            QCOMPARE(sorry.text(), QString("[Sorry, feature not yet implemented]"));
        }
        ModalAnswerer no(QMessageBox::No);
        frame.mnuContentsItem_Click(MDIMain::ExitItem);
        QCOMPARE(no.count(), 1);
        QCOMPARE(no.title(), QString("[Floatrix]"));
        QCOMPARE(no.text(), QString("[Are you sure you want to exit ?]"));
        QVERIFY(frame.isVisible());
    }

    // Every caption, frame title, label, tool tip and hint of a view comes from the
    // catalogue; the movie view is shown without its film, so its message shows.
    void viewsShowOnlyTranslatedTexts_data()
    {
        QTest::addColumn<int>("item");
        QTest::newRow("micro view") << int(MDIMain::MicroViewItem);
        QTest::newRow("movie view") << int(MDIMain::MacroViewItem);
    }

    void viewsShowOnlyTranslatedTexts()
    {
        QFETCH(int, item);
        QTemporaryDir noFilm;
        frmMacroView::setMovieFolder(noFilm.path());
        QWidget* view = openView(MDIMain::ContentsItem(item));
        frmMacroView::setMovieFolder(QString());
        QCOMPARE(unbracketedTexts(*view, frameHintOf), QStringList());
        if (auto* movie = qobject_cast<frmMacroView*>(view))
            QVERIFY2(movie->movieMessage().startsWith("[The film cannot be shown."), qPrintable(movie->movieMessage()));
    }

    // Simulate and Pause follow the run, not the captions: translated, they start and
    // stop it as before, and the force labels a tick writes are translated too.
    void microViewRunsWithTranslatedCaptions()
    {
        auto* view = static_cast<frmMicroView*>(openView(MDIMain::MicroViewItem));
        auto* run = view->findChild<QPushButton*>("cmdCommand(1)");
        QCOMPARE(run->text(), QString("[Simulate]"));
        run->click();
        QCOMPARE(run->text(), QString("[Pause]"));
        QCOMPARE(run->toolTip(), QString("[Click to pause simulation]"));
        QVERIFY(view->simulationTimer().Enabled());
        QTRY_VERIFY(view->statistics().TickCount() > 2);
        run->click();
        QVERIFY(!view->simulationTimer().Enabled());
        QCOMPARE(run->text(), QString("[Simulate]"));
        QCOMPARE(unbracketedTexts(*view, frameHintOf), QStringList());
        QVERIFY2(view->findChild<QLabel*>("lblMeanFy")->text().startsWith("[<Ftop> = "),
            qPrintable(view->findChild<QLabel*>("lblMeanFy")->text()));
        run->click();
        QVERIFY(view->simulationTimer().Enabled());
        view->findChild<QPushButton*>("cmdCommand(0)")->click();
        QVERIFY(Form<MDIMain>().mdiArea()->subWindowList().isEmpty());
    }

    // The About box: its caption, the maker's lines, the memory line, "&OK" and the
    // hints.
    void aboutBoxTextsAreTranslated()
    {
        QStringList unbracketed = {"not shown"};
        QString memory;
        ModalAnswerer answerer([&](QWidget* modal) {
            unbracketed = unbracketedTexts(*modal, frameHintOf);
            memory = modal->findChild<QLabel*>("lblInfo")->text();
            modal->findChild<QPushButton*>("cmdClose")->click();
        });
        Form<MDIMain>().mnuHelpItem_Click(MDIMain::AboutItem);
        QCOMPARE(answerer.count(), 1);
        QCOMPARE(unbracketed, QStringList());
        QVERIFY2(memory.startsWith("[Total physical memory: ") && memory.contains("KB\nAvailable physical memory: "),
            qPrintable(memory));
    }

private:
    BracketingTranslator m_translator;
};

QTEST_MAIN(tst_texts_shell)
#include "tst_texts_shell.moc"
