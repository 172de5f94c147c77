#include "FormLayout.h"

#include "core/Twips.h"

#include <QRectF>
#include <QWidget>

namespace FormLayout {

void place(QWidget* control, int left, int top, int width, int height)
{
    control->setGeometry(Twips::toPixels(left), Twips::toPixels(top), Twips::toPixels(width),
        Twips::toPixels(height));
}

void place(QWidget* control, const QRectF& twips)
{
    control->setGeometry(Twips::toPixels(twips.left()), Twips::toPixels(twips.top()),
        Twips::toPixels(twips.width()), Twips::toPixels(twips.height()));
}

void fixSize(QWidget* window, int width, int height)
{
    window->setFixedSize(Twips::toPixels(width), Twips::toPixels(height));
}

} // namespace FormLayout
