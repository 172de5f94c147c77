#pragma once

#include "canvas/Canvas.h"

#include <array>
#include <cstdint>

// The moving parts of the balloon panel: the two force indicators, whose scales
// follow the largest net totals seen, and the grid behind the balloon, which
// slides against the net force so that the balloon is seen to travel with it.
class MacroPanel
{
public:
    // Which way an indicator's bar grows.
    static constexpr int16_t Vertical = 0;
    static constexpr int16_t Horizontal = 1;
    // The grid period, which is also the limit of the grid shift.
    static constexpr float GridStep = 200;

    // Updates the indicator scales, redraws each indicator whose scale is not 0,
    // and shifts the grid by the totals H and V (sums since the last reset).
    void UpdateIndicators(float H, float V, Canvas& xIndicator, Canvas& yIndicator);

    // Draws an indicator: a red bar from the centre, Value (about -0.25..0.25)
    // of its length long, and a black centre line, all in device pixels.
    void DrawSquare(int16_t Direction, Canvas& Box, float Value);

    // Clears the panel and draws the grid lines at the current shift.
    void DrawMacroGrid(Canvas& panel) const;

    // A grid shift after adding a step, wrapped back into -200..200.
    static float WrapOffset(float offset);

    // The running maxima of twice the totals' magnitudes; 0 stops an indicator.
    float IndicatorScaleX() const { return m_IndicatorScaleX; }
    float IndicatorScaleY() const { return m_IndicatorScaleY; }
    void setIndicatorScaleX(float value) { m_IndicatorScaleX = value; }
    void setIndicatorScaleY(float value) { m_IndicatorScaleY = value; }

    // The grid shift in the panel's twips.
    float GridOffsetX() const { return m_GridOffsetX; }
    float GridOffsetY() const { return m_GridOffsetY; }
    void setGridOffsetX(float value) { m_GridOffsetX = value; }
    void setGridOffsetY(float value) { m_GridOffsetY = value; }

    // The corners of the last bar drawn.
    const std::array<DevicePoint, 4>& IndicatorCorners() const { return m_IndicatorCorners; }

private:
    float m_IndicatorScaleX = 0;
    float m_IndicatorScaleY = 0;
    float m_GridOffsetX = 0;
    float m_GridOffsetY = 0;
    std::array<DevicePoint, 4> m_IndicatorCorners{};
};
