#pragma once

#include <QMap>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <random>

class QWidget;

// Drives the running program with a seeded stream of what a restless pupil does:
// clicks and double clicks anywhere, pointer moves, keys, typed text, menu items,
// resizing, maximising and closing child windows. Message boxes are answered (No
// where there is a No, so the exit question never ends the program), and a modal
// window that random input cannot leave is closed with Escape after a while.
// It reports the first window-less moment and, through a watchdog, a hang.
class RandomInput : public QObject
{
    Q_OBJECT

public:
    // The seed fixes every choice of the driver.
    RandomInput(uint32_t seed, int events);
    ~RandomInput() override;

    // Sends the events, one per turn of the event loop, and returns when all went
    // or a fault was found; the watchdog aborts the process if the loop stops
    // turning for hangSeconds.
    void run(int hangSeconds);

    // Empty when the program came through; otherwise what went wrong and the last
    // events before it.
    QString failure() const { return m_failure; }
    int sent() const { return m_sent; }
    // How many events each window received, by name (class name for boxes).
    QMap<QString, int> windowsVisited() const { return m_windowsVisited; }

private:
    void step();
    void windDown();
    void answerModal(QWidget* modal);
    void actOn(QWidget* window);
    void click(QWidget* target);
    void moveOver(QWidget* target);
    void pressKey(QWidget* window);
    void typeText(QWidget* target);
    void chooseMenuItem(QWidget* window);
    void reshape(QWidget* window);
    void checkSomethingShows();

    QWidget* pickWindow();
    QWidget* pickDescendant(QWidget* window);
    QPoint pickPoint(const QWidget* target);
    int pick(int count);
    void note(const QString& what);
    void fail(const QString& why);

    std::mt19937 m_random;
    int m_events;
    int m_sent = 0;
    int m_depth = 0;
    int m_windowlessTurns = 0;
    QPointer<QWidget> m_modal;
    int m_turnsInModal = 0;
    QStringList m_recent;
    QMap<QString, int> m_windowsVisited;
    QString m_failure;
    std::atomic<int> m_heartbeat{0};
};
