#include "MDIMain.h"

#include "Forms.h"
#include "GlobDef.h"
#include "widgets/HandlerGuard.h"
#include "widgets/KeyboardAccess.h"
#include "widgets/ScreenFit.h"

#include "about/frmIdentify.h"
#include "core/Twips.h"
#include "introduction/frmIntroduction.h"
#include "macroview/frmMacroView.h"
#include "microview/frmMicroView.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMoveEvent>
#include <QShowEvent>
#include <QVBoxLayout>

namespace {
constexpr int StatusLineHeight = 255;
}

MDIMain::MDIMain()
{
    setObjectName("MDIMain");
    setWindowTitle(tr("Ludophys - The Floatrixon (Floatrix)"));
    resize(800, 600);

    auto* central = new QWidget(this);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_mdiArea = new QMdiArea(central);
    m_mdiArea->setObjectName("mdiArea");
    layout->addWidget(m_mdiArea, 1);
    // A frame made smaller than its views (on a small screen) scrolls to them.
    m_mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    buildStatusLine(central);
    layout->addWidget(picStatusLine);
    setCentralWidget(central);
    buildMenus();
    buildKeyboard();
}

void MDIMain::buildStatusLine(QWidget* parent)
{
    picStatusLine = new QWidget(parent);
    picStatusLine->setObjectName("picStatusLine");
    picStatusLine->setFixedHeight(Twips::toPixels(StatusLineHeight));
    picStatusLine->setAutoFillBackground(true);
    picStatusLine->installEventFilter(this);
    lblStatusLine = new QLabel(picStatusLine);
    lblStatusLine->setObjectName("lblStatusLine");
    lblStatusLine->setGeometry(0, 0, 0, Twips::toPixels(StatusLineHeight));
    lblStatusLine->setIndent(4);
}

QAction* MDIMain::addItem(QMenu* menu, const QString& name, int index, const QString& caption)
{
    QAction* item = caption == "-" ? menu->addSeparator() : menu->addAction(caption);
    item->setObjectName(QString("%1(%2)").arg(name).arg(index));
    return item;
}

void MDIMain::buildMenus()
{
    mnuContents = menuBar()->addMenu(tr("Contents"));
    mnuContents->setObjectName("mnuContents");
    const QStringList contents = {tr("Introduction"), tr("Macroscopic View"), tr("Microscopic View"), "-", tr("Exit")};
    for (int i = 0; i < int(contents.size()); ++i) {
        mnuContentsItem[i] = addItem(mnuContents, "mnuContentsItem", i, contents[i]);
        connect(mnuContentsItem[i], &QAction::triggered, this, [this, i] { mnuContentsItem_Click(i); });
    }
    mnuOptions = menuBar()->addMenu(tr("Options"));
    mnuOptions->setObjectName("mnuOptions");
    mnuHelp = menuBar()->addMenu(tr("Help"));
    mnuHelp->setObjectName("mnuHelp");
    const QStringList help = {tr("Contents"), tr("Search for..."), "-", tr("About...")};
    for (int i = 0; i < int(help.size()); ++i) {
        mnuHelpItem[i] = addItem(mnuHelp, "mnuHelpItem", i, help[i]);
        connect(mnuHelpItem[i], &QAction::triggered, this, [this, i] { mnuHelpItem_Click(i); });
    }
}

void MDIMain::buildKeyboard()
{
    KeyboardAccess::addMnemonics(menuBar());
    // Ctrl+Q is "Exit", with its question; Ctrl+W closes the active view as its
    // close box does.
    mnuContentsItem[4]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    // A child window's own menu closes it with Ctrl+W where the desktop says so;
    // a second shortcut there would make the key ambiguous and do nothing.
    const QKeySequence ctrlW(Qt::CTRL | Qt::Key_W);
    if (!QKeySequence::keyBindings(QKeySequence::Close).contains(ctrlW)) {
        auto* closeView = new QAction(this);
        closeView->setObjectName("actCloseView");
        closeView->setShortcut(ctrlW);
        addAction(closeView);
        connect(closeView, &QAction::triggered, m_mdiArea, &QMdiArea::closeActiveSubWindow);
    }
    KeyboardAccess::name(m_mdiArea, tr("Open views"));
}

void MDIMain::mnuContentsItem_Click(int Index)
{
    RunGuarded([this, Index] {
        switch (Index) {
        case IntroductionItem:
            ShowChild(&Form<frmIntroduction>());
            break;
        case MacroViewItem:
            ShowChild(&Form<frmMacroView>());
            break;
        case MicroViewItem:
            ShowChild(&Form<frmMicroView>());
            break;
        case ExitItem:
            close();
            break;
        default:
            break;
        }
    });
}

void MDIMain::mnuHelpItem_Click(int Index)
{
    RunGuarded([Index] {
        switch (Index) {
        case HelpContentsItem:
        case SearchItem:
            ShowNotImplemented();
            break;
        case AboutItem:
            Form<frmIdentify>().ShowAbout();
            break;
        default:
            break;
        }
    });
}

void MDIMain::ShowChild(QWidget* form)
{
    auto* frame = qobject_cast<QMdiSubWindow*>(form->parentWidget());
    if (!frame) {
        frame = m_mdiArea->addSubWindow(form);
        frame->setAttribute(Qt::WA_DeleteOnClose);
        frame->setWindowIcon(form->windowIcon());
        frame->adjustSize();
    }
    frame->show();
    frame->raise();
    m_mdiArea->setActiveSubWindow(frame);
}

QString MDIMain::statusLine() const
{
    return lblStatusLine->text();
}

void MDIMain::setStatusLine(const QString& text)
{
    lblStatusLine->setText(text);
}

void MDIMain::picStatusLine_Resize()
{
    lblStatusLine->resize(picStatusLine->width(), lblStatusLine->height());
}

bool MDIMain::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == picStatusLine && event->type() == QEvent::Resize)
        picStatusLine_Resize();
    return QMainWindow::eventFilter(watched, event);
}

bool MDIMain::closeChildWindows()
{
    // Each child runs its own unload handling and is released at once, so that
    // nothing of it is left when the exit question comes.
    for (QMdiSubWindow* frame : m_mdiArea->subWindowList()) {
        if (!frame->close())
            return false;
        delete frame;
    }
    return true;
}

void MDIMain::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    // The frame lies wholly on its screen however far the program is scaled: at
    // once, and again when the desktop has put its title bar and borders round it.
    ScreenFit::fitToScreen(this);
    m_framedFit = false;
}

void MDIMain::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    // The desktop's frame shows in the frame geometry once the desktop has placed
    // the window; fitted once then, the frame is the user's to move.
    if (!m_framedFit && frameGeometry() != geometry()) {
        m_framedFit = true;
        ScreenFit::fitToScreen(this);
    }
}

void MDIMain::closeEvent(QCloseEvent* event)
{
    // The children go first, each with its own unload handling; only then is the
    // learner asked, so No leaves an empty frame.
    if (!closeChildWindows() || !ConfirmExit()) {
        event->ignore();
        return;
    }
    event->accept();
    EndProgram();
}
