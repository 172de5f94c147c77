#include "CanvasWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

int16_t buttonCode(Qt::MouseButtons buttons)
{
    int16_t code = 0;
    if (buttons & Qt::LeftButton)
        code |= 1;
    if (buttons & Qt::RightButton)
        code |= 2;
    if (buttons & Qt::MiddleButton)
        code |= 4;
    return code;
}

int16_t shiftCode(Qt::KeyboardModifiers modifiers)
{
    int16_t code = 0;
    if (modifiers & Qt::ShiftModifier)
        code |= 1;
    if (modifiers & Qt::ControlModifier)
        code |= 2;
    if (modifiers & Qt::AltModifier)
        code |= 4;
    return code;
}

} // namespace

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_canvas.setPixelRatio(devicePixelRatioF());
    m_canvas.setChangeListener([this] { scheduleShow(); });
}

void CanvasWidget::scheduleShow()
{
    if (m_showPending)
        return;
    m_showPending = true;
    const QScreen* display = screen();
    const qreal rate = display != nullptr && display->refreshRate() > 0 ? display->refreshRate() : 60.0;
    const qint64 frame = std::clamp(qint64(std::lround(1000.0 / rate)), qint64(1), qint64(50));
    const qint64 since = m_sinceShown.isValid() ? m_sinceShown.elapsed() : frame;
    if (since >= frame)
        update();
    else
        QTimer::singleShot(frame - since, Qt::PreciseTimer, this, [this] { update(); });
}

void CanvasWidget::fitCanvasToWidget()
{
    const qreal ratio = devicePixelRatioF();
    m_canvas.setPixelRatio(ratio);
    const int width = int(std::lround(this->width() * ratio));
    const int height = int(std::lround(this->height() * ratio));
    if (width != m_canvas.DeviceWidth() || height != m_canvas.DeviceHeight())
        m_canvas.resize(width, height);
}

void CanvasWidget::repaintFromOwner()
{
    fitCanvasToWidget();
    if (m_paintHandler)
        m_paintHandler();
    update();
}

void CanvasWidget::paintEvent(QPaintEvent* event)
{
    // The picture is already at the screen's resolution: the exposed part is
    // copied pixel for pixel where the sizes agree, and only scaled while a new
    // size has not reached the surface yet.
    QPainter painter(this);
    const QImage& image = m_canvas.image();
    const qreal ratio = devicePixelRatioF();
    const QRect exposed = event->rect() & rect();
    const QRectF source(exposed.x() * ratio, exposed.y() * ratio, exposed.width() * ratio, exposed.height() * ratio);
    if (image.width() == std::lround(width() * ratio) && image.height() == std::lround(height() * ratio))
        painter.drawImage(QRectF(exposed), image, source);
    else
        painter.drawImage(rect(), image);
    m_canvas.markClean();
    m_showPending = false;
    m_sinceShown.restart();
}

void CanvasWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_drawnOnce)
        repaintFromOwner();
    else
        fitCanvasToWidget();
}

void CanvasWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_drawnOnce) {
        m_drawnOnce = true;
        repaintFromOwner();
    }
}

void CanvasWidget::forward(const MouseHandler& handler, QMouseEvent* event, bool pressedButtonOnly)
{
    if (!handler)
        return;
    const qreal ratio = devicePixelRatioF();
    const double px = event->position().x() * ratio;
    const double py = event->position().y() * ratio;
    const float x = float(m_canvas.ScaleLeft() + px * m_canvas.ScaleWidth() / m_canvas.DeviceWidth());
    const float y = float(m_canvas.ScaleTop() + py * m_canvas.ScaleHeight() / m_canvas.DeviceHeight());
    const int16_t button = buttonCode(pressedButtonOnly ? Qt::MouseButtons(event->button()) : event->buttons());
    handler(button, shiftCode(event->modifiers()), x, y);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event)
{
    forward(m_mouseDown, event, true);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event)
{
    forward(m_mouseMove, event, false);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event)
{
    forward(m_mouseUp, event, true);
}
