#pragma once

#include "model/CollisionArray.h"

#include <cstdint>

class Canvas;
class CollisionSetup;
class CollisionState;

// The time graphs of the side view: distance, velocity and force of both bodies,
// up to three panels in the upper three quarters of the picture (panels 1 to 3 in
// list order) or one enlarged graph (panel 4). Frames and curves are drawn in
// exclusive-or mode. A graph whose time or value range is 0 is not drawn at all.
class CollisionGraphs
{
public:
    // The panel of the enlarged graph.
    static constexpr int16_t ZoomPanel = 4;
    // The points of a curve.
    static constexpr int Steps = 100;

    // The list of graphs switched on in the parameters (distance, velocity, force in
    // that order) and their layout; the view from above (page 1) shows none.
    void BuildGraphList(const Canvas& canvas, const CollisionSetup& setup, int16_t page);

    // Panels for count graphs stacked in the upper three quarters of the picture,
    // or the enlarged panel while a graph is zoomed; also the grid and axis colours.
    void LayoutGraphs(const Canvas& canvas, const CollisionSetup& setup, int16_t count);

    // A panel's time range t1..t2, its value range, and its picture mapping, the
    // axes kept proportional when the parameters ask for it.
    void GraphRange(const CollisionSetup& setup, CollisionState& state, int16_t panel,
                    int16_t quantity, float t1, float t2);

    // The value range of a quantity over the panel's time range, 0 always included.
    void GraphExtremes(CollisionState& state, int16_t panel, int16_t quantity);

    // Grid and axes of the first count panels (the enlarged one while zoomed).
    void DrawGraphFrames(Canvas& canvas, int16_t count);

    // Puts each graph's clock at its start and takes both bodies' values there,
    // ready for the first DrawGraphStep.
    void StartGraphClocks(CollisionState& state);

    // One step of every curve, both bodies, the force drawn as steps in the linear
    // and constant-force models.
    void DrawGraphStep(Canvas& canvas, const CollisionSetup& setup, CollisionState& state);

    // Frames and whole curves again after a finished run (for a repaint).
    void RedrawGraphs(Canvas& canvas, const CollisionSetup& setup, CollisionState& state);

    // Clears the picture and shows the selected graph alone over t1..t2.
    void ZoomGraph(Canvas& canvas, const CollisionSetup& setup, CollisionState& state,
                   float t1, float t2);

    // The first of the GraphCount panels whose height holds picture y, 0 for none.
    int16_t PanelAt(float y) const;

    // Whether a panel's ranges allow drawing it (neither is 0).
    bool GraphDrawable(int16_t panel) const;

    int16_t GraphCount = 0;
    CollisionArray<int16_t, 4> GraphQuantity; // 1 distance, 2 velocity, 3 force
    float AxisColor = 0;
    float GridColor = 0;
    float GraphMargin = 0;
    CollisionArray<float, 4> PanelLeft, PanelRight, PanelTop, PanelBottom;
    CollisionArray<float, 4> GraphTimeMin, GraphTimeMax, GraphTimeStep;
    CollisionArray<float, 4> GraphValueMin, GraphValueMax;
    CollisionArray<float, 4> GraphShownTimeMin, GraphShownTimeMax;
    CollisionArray<float, 4> GraphShownValueMin, GraphShownValueMax;
    CollisionArray<float, 4> GraphXFactor, GraphXOffset, GraphYFactor, GraphYOffset;
    CollisionArray<float, 4> GraphClock;                         // time of the last point
    CollisionArray<CollisionArray<float, 2>, 4> GraphLastValue;  // by panel, then body
    CollisionArray<CollisionArray<float, 2>, 4> GraphColor;      // by panel, then body
    CollisionArray<int16_t, 2> GraphStepFlag;                    // by body: inside a force step
    int16_t GraphZoomed = 0;   // 1 while one graph is shown enlarged
    bool ContactZoom = false;  // the enlarged graph shows only the contact
    int16_t SelectedGraph = 0; // number of the enlarged graph in the list

private:
    int16_t panelOf(int16_t g) const;
    void drawGrid(Canvas& canvas, int16_t panel);
    void drawCurveStep(Canvas& canvas, const CollisionSetup& setup, CollisionState& state,
                       int16_t panel, int16_t quantity, int16_t body, float colour);
    float pictureX(int16_t panel, float t) const;
    float pictureY(int16_t panel, float value) const;
};
