#include "MovieLayout.h"

MovieLayout MovieLayout::arrange(double windowWidth, double windowHeight)
{
    MovieLayout layout;
    layout.picMovie = QRectF((windowWidth - PictureWidth) / 2, (windowHeight - PictureHeight) / 3,
        PictureWidth, PictureHeight);
    const double buttonTop = layout.picMovie.top() + PictureHeight + ButtonHeight / 3;
    layout.exit = QRectF(layout.picMovie.left() + PictureWidth - ButtonWidth, buttonTop, ButtonWidth,
        ButtonHeight);
    layout.play = QRectF(layout.exit.left() - ButtonWidth - ButtonGap, buttonTop, ButtonWidth,
        ButtonHeight);
    return layout;
}
