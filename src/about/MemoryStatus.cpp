#include "MemoryStatus.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

namespace {

int64_t kilobytesField(const QString& meminfo, const QString& name)
{
    const QRegularExpression line(QStringLiteral("^%1:\\s*(\\d+)\\s*kB").arg(name),
        QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(meminfo);
    return match.hasMatch() ? match.captured(1).toLongLong() : 0;
}

} // namespace

MemoryStatus::MemoryStatus(int64_t totalBytes, int64_t availableBytes)
    : m_totalBytes(totalBytes), m_availableBytes(availableBytes)
{
}

MemoryStatus MemoryStatus::current()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return parse(QString::fromLatin1(file.readAll()));
}

MemoryStatus MemoryStatus::parse(const QString& meminfo)
{
    return MemoryStatus(kilobytesField(meminfo, QStringLiteral("MemTotal")) * 1024,
        kilobytesField(meminfo, QStringLiteral("MemAvailable")) * 1024);
}

QString MemoryStatus::InfoCaption() const
{
    // Up to 15 significant digits and never an exponent for any real machine.
    const QString available = QString::number(double(m_availableBytes) / 1024, 'g', 15);
    return QCoreApplication::translate("MemoryStatus", "Total physical memory: %1KB\rAvailable physical memory: %2KB")
        .arg(QString::number(m_totalBytes / 1024), available);
}
