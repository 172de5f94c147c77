#pragma once

#include <QImage>
#include <QWidget>

// Shows the film's current frame, scaled to fit with its proportions kept, on
// black. A plain widget: painting it needs no graphics context of its own.
class MovieFrameWidget : public QWidget
{
    Q_OBJECT

public:
    // An empty black frame.
    explicit MovieFrameWidget(QWidget* parent = nullptr);

    // Shows the image as the current frame.
    void setFrame(const QImage& frame);

    // The frame shown; null while none came.
    QImage frame() const { return m_frame; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_frame;
};
