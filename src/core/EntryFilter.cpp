#include "EntryFilter.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr int16_t MinusAllowed = 2;
constexpr int16_t PointAllowed = 8;

bool isAsciiLetter(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= u'A' && u <= u'Z') || (u >= u'a' && u <= u'z');
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

// Scans for the first character the flags refuse.
bool charactersAllowed(int16_t flags, const QString& text)
{
    bool minusSeen = false;
    bool pointSeen = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isAsciiLetter(c))
            return false;
        if (c == u'-') {
            if (!(flags & MinusAllowed) || i != 0 || minusSeen)
                return false;
            minusSeen = true;
        } else if (c == u'.') {
            if (!(flags & PointAllowed) || pointSeen)
                return false;
            pointSeen = true;
        }
    }
    return true;
}

} // namespace

namespace {

// Reads digits with at most one point, no sign. A value beyond the range of a
// double reads as infinity, so that a long run of digits is larger than any
// maximum instead of reading as 0; one too small to hold reads as 0.
double unsignedValue(const std::string& digits)
{
    double value = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::result_out_of_range) {
        const bool wholePartNonZero = digits.find_first_of("123456789") < digits.find('.');
        return wholePartNonZero ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return error == std::errc() ? value : 0.0;
}

} // namespace

double LeadingNumber(const QString& text)
{
    std::string digits;
    bool negative = false;
    bool signSeen = false;
    bool pointSeen = false;
    for (const QChar c : text) {
        if (isBlank(c))
            continue;
        const bool signHere = !signSeen && digits.empty() && (c == u'-' || c == u'+');
        const bool pointHere = c == u'.' && !pointSeen;
        if (signHere) {
            signSeen = true;
            negative = c == u'-';
            continue;
        }
        if (!(c.isDigit() && c.unicode() < 128) && !pointHere)
            break;
        pointSeen = pointSeen || pointHere;
        digits += char(c.unicode());
    }
    const double value = unsignedValue(digits);
    return negative ? -value : value;
}

bool IsValidNumber(int16_t Flags, const QString& Text, int16_t Max)
{
    if (Flags == 0)
        return true;
    if (Text.isEmpty())
        return false;
    if (!charactersAllowed(Flags, Text))
        return false;
    return std::fabs(LeadingNumber(Text)) <= Max;
}
