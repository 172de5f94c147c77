#include "ExperimentView.h"

#include "canvas/Canvas.h"
#include "model/CollisionSetup.h"

#include <QCoreApplication>

ExperimentView::ExperimentView(Canvas& canvas, CollisionSetup& setup) : m_canvas(canvas), m_setup(setup), m_state(setup)
{
}

void ExperimentView::InitialiseCollision()
{
    CollisionSetup& parameters = m_setup;
    parameters.useDefaultColours();
    const CollisionSetup defaults;
    parameters.Mass = defaults.Mass;
    parameters.Ux = defaults.Ux;
    parameters.X = defaults.X;
    m_scene.InitialiseGround(m_canvas);
}

void ExperimentView::SetUpPage(int16_t page)
{
    m_page = page;
    m_graphs.BuildGraphList(m_canvas, m_setup, page);
}

int16_t ExperimentView::CheckCollision()
{
    const int16_t code = m_state.ComputeCollision(m_page);
    m_scene.ComputeViewport(m_canvas, m_setup, m_state, m_page);
    m_scene.DrawCollisionScene(m_canvas, m_setup, m_state, m_page);
    return code;
}

QString ExperimentView::CheckBoxText(int16_t code)
{
    const std::string message = CollisionState::CheckMessage(code);
    if (message.empty())
        return QString();
    return QCoreApplication::translate("CollisionState", CollisionState::CheckBoxFrame)
        .arg(QCoreApplication::translate("CollisionState", message.c_str()));
}

QString ExperimentView::CheckTitle()
{
    return QCoreApplication::translate("CollisionState", CollisionState::CheckTitle);
}

float ExperimentView::RunEnd() const
{
    return 2 * m_state.ContactStart;
}

void ExperimentView::ClearZoom()
{
    m_graphs.GraphZoomed = 0;
    m_graphs.ContactZoom = false;
}

void ExperimentView::StartCollisionRun()
{
    ClearZoom();
    // A set-up made while a graph was enlarged laid the graphs out in the enlarged
    // panel alone, leaving the run's own panels as an older layout left them.
    if (m_graphs.GraphCount > 0)
        m_graphs.LayoutGraphs(m_canvas, m_setup, m_graphs.GraphCount);
    m_state.SimulationTime = 0;
    for (int16_t g = 1; g <= m_graphs.GraphCount; ++g)
        m_graphs.GraphRange(m_setup, m_state, g, m_graphs.GraphQuantity[g], 0, RunEnd());
    m_graphs.StartGraphClocks(m_state);
    m_graphs.DrawGraphFrames(m_canvas, m_graphs.GraphCount);
    m_record.Start(m_page);
    m_record.Add(m_state);
}

bool ExperimentView::Tick()
{
    m_scene.MoveBodies(m_canvas, m_setup, m_state, m_page);
    m_graphs.DrawGraphStep(m_canvas, m_setup, m_state);
    m_record.Add(m_state);
    if (RunEnd() <= m_state.SimulationTime) {
        m_state.SimulationTime = 0;
        return true;
    }
    return false;
}

void ExperimentView::Paint(bool runCompleted)
{
    m_scene.DrawCollisionScene(m_canvas, m_setup, m_state, m_page);
    if (m_page == CollisionSetup::SideView && runCompleted)
        m_graphs.RedrawGraphs(m_canvas, m_setup, m_state);
}

void ExperimentView::MouseUp(int16_t button, float y, bool runCompleted)
{
    if (button == LeftButton) {
        leftClick(y, runCompleted);
        return;
    }
    // Only an enlarged graph on the screen can show its contact: that is after a
    // finished run on the side view. A page set-up since then has drawn the scene,
    // which a contact graph would replace with no way back; the view from above
    // never shows a graph.
    if (button != RightButton || m_graphs.GraphZoomed != 1 || m_page != CollisionSetup::SideView || !runCompleted)
        return;
    if (m_graphs.ContactZoom) {
        // Back from the contact to the whole run of the same graph.
        m_graphs.GraphZoomed = 0;
        leftClick(0, runCompleted);
        return;
    }
    m_graphs.ContactZoom = true;
    const float contact = m_state.ContactStart;
    const float step = m_state.TimeStep;
    m_graphs.ZoomGraph(m_canvas, m_setup, m_state, contact - 12 * step / 2, contact + 36 * step / 2);
}

void ExperimentView::leftClick(float y, bool runCompleted)
{
    if (m_graphs.GraphZoomed == 1) {
        m_graphs.GraphZoomed = 0;
        m_graphs.ContactZoom = false;
        Paint(runCompleted);
        return;
    }
    if (m_page != CollisionSetup::SideView || !runCompleted || m_graphs.GraphCount <= 1)
        return;
    if (m_graphs.ContactZoom) {
        m_graphs.ContactZoom = false;
    } else {
        const int16_t g = m_graphs.PanelAt(y);
        if (g == 0)
            return;
        m_graphs.SelectedGraph = g;
    }
    m_graphs.GraphZoomed = 1;
    m_graphs.ZoomGraph(m_canvas, m_setup, m_state, 0, RunEnd());
}
