#include "TickDriver.h"

#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>

namespace {

constexpr long NanosecondsPerMillisecond = 1000000L;
constexpr long NanosecondsPerSecond = 1000000000L;

timespec addMilliseconds(timespec time, int milliseconds)
{
    time.tv_sec += milliseconds / 1000;
    time.tv_nsec += (milliseconds % 1000) * NanosecondsPerMillisecond;
    if (time.tv_nsec >= NanosecondsPerSecond) {
        time.tv_nsec -= NanosecondsPerSecond;
        ++time.tv_sec;
    }
    return time;
}

} // namespace

TickDriver::TickDriver(std::function<void()> tick, QObject* parent) : QObject(parent), m_tick(std::move(tick))
{
    m_fd = timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC);
    if (m_fd >= 0) {
        m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
        m_notifier->setEnabled(false);
        connect(m_notifier, &QSocketNotifier::activated, this, &TickDriver::onExpired);
    } else {
        m_fallback = new QTimer(this);
        m_fallback->setTimerType(Qt::PreciseTimer);
        connect(m_fallback, &QTimer::timeout, this, [this] { runTicks(1); });
    }
}

TickDriver::~TickDriver()
{
    if (m_fd >= 0) {
        delete m_notifier;
        ::close(m_fd);
    }
}

void TickDriver::setInterval(int milliseconds)
{
    m_Interval = std::max(1, milliseconds);
    if (m_Enabled)
        arm();
}

void TickDriver::setEnabled(bool value)
{
    m_Enabled = value;
    if (value)
        arm();
    else
        disarm();
}

void TickDriver::arm()
{
    if (m_fallback) {
        m_fallback->start(m_Interval);
        return;
    }
    // Absolute deadlines: the first one interval from now, then every interval,
    // however late each wake-up comes.
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    itimerspec deadlines{};
    deadlines.it_value = addMilliseconds(now, m_Interval);
    deadlines.it_interval = addMilliseconds(timespec{}, m_Interval);
    timerfd_settime(m_fd, TFD_TIMER_ABSTIME, &deadlines, nullptr);
    m_notifier->setEnabled(true);
}

void TickDriver::disarm()
{
    if (m_fallback) {
        m_fallback->stop();
        return;
    }
    m_notifier->setEnabled(false);
    const itimerspec stop{};
    timerfd_settime(m_fd, 0, &stop, nullptr);
}

void TickDriver::onExpired()
{
    uint64_t elapsed = 0;
    if (::read(m_fd, &elapsed, sizeof elapsed) != sizeof elapsed || !m_Enabled)
        return;
    const uint64_t count = std::min(elapsed, MaxCatchUp);
    m_dropped += elapsed - count;
    runTicks(count);
}

void TickDriver::runTicks(uint64_t count)
{
    // A tick may stop the timer or, through a message box's event loop, outlive it.
    QPointer<TickDriver> alive(this);
    for (uint64_t i = 0; i < count && alive && m_Enabled; ++i)
        m_tick();
}
