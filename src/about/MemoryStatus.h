#pragma once

#include <QString>

#include <cstdint>

// The machine's physical memory as the About box reports it: the total and the
// amount still available, in bytes, read as 64-bit figures so that the line is true
// on machines with more than 2 GB.
class MemoryStatus
{
public:
    // Zero figures, or the figures given, in bytes.
    MemoryStatus() = default;
    MemoryStatus(int64_t totalBytes, int64_t availableBytes);

    // The figures of this machine (MemTotal and MemAvailable of /proc/meminfo);
    // zero where they cannot be read.
    static MemoryStatus current();

    // The figures in the text of a meminfo file, whose values are in kB.
    static MemoryStatus parse(const QString& meminfo);

    // The figures, in bytes.
    int64_t totalBytes() const { return m_totalBytes; }
    int64_t availableBytes() const { return m_availableBytes; }

    // The About box's memory line: "Total physical memory: " T "KB", a lone
    // carriage return, "Available physical memory: " A "KB", where T is the whole
    // number of kilobytes and A the exact kilobytes with any fraction.
    QString InfoCaption() const;

private:
    int64_t m_totalBytes = 0;
    int64_t m_availableBytes = 0;
};
