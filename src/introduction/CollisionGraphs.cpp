#include "CollisionGraphs.h"

#include "canvas/Canvas.h"
#include "canvas/Rgb.h"
#include "core/Geometry.h"
#include "core/Numeric.h"
#include "model/CollisionState.h"

#include <cmath>
#include <utility>

namespace {

constexpr int16_t AboveView = CollisionSetup::AboveView;
// The graphs follow the motion along x, the side view's one direction.
constexpr int16_t GraphComponent = CollisionState::ComponentX;
// Enough grid lines for any panel; only a broken range could ask for more.
constexpr int MaxGridLines = 1000;

int32_t colourOf(float stored)
{
    return Numeric::toInt32(stored);
}

} // namespace

void CollisionGraphs::BuildGraphList(const Canvas& canvas, const CollisionSetup& setup, int16_t page)
{
    GraphCount = 0;
    for (const auto& [shown, quantity] : {std::pair{setup.GraphDistance, CollisionState::Position},
                                          std::pair{setup.GraphVelocity, CollisionState::Velocity},
                                          std::pair{setup.GraphForce, CollisionState::Force}})
        if (shown == 1)
            GraphQuantity[++GraphCount] = quantity;
    if (GraphCount > 0)
        LayoutGraphs(canvas, setup, GraphCount);
    // The view from above has no room for graphs.
    if (page == AboveView)
        GraphCount = 0;
}

void CollisionGraphs::LayoutGraphs(const Canvas& canvas, const CollisionSetup& setup, int16_t count)
{
    AxisColor = float(Rgb::RGB(0, 0, 255) ^ canvas.BackColor());
    GridColor = float(Rgb::RGB(120, 120, 120) ^ canvas.BackColor());
    GraphMargin = 0.02f * canvas.ScaleWidth();
    if (count < 1)
        return;
    // The graphs share the upper three quarters of the picture.
    const float h = 3 * (canvas.ScaleTop() + canvas.ScaleHeight()) / (4.0f * count);
    for (int16_t g = 1; g <= count; ++g) {
        const int16_t p = panelOf(g);
        PanelLeft[p] = canvas.ScaleLeft() + GraphMargin;
        PanelRight[p] = canvas.ScaleLeft() + canvas.ScaleWidth() - GraphMargin;
        PanelTop[p] = GraphZoomed == 1 ? canvas.ScaleTop() + GraphMargin
                                       : canvas.ScaleTop() + (g - 1) * h + GraphMargin;
        PanelBottom[p] = PanelTop[p] + h - GraphMargin;
        GraphColor[g][1] = setup.BodyColor[1];
        GraphColor[g][2] = setup.BodyColor[2];
    }
}

void CollisionGraphs::GraphExtremes(CollisionState& state, int16_t panel, int16_t quantity)
{
    GraphTimeStep[panel] = (GraphTimeMax[panel] - GraphTimeMin[panel]) / Steps;
    float low = state.BodyState(GraphComponent, quantity, 1, GraphTimeMin[panel]);
    float high = low;
    for (int16_t body = 1; body <= 2; ++body) {
        float t = GraphTimeMin[panel];
        for (int step = 0; step < Steps; ++step) {
            t += GraphTimeStep[panel];
            const float v = state.BodyState(GraphComponent, quantity, body, t);
            low = SmallerOf(low, v);
            high = LargerOf(high, v);
        }
    }
    // Every graph shows its zero line.
    if (low < 0 && high < 0)
        high = 0;
    if (low > 0 && high > 0)
        low = 0;
    GraphValueMin[panel] = low;
    GraphValueMax[panel] = high;
}

void CollisionGraphs::GraphRange(const CollisionSetup& setup, CollisionState& state, int16_t panel,
                                 int16_t quantity, float t1, float t2)
{
    GraphTimeMin[panel] = SmallerOf(t1, t2);
    GraphTimeMax[panel] = LargerOf(t1, t2);
    GraphExtremes(state, panel, quantity);

    const double W = double(PanelRight[panel]) - PanelLeft[panel];
    const double H = double(PanelBottom[panel]) - PanelTop[panel];
    const double dT = double(GraphTimeMax[panel]) - GraphTimeMin[panel];
    const double dV = double(GraphValueMax[panel]) - GraphValueMin[panel];
    GraphShownTimeMin[panel] = GraphTimeMin[panel];
    GraphShownTimeMax[panel] = GraphTimeMax[panel];
    GraphShownValueMin[panel] = GraphValueMin[panel];
    GraphShownValueMax[panel] = GraphValueMax[panel];
    if (setup.ProportionalGraphs == 1 && W > 0 && H > 0) {
        // One second and one unit of value get the same length: the shorter axis
        // is widened about its centre.
        if (std::fabs(dV) >= std::fabs(dT * H / W)) {
            const double centre = (double(GraphTimeMin[panel]) + GraphTimeMax[panel]) / 2;
            GraphShownTimeMin[panel] = static_cast<float>(centre - dV * W / H / 2);
            GraphShownTimeMax[panel] = static_cast<float>(centre + dV * W / H / 2);
        } else {
            const double centre = (double(GraphValueMin[panel]) + GraphValueMax[panel]) / 2;
            GraphShownValueMin[panel] = static_cast<float>(centre - dT * H / W / 2);
            GraphShownValueMax[panel] = static_cast<float>(centre + dT * H / W / 2);
        }
    }

    const float shownTime = GraphShownTimeMax[panel] - GraphShownTimeMin[panel];
    const float shownValue = GraphShownValueMax[panel] - GraphShownValueMin[panel];
    if (shownTime == 0 || shownValue == 0) {
        // A graph without extent cannot be mapped; it stays undrawn.
        GraphXFactor[panel] = GraphXOffset[panel] = GraphYFactor[panel] = GraphYOffset[panel] = 0;
        return;
    }
    GraphXFactor[panel] = static_cast<float>(W / shownTime);
    GraphXOffset[panel] = PanelLeft[panel] - GraphShownTimeMin[panel] * GraphXFactor[panel];
    GraphYFactor[panel] = static_cast<float>(-H / shownValue);
    GraphYOffset[panel] = PanelBottom[panel] - GraphShownValueMin[panel] * GraphYFactor[panel];
}

bool CollisionGraphs::GraphDrawable(int16_t panel) const
{
    return GraphXFactor[panel] != 0 && GraphYFactor[panel] != 0 && std::isfinite(GraphXFactor[panel])
           && std::isfinite(GraphYFactor[panel]);
}

void CollisionGraphs::DrawGraphFrames(Canvas& canvas, int16_t count)
{
    for (int16_t g = 1; g <= count; ++g) {
        const int16_t p = panelOf(g);
        if (!GraphDrawable(p))
            continue;
        drawGrid(canvas, p);
        const float x0 = GraphXOffset[p];
        const float y0 = GraphYOffset[p];
        const int32_t axis = colourOf(AxisColor);
        canvas.Line(PanelLeft[p], y0, PanelRight[p], y0, axis);
        canvas.Line(x0, PanelTop[p], x0, PanelBottom[p], axis);
    }
}

void CollisionGraphs::drawGrid(Canvas& canvas, int16_t p)
{
    // The grid runs from the axes outwards, with one step across and along; the
    // lines through the axes are drawn twice and so leave room for the axes.
    const float x0 = GraphXOffset[p];
    const float y0 = GraphYOffset[p];
    const float s = LargerOf(std::fabs(PanelTop[p] - y0) / 5, std::fabs(PanelBottom[p] - y0) / 5);
    if (!(s > 0))
        return;
    const int32_t grid = colourOf(GridColor);
    for (int k = 0; k < MaxGridLines && x0 + k * s < PanelRight[p]; ++k)
        canvas.Line(x0 + k * s, PanelTop[p], x0 + k * s, PanelBottom[p], grid);
    for (int k = 0; k < MaxGridLines && x0 - k * s > PanelLeft[p]; ++k)
        canvas.Line(x0 - k * s, PanelTop[p], x0 - k * s, PanelBottom[p], grid);
    for (int k = 0; k < MaxGridLines && y0 + k * s < PanelBottom[p]; ++k)
        canvas.Line(PanelLeft[p], y0 + k * s, PanelRight[p], y0 + k * s, grid);
    for (int k = 0; k < MaxGridLines && y0 - k * s > PanelTop[p]; ++k)
        canvas.Line(PanelLeft[p], y0 - k * s, PanelRight[p], y0 - k * s, grid);
}

void CollisionGraphs::StartGraphClocks(CollisionState& state)
{
    for (int16_t g = 1; g <= GraphCount; ++g) {
        GraphClock[g] = GraphTimeMin[g];
        for (int16_t body = 1; body <= 2; ++body)
            GraphLastValue[g][body] = state.BodyState(GraphComponent, GraphQuantity[g], body, GraphClock[g]);
    }
    GraphStepFlag.fill(0);
}

void CollisionGraphs::DrawGraphStep(Canvas& canvas, const CollisionSetup& setup, CollisionState& state)
{
    for (int16_t g = 1; g <= GraphCount; ++g) {
        for (int16_t body = 1; body <= 2; ++body)
            drawCurveStep(canvas, setup, state, g, GraphQuantity[g], body, GraphColor[g][body]);
        GraphClock[g] += GraphTimeStep[g];
    }
}

void CollisionGraphs::drawCurveStep(Canvas& canvas, const CollisionSetup& setup, CollisionState& state,
                                    int16_t panel, int16_t quantity, int16_t body, float colour)
{
    const bool drawable = GraphDrawable(panel);
    const int32_t pen = colourOf(colour);
    const float before = GraphClock[panel];
    if (drawable)
        canvas.PSet(pictureX(panel, before), pictureY(panel, GraphLastValue[panel][body]), pen);
    const float t = before + GraphTimeStep[panel];
    const float v = state.BodyState(GraphComponent, quantity, body, t);
    GraphLastValue[panel][body] = v;

    // The force of the linear and constant-force models is a step function: it
    // jumps and drops at the old time instead of sloping across the step.
    const bool stepped = quantity == CollisionState::Force
                         && (setup.ForceModel == CollisionSetup::LinearModel
                             || setup.ForceModel == CollisionSetup::ContinuousVelocity);
    float toTime = t;
    float toValue = v;
    bool pointOnly = false;
    if (stepped && v != 0 && GraphStepFlag[body] == 0) {
        toTime = before;
        GraphStepFlag[body] = 1;
    } else if (stepped && v == 0 && GraphStepFlag[body] != 0) {
        GraphStepFlag[body] = 0;
        toTime = before;
        pointOnly = setup.ForceModel == CollisionSetup::LinearModel;
    }
    if (!drawable)
        return;
    if (pointOnly)
        canvas.PSet(pictureX(panel, toTime), pictureY(panel, toValue), pen);
    else
        canvas.LineTo(pictureX(panel, toTime), pictureY(panel, toValue), pen);
}

void CollisionGraphs::RedrawGraphs(Canvas& canvas, const CollisionSetup& setup, CollisionState& state)
{
    state.SimulationTime = 0;
    StartGraphClocks(state);
    DrawGraphFrames(canvas, GraphCount);
    for (int step = 0; step < Steps; ++step)
        DrawGraphStep(canvas, setup, state);
}

void CollisionGraphs::ZoomGraph(Canvas& canvas, const CollisionSetup& setup, CollisionState& state,
                                float t1, float t2)
{
    canvas.Cls();
    LayoutGraphs(canvas, setup, 1);
    state.SimulationTime = t1;
    const int16_t quantity = GraphQuantity[SelectedGraph];
    GraphRange(setup, state, ZoomPanel, quantity, t1, t2);
    GraphClock[ZoomPanel] = GraphTimeMin[ZoomPanel];
    for (int16_t body = 1; body <= 2; ++body)
        GraphLastValue[ZoomPanel][body] = state.BodyState(GraphComponent, quantity, body, GraphClock[ZoomPanel]);
    GraphStepFlag.fill(0);
    DrawGraphFrames(canvas, 1);
    for (int step = 0; step < Steps; ++step) {
        for (int16_t body = 1; body <= 2; ++body)
            drawCurveStep(canvas, setup, state, ZoomPanel, quantity, body, setup.BodyColor[body]);
        GraphClock[ZoomPanel] += GraphTimeStep[ZoomPanel];
    }
}

int16_t CollisionGraphs::PanelAt(float y) const
{
    for (int16_t g = 1; g <= GraphCount; ++g)
        if (PanelTop[g] <= y && y <= PanelBottom[g])
            return g;
    return 0;
}

int16_t CollisionGraphs::panelOf(int16_t g) const
{
    return GraphZoomed == 1 ? ZoomPanel : g;
}

float CollisionGraphs::pictureX(int16_t panel, float t) const
{
    return t * GraphXFactor[panel] + GraphXOffset[panel];
}

float CollisionGraphs::pictureY(int16_t panel, float value) const
{
    return value * GraphYFactor[panel] + GraphYOffset[panel];
}
