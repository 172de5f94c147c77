#include "ScreenFit.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace ScreenFit {

QRect fitted(const QRect& wanted, const QMargins& frame, const QRect& available)
{
    const QRect room = available.marginsRemoved(frame);
    const QSize size = wanted.size().boundedTo(room.size());
    const int left = std::clamp(wanted.left(), room.left(), room.right() + 1 - size.width());
    const int top = std::clamp(wanted.top(), room.top(), room.bottom() + 1 - size.height());
    return QRect(QPoint(left, top), size);
}

void fitToScreen(QWidget* window)
{
    const QScreen* screen = window->screen();
    if (!screen)
        return;
    const QRect inner = window->geometry();
    const QRect outer = window->frameGeometry();
    const QMargins frame(inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
        outer.bottom() - inner.bottom());
    const QRect target = fitted(inner, frame, screen->availableGeometry());
    if (target.size() != inner.size())
        window->resize(target.size());
    if (target.topLeft() != inner.topLeft())
        window->move(target.topLeft() - QPoint(frame.left(), frame.top()));
}

} // namespace ScreenFit
