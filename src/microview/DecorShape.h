#pragma once

#include <QWidget>

#include <cstdint>

// A fixed decoration drawn over a picture area: a rectangle, a circle, a rounded
// rectangle or a line, placed in twips. It never takes the mouse, so the picture
// under it keeps its tool tip.
class DecorShape : public QWidget
{
    Q_OBJECT

public:
    // The forms a decoration takes.
    enum class Kind { Rectangle, Circle, RoundedRectangle, Line };

    // A filled shape in the box (left, top, width, height) in twips; a circle
    // takes the box's smaller side as its diameter, centred in the box.
    static DecorShape* shape(QWidget* parent, const QString& name, Kind kind, int left, int top,
        int width, int height);
    // A line between two points given in twips.
    static DecorShape* line(QWidget* parent, const QString& name, int x1, int y1, int x2, int y2);

    // Outline colour and width in pixels; fill colour (whole RGB numbers).
    void setBorder(int32_t color, int width);
    void setFill(int32_t color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DecorShape(QWidget* parent, const QString& name, Kind kind);

    Kind m_kind;
    int32_t m_borderColor = 0;
    int m_borderWidth = 1;
    int32_t m_fillColor = 0;
    // The line's ends, within the widget, in pixels.
    QPointF m_from;
    QPointF m_to;
};
