#pragma once

#include "ForceStatistics.h"
#include "MacroPanel.h"
#include "MicroViewDesign.h"

#include <QPointer>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class Gas;
class QScrollBar;
class TickDriver;

// The "Microscopic View of Gas" child window: three samples of gas beside the
// balloon's left, right and top walls, stepped by a 1 ms timer; their wall impulses
// become current and mean forces and move the balloon panel. The bars and check
// boxes set the samples' parameters, running or paused.
class frmMicroView : public QWidget, private MicroViewDesign
{
    Q_OBJECT

public:
    // Loads the window: builds its controls and runs InitialiseProgram.
    frmMicroView();
    // Stops the timer; the samples end with the window.
    ~frmMicroView() override;

    // One simulation step of the three samples, the statistics and the panel.
    void SimulationTimer_Timer();
    // The buttons, by their index.
    enum Command { ExitButton = 0, SimulateButton = 1, ClearHistoryButton = 2 };

    // 0 Exit, 1 Simulate/Pause, 2 Clear history.
    void cmdCommand_Click(int Index);
    // Redraws a sample's picture from the sample's state.
    void picDraw_Paint(int Index);

    // The sample of wall Index (0 left, 1 right, 2 top), or null once released.
    Gas* sample(int Index) const { return Sample.at(Index).get(); }
    // The force statistics and the balloon panel's state.
    const ForceStatistics& statistics() const { return m_statistics; }
    const MacroPanel& panel() const { return m_panel; }
    // The step timer.
    const TickDriver& simulationTimer() const { return *SimulationTimer; }

protected:
    // Keeps the window centred in the frame (Form_Resize).
    void resizeEvent(QResizeEvent* event) override;
    // Starts watching the child-window frame that holds the form.
    void showEvent(QShowEvent* event) override;
    // The frame's resizes, maximising and restoring included, centre the window too.
    bool eventFilter(QObject* watched, QEvent* event) override;
    // Stops the timer, so that no tick comes after the window has closed.
    void closeEvent(QCloseEvent* event) override;

private:
    void connectControls();
    void connectBar(QScrollBar* bar, std::function<void()> change, std::function<void()> scroll);
    void tick();
    void simulate();
    void pause();
    void Form_Resize();

    void InitialiseProgram();
    void createSamples();
    void DestroySample();
    void InitialiseCounters();
    void ClearHistory();
    void UpdateForceIndicators(float& Fleft, float& Fright, float& Ftop, float& Fbottom);
    void DrawMacroGrid();

    // Sets a control's value from code and runs its handler, as a user's change would.
    void setBarValue(QScrollBar* bar, int value, const std::function<void()>& handler);
    void setCheckValue(QCheckBox* box, bool checked, const std::function<void()>& handler);
    // Runs an action on each sample in order.
    void forEachSample(const std::function<void(Gas&)>& action);

    void HScrNoOfMolecules_Change(int Index);
    void HScrNoOfMolecules_Scroll(int Index);
    void HScrMass_Change();
    void HScrRadius_Change();
    void HScrRadius_Scroll();
    void HScrdt_Change();
    void HScrdt_Scroll();
    void HScrTemp_Change();
    void HScrTemp_Scroll();
    void chkDrawGrid_Click();
    void chkDrawCenterLine_Click();
    void ChkRandomDrawColor_Click();
    void chkFilledMolecules_Click();
    void ChkLeaveTrail_Click();
    void ChkObserveSingleMolecule_Click();
    void ChkPerturbation_Click();

    std::array<std::unique_ptr<Gas>, 3> Sample;
    ForceStatistics m_statistics;
    MacroPanel m_panel;
    TickDriver* SimulationTimer = nullptr;
    // Whether the samples are running; the button's caption and tip follow it.
    bool m_running = false;
    QPointer<QWidget> m_watchedFrame;
};
