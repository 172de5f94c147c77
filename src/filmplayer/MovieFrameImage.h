#pragma once

#include <QImage>

class QVideoFrame;

// Turns a decoded film frame into an image for painting, on the processor alone.
// The player's own conversion may bring up a graphics context for the job, which
// costs far more memory than the whole film; a small film's frames are cheap to
// convert here instead.
class MovieFrameImage
{
public:
    // The frame as an RGB32 image, or a null image for a pixel format this does
    // not know (or a frame that cannot be read).
    static QImage fromFrame(const QVideoFrame& frame);
};
