#include "DecorShape.h"

#include "canvas/Rgb.h"
#include "core/Twips.h"
#include "widgets/FormLayout.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace {

// Room around a line's ends for the pen.
constexpr int LineMargin = 4;

} // namespace

DecorShape::DecorShape(QWidget* parent, const QString& name, Kind kind) : QWidget(parent), m_kind(kind)
{
    setObjectName(name);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
}

DecorShape* DecorShape::shape(QWidget* parent, const QString& name, Kind kind, int left, int top,
    int width, int height)
{
    auto* decor = new DecorShape(parent, name, kind);
    FormLayout::place(decor, left, top, width, height);
    return decor;
}

DecorShape* DecorShape::line(QWidget* parent, const QString& name, int x1, int y1, int x2, int y2)
{
    auto* decor = new DecorShape(parent, name, Kind::Line);
    const int margin = LineMargin * Twips::PerPixel;
    const int left = std::min(x1, x2) - margin;
    const int top = std::min(y1, y2) - margin;
    FormLayout::place(decor, left, top, std::abs(x2 - x1) + 2 * margin, std::abs(y2 - y1) + 2 * margin);
    const double perPixel = Twips::PerPixel;
    decor->m_from = QPointF((x1 - left) / perPixel, (y1 - top) / perPixel);
    decor->m_to = QPointF((x2 - left) / perPixel, (y2 - top) / perPixel);
    return decor;
}

void DecorShape::setBorder(int32_t color, int width)
{
    m_borderColor = color;
    m_borderWidth = width;
    update();
}

void DecorShape::setFill(int32_t color)
{
    m_fillColor = color;
    update();
}

void DecorShape::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(Rgb::toQColor(m_borderColor), m_borderWidth);
    if (m_kind == Kind::Line) {
        pen.setCapStyle(Qt::RoundCap);
        painter.setPen(pen);
        painter.drawLine(m_from, m_to);
        return;
    }
    painter.setPen(pen);
    painter.setBrush(Rgb::toQColor(m_fillColor));
    // The outline lies inside the box, as a shape's border does.
    const qreal inset = m_borderWidth / 2.0;
    QRectF box = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    switch (m_kind) {
    case Kind::Rectangle:
        painter.drawRect(box);
        break;
    case Kind::Circle: {
        const qreal side = std::min(box.width(), box.height());
        box = QRectF(box.center().x() - side / 2, box.center().y() - side / 2, side, side);
        painter.drawEllipse(box);
        break;
    }
    case Kind::RoundedRectangle: {
        const qreal corner = std::min(box.width(), box.height()) / 4;
        painter.drawRoundedRect(box, corner, corner);
        break;
    }
    case Kind::Line:
        break;
    }
}
