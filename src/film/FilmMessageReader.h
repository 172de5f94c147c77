#pragma once

#include "FilmMessage.h"

#include <QByteArray>

#include <optional>

// Takes the film player's output as it arrives, in pieces of any size, and gives
// back whole messages. Output that breaks the format (an overlong line, a frame of
// impossible size) marks the channel as damaged: nothing more is read from it.
class FilmMessageReader
{
public:
    // Adds what has just arrived.
    void feed(const QByteArray& bytes);

    // The next whole message, if one has arrived; lines of an unknown kind are
    // passed over.
    std::optional<FilmMessage> next();

    // Whether the output broke the format.
    bool damaged() const { return m_damaged; }

    // The longest line that is not part of a frame's pixels.
    static constexpr int LongestLine = 4096;

private:
    std::optional<FilmMessage> parseLine(const QByteArray& line);
    std::optional<FilmMessage> takeFrame();

    QByteArray m_pending;
    qsizetype m_read = 0;
    // The size of a frame whose header was read and whose pixels are awaited.
    int m_frameWidth = 0;
    int m_frameHeight = 0;
    bool m_damaged = false;
};
