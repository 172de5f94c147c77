#include "ForceStatistics.h"

#include <QLocale>

namespace {

// The user's locale without digit grouping, with the two symbols the format needs.
// Eight numbers are written at every tick, so it is made again only when the
// user's locale has changed.
struct DisplayLocale
{
    QLocale user;
    QLocale numbers;
    QString zero;
    QString minus;
};

const DisplayLocale& displayLocale()
{
    static DisplayLocale cached;
    const QLocale user;
    if (cached.zero.isEmpty() || user != cached.user) {
        cached.user = user;
        cached.numbers = user;
        cached.numbers.setNumberOptions(QLocale::OmitGroupSeparator);
        cached.zero = cached.numbers.zeroDigit();
        cached.minus = cached.numbers.negativeSign();
    }
    return cached;
}

} // namespace

ForceReadout ForceStatistics::UpdateForceIndicators(float Fleft, float Fright, float Ftop, float Fbottom)
{
    ForceReadout readout;
    ++m_TickCount;
    readout.CurrentLeft = tr("  Fleft = %1").arg(FormatForce(Fleft));
    readout.CurrentRight = tr("  Fright = %1").arg(FormatForce(Fright));
    m_SumLeft += Fleft;
    m_SumRight += Fright;
    readout.CurrentTop = tr("  Ftop = %1").arg(FormatForce(Ftop));
    m_SumTop += Ftop;
    m_SumBottom += Fbottom;
    readout.MeanLeft = tr("<Fleft> = %1").arg(mean(m_SumLeft));
    readout.MeanRight = tr("<Fright> = %1").arg(mean(m_SumRight));
    readout.MeanTop = tr("<Ftop> = %1").arg(mean(m_SumTop));
    // The net totals are summed in double and kept as floats, as the panel uses them.
    readout.H = static_cast<float>(m_SumRight + m_SumLeft);
    readout.V = static_cast<float>(m_SumBottom + m_SumTop);
    readout.MeanHorizontal = tr("<Fhorizontal> = %1").arg(mean(readout.H));
    readout.MeanVertical = tr("<Fvertical> = %1").arg(mean(readout.V));
    if (m_record.RowCount() < MaxRecordedTicks) {
        const double ticks = static_cast<double>(m_TickCount);
        m_record.AddRow({ticks, Fleft, Fright, Ftop, m_SumLeft / ticks, m_SumRight / ticks, m_SumTop / ticks});
    }
    return readout;
}

void ForceStatistics::InitialiseCounters()
{
    m_TickCount = 0;
    m_SumLeft = 0;
    m_SumRight = 0;
    m_SumTop = 0;
    m_SumBottom = 0;
    m_record.Clear();
}

QString ForceStatistics::mean(double sum) const
{
    return FormatForce(sum / static_cast<double>(m_TickCount));
}

QString ForceStatistics::FormatForce(double value)
{
    const DisplayLocale& locale = displayLocale();
    // The sign is written by hand so that a small negative value keeps it after
    // rounding, and the magnitude is rounded to two decimals before a trailing zero
    // in the second place is dropped.
    QString digits = locale.numbers.toString(value < 0 ? -value : value, 'f', 2);
    if (digits.endsWith(locale.zero))
        digits.chop(locale.zero.size());
    return value < 0 ? locale.minus + digits : digits;
}
