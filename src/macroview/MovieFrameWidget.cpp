#include "MovieFrameWidget.h"

#include <QPainter>

MovieFrameWidget::MovieFrameWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void MovieFrameWidget::setFrame(const QImage& frame)
{
    m_frame = frame;
    update();
}

void MovieFrameWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (m_frame.isNull())
        return;
    const QSize fitted = m_frame.size().scaled(size(), Qt::KeepAspectRatio);
    QRect target(QPoint(), fitted);
    target.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_frame);
}
