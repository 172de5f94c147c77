#include "core/EntryFilter.h"
#include "core/Geometry.h"
#include "core/Numeric.h"
#include "core/RunTimeError.h"
#include "core/ScopedRandomSequence.h"
#include "core/SharedRandom.h"

#include <QtTest>

#include <limits>

#include <vector>

class CoreTest : public QObject
{
    Q_OBJECT

private slots:
    void conversionsRoundHalvesToEvenAndReportOverflow();
    void sixteenBitArithmeticIsChecked();
    void directionAngleUsesTheProgramsPi();
    void largerAndSmallerOfPickOnTies();
    void pointDistance();
    void entryFilter();
    void leadingNumberReadsThroughBlanks();
    void fixedRandomSequenceRepeatsAndIgnoresClockReseeding();
};

static int errorNumberOf(const std::function<void()>& f)
{
    try {
        f();
    } catch (const RunTimeError& e) {
        return e.number();
    }
    return 0;
}

void CoreTest::conversionsRoundHalvesToEvenAndReportOverflow()
{
    QCOMPARE(Numeric::toInt16(2.5), int16_t(2));
    QCOMPARE(Numeric::toInt16(3.5), int16_t(4));
    QCOMPARE(Numeric::toInt16(-2.5), int16_t(-2));
    QCOMPARE(Numeric::toInt16(-0.6), int16_t(-1));
    QCOMPARE(Numeric::toInt16(32767.4), int16_t(32767));
    QCOMPARE(errorNumberOf([] { Numeric::toInt16(32767.5); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::toInt16(-32768.6); }), int(RunTimeError::Overflow));
    QCOMPARE(Numeric::toInt32(-2147483648.0), INT32_MIN);
    QCOMPARE(errorNumberOf([] { Numeric::toInt32(2147483648.0); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::toInt32(std::nan("")); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::toFloat(1e39); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::divide(1, 0); }), int(RunTimeError::DivisionByZero));
    QCOMPARE(Numeric::sign(-3.5), int16_t(-1));
    QCOMPARE(Numeric::sign(0.0), int16_t(0));
    QCOMPARE(Numeric::sign(1e-30), int16_t(1));
}

void CoreTest::sixteenBitArithmeticIsChecked()
{
    QCOMPARE(Numeric::add16(32766, 1), int16_t(32767));
    QCOMPARE(errorNumberOf([] { Numeric::add16(32767, 1); }), int(RunTimeError::Overflow));
    QCOMPARE(Numeric::mul16(181, 181), int16_t(32761));
    QCOMPARE(errorNumberOf([] { Numeric::mul16(182, 181); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::sub16(-32768, 1); }), int(RunTimeError::Overflow));
    QCOMPARE(errorNumberOf([] { Numeric::mul32(65536, 32768); }), int(RunTimeError::Overflow));
}

void CoreTest::directionAngleUsesTheProgramsPi()
{
    QCOMPARE(DirectionAngle(1, 0), 0.0f);
    QCOMPARE(DirectionAngle(0, 1), float(3.14159 / 2));
    QCOMPARE(DirectionAngle(-1, 0), float(3.14159));
    QCOMPARE(DirectionAngle(0, -1), float(9.42477 / 2));
    QCOMPARE(DirectionAngle(0, 0), 0.0f);
    QVERIFY(qFuzzyCompare(DirectionAngle(1, -1), -0.785398f));
    // Left and down lies past pi, not below zero.
    QVERIFY(qFuzzyCompare(DirectionAngle(-1, -1), float(0.785398 + 3.14159)));
}

void CoreTest::largerAndSmallerOfPickOnTies()
{
    // Signed zeros tell which argument came back.
    QVERIFY(std::signbit(LargerOf(0.0f, -0.0f)));
    QVERIFY(!std::signbit(SmallerOf(0.0f, -0.0f)));
    QCOMPARE(LargerOf(2, 3), 3.0f);
    QCOMPARE(SmallerOf(2, 3), 2.0f);
}

void CoreTest::pointDistance()
{
    QCOMPARE(PointDistance(0, 3, 0, 4), 5.0f);
    QCOMPARE(PointDistance(-3, 0, 4, 0), 5.0f);
    QCOMPARE(errorNumberOf([] { PointDistance(INT32_MIN, 1, 0, 0); }), int(RunTimeError::Overflow));
}

void CoreTest::entryFilter()
{
    QVERIFY(IsValidNumber(1, "3", 5));
    QVERIFY(!IsValidNumber(1, "7", 5));
    QVERIFY(!IsValidNumber(1, "12", 5));
    QVERIFY(!IsValidNumber(1, "-3", 5));
    QVERIFY(!IsValidNumber(1, "x", 5));
    QVERIFY(!IsValidNumber(1, "", 5));
    QVERIFY(IsValidNumber(2, "-3", 5));
    QVERIFY(!IsValidNumber(2, "3-", 5));
    QVERIFY(!IsValidNumber(2, "--3", 5));
    QVERIFY(IsValidNumber(8, "2.5", 5));
    QVERIFY(!IsValidNumber(8, "2.5.1", 5));
    QVERIFY(!IsValidNumber(2, "2.5", 5));
    QVERIFY(IsValidNumber(0, "abc", 5));
    QVERIFY(IsValidNumber(0, "", 5));
    QVERIFY(IsValidNumber(1, "0", 0));
    QVERIFY(IsValidNumber(1, "   ", 0));
    QVERIFY(IsValidNumber(10, "-4.5", 5));
    // Letters beyond A-Z pass the scan but end the number.
    QVERIFY(IsValidNumber(1, QString::fromUtf8("4υ"), 5));
}

void CoreTest::leadingNumberReadsThroughBlanks()
{
    QCOMPARE(LeadingNumber("3 4"), 34.0);
    QCOMPARE(LeadingNumber("1+"), 1.0);
    QCOMPARE(LeadingNumber("-2.5x"), -2.5);
    QCOMPARE(LeadingNumber("-"), 0.0);
    QCOMPARE(LeadingNumber(""), 0.0);
    QCOMPARE(LeadingNumber("+-1"), 0.0);
    QCOMPARE(LeadingNumber(".5"), 0.5);
    // Beyond the range of a double: larger than any maximum, never 0.
    const QString huge = "1" + QString(400, u'0');
    QCOMPARE(LeadingNumber(huge), std::numeric_limits<double>::infinity());
    QCOMPARE(LeadingNumber("-" + huge), -std::numeric_limits<double>::infinity());
    QCOMPARE(LeadingNumber("0." + QString(400, u'0') + "1"), 0.0);
    QVERIFY(!IsValidNumber(1, huge, 999));
    QVERIFY(!IsValidNumber(10, "-" + huge, 100));
}

void CoreTest::fixedRandomSequenceRepeatsAndIgnoresClockReseeding()
{
    std::vector<float> first;
    {
        ScopedRandomSequence fixed(7);
        for (int i = 0; i < 5; ++i) {
            SharedRandom::reseedFromClock();
            first.push_back(SharedRandom::next());
        }
    }
    ScopedRandomSequence fixed(7);
    for (float expected : first) {
        SharedRandom::reseedFromClock();
        const float value = SharedRandom::next();
        QCOMPARE(value, expected);
        QVERIFY(value >= 0.0f && value < 1.0f);
    }
    QVERIFY(first[0] != first[1]);
}

QTEST_GUILESS_MAIN(CoreTest)
#include "tst_core.moc"
