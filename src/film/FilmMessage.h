#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// One piece of news from the film player program to the movie view. On the wire
// each is a line "<kind> <value>", and a frame's line "frame <width> <height>" is
// followed by its RGB32 pixels, row after row with nothing between them.
struct FilmMessage
{
    enum Kind { Duration, Position, Playing, Paused, Stopped, Error, Frame };

    Kind kind = Stopped;
    qint64 milliseconds = 0; // Duration, Position
    QString text;            // Error
    QImage frame;            // Frame, in RGB32

    // The message as it goes on the wire.
    QByteArray encoded() const;

    // The largest frame side either end accepts, so that a damaged header cannot
    // ask for an absurd amount of memory.
    static constexpr int LargestSide = 4096;
};
