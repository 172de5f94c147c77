#pragma once

#include "CollisionGraphs.h"
#include "CollisionScene.h"

#include "model/CollisionBalance.h"
#include "model/CollisionRecord.h"
#include "model/CollisionState.h"

#include <QString>

#include <cstdint>

class Canvas;

// The collision experiment as the introduction's unit 3 pages 1 and 2 show it: the
// page set-up and pre-run check, a run's start and ticks on the experiment's own
// clock, the repaint, and the graph zoom by mouse clicks after a run. It drives the
// physics (CollisionState), the picture (CollisionScene) and the graphs
// (CollisionGraphs) on the introduction's picture; the window keeps the buttons.
class ExperimentView
{
public:
    // The mouse buttons of MouseUp.
    static constexpr int16_t LeftButton = 1;
    static constexpr int16_t RightButton = 2;

    // A view that draws on the introduction's picture and runs the given set-up;
    // both outlive it.
    ExperimentView(Canvas& canvas, CollisionSetup& setup);

    // The experiment's first set-up when the introduction loads, after the
    // defaults: current colours from the defaults, the default masses, x velocities
    // and positions, and the ground of the side view.
    void InitialiseCollision();

    // The page set-up of page 1 (view from above) or 2 (side view): the list and
    // layout of the graphs.
    void SetUpPage(int16_t page);

    // The pre-run check: computes the collision for the page set up, draws the
    // starting picture and returns the check code (0: a run may start).
    int16_t CheckCollision();

    // The text of the check's message box for a failed check; empty for the codes
    // that have no message (the run stays blocked without a word).
    static QString CheckBoxText(int16_t code);
    // The title of that message box.
    static QString CheckTitle();

    // Ends any enlarged graph: the start of every run, on any page, does this.
    void ClearZoom();

    // Starts a run: clock at 0, no graph enlarged, the graphs laid out in their own
    // panels, graph ranges for the whole run, graph clocks and frames.
    void StartCollisionRun();

    // One tick: erases the bodies, advances the clock one step, moves and draws them
    // again and extends the graphs. Returns true when the run has reached its end,
    // with the clock put back to 0.
    bool Tick();

    // Draws the page again (after a resize or a change of the zoom).
    void Paint(bool runCompleted);

    // A mouse button released over the picture: after a finished run on page 2, a
    // left click enlarges the graph under the pointer or returns to all graphs, and
    // a right click on an enlarged graph shows only the contact or the whole run.
    // A left click on a picture set up while a graph was enlarged brings the scene
    // back; a right click there does nothing.
    void MouseUp(int16_t button, float y, bool runCompleted);

    // The page set up last (1 or 2).
    int16_t Page() const { return m_page; }

    // Every step of the last run, from its start.
    const CollisionRecord& Record() const { return m_record; }

    // Momentum and kinetic energy before and after the contact of the page set up.
    CollisionBalance Balance() const { return CollisionBalance(m_setup, m_state, m_page); }

    // The parts the view drives.
    CollisionState& State() { return m_state; }
    CollisionScene& Scene() { return m_scene; }
    CollisionGraphs& Graphs() { return m_graphs; }

private:
    void leftClick(float y, bool runCompleted);
    float RunEnd() const;

    Canvas& m_canvas;
    CollisionSetup& m_setup;
    CollisionState m_state;
    CollisionScene m_scene;
    CollisionGraphs m_graphs;
    CollisionRecord m_record;
    int16_t m_page = 1;
};
