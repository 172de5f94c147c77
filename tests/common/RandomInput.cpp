#include "RandomInput.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QtTest>

#include <chrono>
#include <cstdio>
#include <mutex>
#include <thread>

namespace {

// How many turns of the event loop may pass with no window showing before the
// program counts as window-less, and in one modal window before it is left.
constexpr int WindowlessTurns = 200;
constexpr int TurnsBeforeEscape = 15;
constexpr int RecentEvents = 40;

// The watchdog reads the recent events from its own thread.
std::mutex recentLock;

bool showsAsWindow(const QWidget* window)
{
    const Qt::WindowType type = window->windowType();
    return window->isVisible() && type != Qt::Popup && type != Qt::ToolTip;
}

QString describe(const QWidget* widget)
{
    if (!widget)
        return QStringLiteral("(gone)");
    const QString name = widget->objectName().isEmpty() ? QString(widget->metaObject()->className())
                                                        : widget->objectName();
    const QWidget* window = widget->window();
    return window == widget ? name : window->objectName() + "/" + name;
}

// The child window's form a control sits in, or its top-level window.
const QWidget* viewOf(const QWidget* control)
{
    for (const QWidget* w = control; w; w = w->parentWidget())
        if (qobject_cast<const QMdiSubWindow*>(w->parentWidget()) || w->isWindow())
            return w;
    return control;
}

const QList<int>& keys()
{
    static const QList<int> all = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter,
        Qt::Key_Space, Qt::Key_Escape, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End, Qt::Key_Backspace, Qt::Key_Delete,
        Qt::Key_0, Qt::Key_1, Qt::Key_5, Qt::Key_9, Qt::Key_Minus, Qt::Key_Period, Qt::Key_A, Qt::Key_C,
        Qt::Key_F1};
    return all;
}

} // namespace

RandomInput::RandomInput(uint32_t seed, int events) : m_random(seed), m_events(events) {}

RandomInput::~RandomInput() = default;

void RandomInput::run(int hangSeconds)
{
    std::atomic<bool> finished{false};
    std::thread watchdog([&] {
        using Clock = std::chrono::steady_clock;
        int last = -1;
        Clock::time_point since = Clock::now();
        while (!finished) {
            std::this_thread::sleep_for(std::chrono::milliseconds(250));
            const int beat = m_heartbeat;
            if (beat != last) {
                last = beat;
                since = Clock::now();
            } else if (Clock::now() - since > std::chrono::seconds(hangSeconds)) {
                std::lock_guard<std::mutex> lock(recentLock);
                std::fprintf(stderr, "random input: the program hangs after %d events; the last ones:\n%s\n",
                    beat, qPrintable(m_recent.join('\n')));
                std::abort();
            }
        }
    });
    QTimer::singleShot(0, this, &RandomInput::step);
    while (m_sent < m_events && m_failure.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    finished = true;
    watchdog.join();
}

void RandomInput::step()
{
    if (m_sent >= m_events || !m_failure.isEmpty()) {
        windDown();
        return;
    }
    // The next event is due before this one goes: if this one opens a modal window,
    // the next runs inside the window's own event loop and answers it. A step that
    // an event of this one lets in while no modal window waits only passes its turn.
    QTimer::singleShot(0, this, &RandomInput::step);
    if (m_depth > 0 && !QApplication::activeModalWidget() && !QApplication::activePopupWidget())
        return;
    ++m_heartbeat;
    ++m_depth;
    ++m_sent;
    if (QWidget* popup = QApplication::activePopupWidget()) {
        note("Escape on a popup");
        QTest::keyClick(popup, Qt::Key_Escape);
    } else if (QWidget* modal = QApplication::activeModalWidget()) {
        answerModal(modal);
    } else if (QWidget* window = pickWindow()) {
        actOn(window);
    }
    checkSomethingShows();
    --m_depth;
}

// Once the events are all sent, modal windows still open are closed one by one so
// that their event loops, and the run, can end.
void RandomInput::windDown()
{
    QWidget* open = QApplication::activePopupWidget();
    if (!open)
        open = QApplication::activeModalWidget();
    if (!open)
        return;
    ++m_heartbeat;
    QTimer::singleShot(0, this, &RandomInput::step);
    if (auto* box = qobject_cast<QMessageBox*>(open)) {
        answerModal(box);
        return;
    }
    note("close " + describe(open) + " at the end");
    open->close();
}

void RandomInput::answerModal(QWidget* modal)
{
    m_turnsInModal = modal == m_modal ? m_turnsInModal + 1 : 0;
    m_modal = modal;
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        ++m_windowsVisited["QMessageBox"];
        QAbstractButton* answer = box->button(QMessageBox::No);
        if (!answer)
            answer = box->buttons().value(0);
        note("answer \"" + box->text() + "\" with " + (answer ? answer->text() : QString("nothing")));
        if (answer)
            answer->click();
        return;
    }
    if (auto* chooser = qobject_cast<QColorDialog*>(modal)) {
        ++m_windowsVisited["QColorDialog"];
        const bool accept = pick(2) == 0;
        note(accept ? "accept the colour chooser" : "cancel the colour chooser");
        accept ? chooser->accept() : chooser->reject();
        return;
    }
    if (m_turnsInModal > TurnsBeforeEscape) {
        note("leave " + describe(modal) + " with Escape");
        QTest::keyClick(modal, Qt::Key_Escape);
        if (m_modal && m_modal->isVisible() && QApplication::activeModalWidget() == m_modal) {
            note("close " + describe(m_modal));
            m_modal->close();
        }
        return;
    }
    actOn(modal);
}

void RandomInput::actOn(QWidget* window)
{
    QPointer<QWidget> target = pickDescendant(window);
    if (!target)
        return;
    ++m_windowsVisited[describe(viewOf(target))];
    const int roll = pick(100);
    if (roll < 35)
        click(target);
    else if (roll < 55)
        moveOver(target);
    else if (roll < 70)
        pressKey(window);
    else if (roll < 80)
        typeText(window);
    else if (roll < 85)
        chooseMenuItem(window);
    else if (roll < 95)
        reshape(window);
    else {
        note("wait");
        QTest::qWait(10 + pick(40));
    }
}

void RandomInput::click(QWidget* target)
{
    const QPoint at = pickPoint(target);
    const int kind = pick(20);
    if (kind < 2) {
        note("double click " + describe(target));
        QTest::mouseDClick(target, Qt::LeftButton, Qt::NoModifier, at);
    } else if (kind < 5) {
        note("right click " + describe(target));
        QTest::mouseClick(target, Qt::RightButton, Qt::NoModifier, at);
    } else {
        note("click " + describe(target));
        QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, at);
    }
}

// A pointer arrives with an Enter and then moves on in small steps.
void RandomInput::moveOver(QWidget* target)
{
    note("move over " + describe(target));
    QPointer<QWidget> guard = target;
    QPoint at = pickPoint(target);
    QEnterEvent enter(at, target->mapTo(target->window(), at), target->mapToGlobal(at));
    QCoreApplication::sendEvent(target, &enter);
    for (int i = 0, moves = 2 + pick(5); i < moves && guard; ++i) {
        at += QPoint(pick(7) - 3, pick(7) - 3);
        at.setX(qBound(0, at.x(), qMax(0, guard->width() - 1)));
        at.setY(qBound(0, at.y(), qMax(0, guard->height() - 1)));
        QTest::mouseMove(guard, at);
    }
}

void RandomInput::pressKey(QWidget* window)
{
    QWidget* focus = window->focusWidget() ? window->focusWidget() : window;
    const int key = keys().at(pick(int(keys().size())));
    const Qt::KeyboardModifiers modifiers = pick(10) == 0 ? Qt::AltModifier : Qt::NoModifier;
    note(QString("key %1%2 on %3").arg(modifiers ? "Alt+" : "").arg(QKeySequence(key).toString()).arg(describe(focus)));
    QTest::keyClick(focus, Qt::Key(key), modifiers);
}

void RandomInput::typeText(QWidget* window)
{
    const QList<QLineEdit*> boxes = window->findChildren<QLineEdit*>();
    QList<QLineEdit*> usable;
    for (QLineEdit* box : boxes)
        if (box->isVisible() && box->isEnabled())
            usable << box;
    if (usable.isEmpty()) {
        pressKey(window);
        return;
    }
    QLineEdit* box = usable.at(pick(int(usable.size())));
    static const QString characters = QStringLiteral("0123456789.-.x 0123456789");
    // Half the time a single digit, as a pupil picks a unit, a page or a count.
    QString text = QString::number(pick(10));
    if (pick(2) == 0) {
        text.clear();
        for (int i = 0, length = pick(6); i < length; ++i)
            text += characters.at(pick(int(characters.size())));
    }
    note("type \"" + text + "\" into " + describe(box));
    QPointer<QLineEdit> guard = box;
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    if (guard)
        QTest::keyClicks(guard, text);
}

void RandomInput::chooseMenuItem(QWidget* window)
{
    auto* frame = qobject_cast<QMainWindow*>(window);
    QList<QAction*> items;
    if (frame && frame->menuWidget())
        for (QMenu* menu : frame->findChildren<QMenu*>())
            for (QAction* action : menu->actions())
                if (!action->isSeparator() && action->isEnabled() && action->isVisible() && !action->menu())
                    items << action;
    if (items.isEmpty()) {
        click(window);
        return;
    }
    QAction* item = items.at(pick(int(items.size())));
    note("menu " + item->text());
    item->trigger();
}

void RandomInput::reshape(QWidget* window)
{
    QList<QMdiSubWindow*> children;
    if (auto* area = window->findChild<QMdiArea*>())
        children = area->subWindowList();
    if (children.isEmpty() || pick(4) == 0) {
        if (window->isModal() || qobject_cast<QDialog*>(window))
            return;
        const QSize size(300 + pick(1200), 200 + pick(900));
        note(QString("resize %1 to %2x%3").arg(describe(window)).arg(size.width()).arg(size.height()));
        window->resize(size);
        return;
    }
    QMdiSubWindow* child = children.at(pick(int(children.size())));
    switch (pick(5)) {
    case 0:
        note("maximise " + describe(child->widget()));
        child->showMaximized();
        break;
    case 1:
        note("minimise " + describe(child->widget()));
        child->showMinimized();
        break;
    case 2:
        note("restore " + describe(child->widget()));
        child->showNormal();
        break;
    case 3:
        note("resize " + describe(child->widget()));
        child->resize(200 + pick(900), 150 + pick(700));
        break;
    default:
        note("close " + describe(child->widget()));
        child->close();
        break;
    }
}

void RandomInput::checkSomethingShows()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (showsAsWindow(window)) {
            m_windowlessTurns = 0;
            return;
        }
    if (++m_windowlessTurns > WindowlessTurns)
        fail("the program runs on with no window");
}

QWidget* RandomInput::pickWindow()
{
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (showsAsWindow(window) && window->isEnabled())
            windows << window;
    return windows.isEmpty() ? nullptr : windows.at(pick(int(windows.size())));
}

QWidget* RandomInput::pickDescendant(QWidget* window)
{
    QList<QWidget*> candidates{window};
    for (QWidget* child : window->findChildren<QWidget*>())
        if (child->isVisible() && child->isEnabled() && child->width() > 0 && child->height() > 0)
            candidates << child;
    return candidates.at(pick(int(candidates.size())));
}

QPoint RandomInput::pickPoint(const QWidget* target)
{
    return QPoint(pick(qMax(1, target->width())), pick(qMax(1, target->height())));
}

int RandomInput::pick(int count)
{
    return count <= 1 ? 0 : std::uniform_int_distribution<int>(0, count - 1)(m_random);
}

void RandomInput::note(const QString& what)
{
    std::lock_guard<std::mutex> lock(recentLock);
    m_recent << QString("%1: %2").arg(m_sent).arg(what);
    if (m_recent.size() > RecentEvents)
        m_recent.removeFirst();
}

void RandomInput::fail(const QString& why)
{
    std::lock_guard<std::mutex> lock(recentLock);
    m_failure = why + " after " + QString::number(m_sent) + " events; the last ones:\n" + m_recent.join('\n');
}
