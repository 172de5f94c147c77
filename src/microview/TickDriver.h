#pragma once

#include <QObject>

#include <cstdint>
#include <functional>

class QSocketNotifier;
class QTimer;

// The simulation timer. A repeating QTimer loses ticks to wake-up latency, so this
// one keeps absolute deadlines (a Linux timerfd watched by the event loop) and runs
// one tick for every period that has elapsed, one after another on the UI thread.
// After a long stall (a modal dialog, a dragged window) it runs a bounded number of
// ticks and drops the rest instead of racing to catch up.
class TickDriver : public QObject
{
    Q_OBJECT

public:
    // The most ticks run for one wake-up; periods beyond it are dropped.
    static constexpr uint64_t MaxCatchUp = 20;

    // A stopped timer that calls tick once per elapsed period.
    explicit TickDriver(std::function<void()> tick, QObject* parent = nullptr);
    // Releases the timerfd.
    ~TickDriver() override;

    // The period in milliseconds; a running timer restarts its deadlines.
    int Interval() const { return m_Interval; }
    void setInterval(int milliseconds);

    // Starts (from now) or stops the ticks. A tick may stop the timer; no further
    // tick of the same wake-up runs then.
    bool Enabled() const { return m_Enabled; }
    void setEnabled(bool value);

    // How many elapsed periods were dropped since the timer was created.
    uint64_t droppedPeriods() const { return m_dropped; }

private:
    void arm();
    void disarm();
    void onExpired();
    void runTicks(uint64_t count);

    std::function<void()> m_tick;
    int m_fd = -1;
    QSocketNotifier* m_notifier = nullptr;
    // Used only where no timerfd can be made.
    QTimer* m_fallback = nullptr;
    int m_Interval = 1;
    bool m_Enabled = false;
    uint64_t m_dropped = 0;
};
