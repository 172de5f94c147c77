#pragma once

#include "core/CsvTable.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>

// The figures of one tick: the texts of the eight force labels and the net totals
// (sums since the last reset) that move the balloon panel.
struct ForceReadout
{
    QString CurrentLeft;
    QString CurrentRight;
    QString CurrentTop;
    QString MeanLeft;
    QString MeanRight;
    QString MeanTop;
    QString MeanHorizontal;
    QString MeanVertical;
    float H = 0;
    float V = 0;
};

// The wall force statistics of the microscopic view: counts the ticks, sums each
// wall's per-tick impulse and turns them into current and mean values.
class ForceStatistics
{
    Q_DECLARE_TR_FUNCTIONS(ForceStatistics)

public:
    // Adds one tick's wall values and returns the labels and the net totals.
    ForceReadout UpdateForceIndicators(float Fleft, float Fright, float Ftop, float Fbottom);

    // Sets the tick count and the four sums to 0.
    void InitialiseCounters();

    // The ticks since the last reset; 64 bits so that no run ever overflows it.
    int64_t TickCount() const { return m_TickCount; }
    // The sums of each wall's per-tick values since the last reset.
    double SumLeft() const { return m_SumLeft; }
    double SumRight() const { return m_SumRight; }
    double SumTop() const { return m_SumTop; }
    double SumBottom() const { return m_SumBottom; }

    // A number with at least one digit before and one or two after the user's
    // decimal separator, rounded to two decimals, no digit grouping.
    static QString FormatForce(double value);

    // Every tick since the last reset: tick number, current and mean force of each
    // wall; the first MaxRecordedTicks ticks of a very long run.
    const CsvTable& Record() const { return m_record; }
    static constexpr std::size_t MaxRecordedTicks = 1000000;

private:
    QString mean(double sum) const;

    int64_t m_TickCount = 0;
    double m_SumLeft = 0;
    double m_SumRight = 0;
    double m_SumTop = 0;
    double m_SumBottom = 0;
    CsvTable m_record{{"tick", "Fleft", "Fright", "Ftop", "<Fleft>", "<Fright>", "<Ftop>"}};
};
