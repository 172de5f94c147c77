#include "MacroPanel.h"

#include "core/Geometry.h"
#include "core/Numeric.h"

#include <cmath>

namespace {

constexpr int32_t Black = 0;
constexpr float GridShiftDivisor = 10000;

DevicePoint corner(double x, double y)
{
    return {Numeric::toInt32(x), Numeric::toInt32(y)};
}

} // namespace

void MacroPanel::UpdateIndicators(float H, float V, Canvas& xIndicator, Canvas& yIndicator)
{
    m_IndicatorScaleX = LargerOf(m_IndicatorScaleX, 2 * std::fabs(H));
    m_IndicatorScaleY = LargerOf(m_IndicatorScaleY, 2 * std::fabs(V));
    if (m_IndicatorScaleX != 0)
        DrawSquare(Horizontal, xIndicator, H / (2 * m_IndicatorScaleX));
    if (m_IndicatorScaleY != 0)
        DrawSquare(Vertical, yIndicator, V / (2 * m_IndicatorScaleY));
    m_GridOffsetX = WrapOffset(m_GridOffsetX + H / GridShiftDivisor);
    m_GridOffsetY = WrapOffset(m_GridOffsetY + V / GridShiftDivisor);
}

float MacroPanel::WrapOffset(float offset)
{
    if (offset > GridStep)
        return 0;
    if (offset < -GridStep)
        return GridStep;
    return offset;
}

void MacroPanel::DrawSquare(int16_t Direction, Canvas& Box, float Value)
{
    const double W = Box.ScaleWidth();
    const double Hb = Box.ScaleHeight();
    // The bar's first two corners lie on the centre line, which is drawn over it.
    if (Direction == Horizontal) {
        const double end = W * (double(Value) + 0.5);
        m_IndicatorCorners = {corner(W / 2, 0), corner(W / 2, Hb), corner(end, Hb), corner(end, 0)};
    } else {
        const double end = Hb * (double(Value) + 0.5);
        m_IndicatorCorners = {corner(0, Hb / 2), corner(W, Hb / 2), corner(W, end), corner(0, end)};
    }
    Box.Cls();
    Box.setDrawWidth(1);
    Box.Polygon({m_IndicatorCorners.begin(), m_IndicatorCorners.end()});
    Box.setDrawWidth(3);
    const DevicePoint& lineFrom = m_IndicatorCorners[0];
    const DevicePoint& lineTo = m_IndicatorCorners[1];
    Box.Line(float(lineFrom.x), float(lineFrom.y), float(lineTo.x), float(lineTo.y), Black);
}

void MacroPanel::DrawMacroGrid(Canvas& panel) const
{
    panel.Cls();
    const int16_t lastX = Numeric::toInt16(double(panel.ScaleWidth()) + GridStep);
    for (int32_t x = -int32_t(GridStep); x <= lastX; x += int32_t(GridStep))
        panel.LineStep(float(x) - m_GridOffsetX, panel.ScaleTop(), 0, panel.ScaleHeight());
    const int16_t lastY = Numeric::toInt16(double(panel.ScaleHeight()) + GridStep);
    for (int32_t y = -int32_t(GridStep); y <= lastY; y += int32_t(GridStep))
        panel.LineStep(panel.ScaleLeft(), float(y) - m_GridOffsetY, panel.ScaleWidth(), 0);
}
