#pragma once

#include "canvas/ImageCanvas.h"

#include <QElapsedTimer>
#include <QWidget>

#include <functional>

// A picture area on screen: shows its ImageCanvas, sized to the widget in device
// pixels, and passes repaint requests and mouse events to the window that owns it.
// A picture that changes faster than the screen refreshes (a simulation ticking
// every millisecond) is shown at most once per screen frame.
class CanvasWidget : public QWidget
{
    Q_OBJECT

public:
    // A mouse event in the picture's user units: buttons 1 left, 2 right, 4 middle;
    // shift 1 Shift, 2 Ctrl, 4 Alt.
    using MouseHandler = std::function<void(int16_t button, int16_t shift, float x, float y)>;

    explicit CanvasWidget(QWidget* parent = nullptr);

    // The surface the owner draws on.
    ImageCanvas& canvas() { return m_canvas; }

    // Called whenever the picture has to be drawn anew: when first shown and after
    // a resize. The surface keeps no drawing list, so the owner draws it all again.
    void setPaintHandler(std::function<void()> handler) { m_paintHandler = std::move(handler); }
    // Called on a press (with the button pressed), on every move (with the buttons
    // held) and on a release (with the button released).
    void setMouseDownHandler(MouseHandler handler) { m_mouseDown = std::move(handler); }
    void setMouseMoveHandler(MouseHandler handler) { m_mouseMove = std::move(handler); }
    void setMouseUpHandler(MouseHandler handler) { m_mouseUp = std::move(handler); }

    // Asks the owner to draw the whole picture again now.
    void repaintFromOwner();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void fitCanvasToWidget();
    void scheduleShow();
    void forward(const MouseHandler& handler, QMouseEvent* event, bool pressedButtonOnly);

    ImageCanvas m_canvas;
    std::function<void()> m_paintHandler;
    MouseHandler m_mouseDown;
    MouseHandler m_mouseMove;
    MouseHandler m_mouseUp;
    bool m_drawnOnce = false;
    bool m_showPending = false;
    QElapsedTimer m_sinceShown;
};
