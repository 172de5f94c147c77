#include "EntryFilter.h"

#include <cmath>

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

double LeadingNumber(const QString& text)
{
    QString number;
    bool pointSeen = false;
    for (const QChar c : text) {
        if (isBlank(c))
            continue;
        const bool signHere = number.isEmpty() && (c == u'-' || c == u'+');
        const bool pointHere = c == u'.' && !pointSeen;
        if (!(c.isDigit() && c.unicode() < 128) && !signHere && !pointHere)
            break;
        pointSeen = pointSeen || pointHere;
        number += c;
    }
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? value : 0.0;
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
