#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <array>
#include <functional>

class QPushButton;
class QScrollBar;

// The introduction's run control: the timer Timer1, the delay scroll bar and the
// buttons "Simulation" / "Finish" (5), "Pause" / "Continue" / "Next" (8) and
// "Step" / "Restore" (9). The state of a run is held here, one state per button,
// and each caption and hint is made from it. What a start and a tick do on the page
// shown is the window's, passed in as handlers.
class RunControl : public QObject
{
    Q_OBJECT

public:
    // Works the window's buttons (all ten, by index) and delay bar.
    RunControl(const std::array<QPushButton*, 10>& cmdCommand, QScrollBar* HScrSimulationDelay,
        QObject* parent = nullptr);

    // What "Simulation" starts on the page shown, and what one tick does there.
    void setStartHandler(std::function<void()> handler) { m_start = std::move(handler); }
    void setTickHandler(std::function<void()> handler) { m_tick = std::move(handler); }

    // A click on button 5, 8 or 9.
    void cmdCommand_Click(int Index);

    // One timer tick: the page's tick handler. A fault in it stops the run.
    void Timer1_Timer();

    // The delay bar: ticks every 10 x Value^2 ms.
    void HScrSimulationDelay_Change();

    // Turns the timer on for a collision run.
    void StartTimer();
    // A liquid run: "Simulation" becomes "Finish", stays enabled, the timer runs.
    void StartLiquidRun();

    // Ends a run: timer off, "Simulation" again, navigation enabled, and the run
    // buttons (5, 8, 9) disabled until the page is set up again.
    void StopSimulation();

    // True once a collision run has ended on the page.
    bool RunCompleted() const { return m_RunCompleted; }
    void setRunCompleted(bool value) { m_RunCompleted = value; }

    // The timer of the runs.
    QTimer& Timer1() { return m_Timer1; }

    // The buttons that work a run, by their index among the window's buttons.
    enum Button { StartButton = 5, PauseButton = 8, StepButton = 9 };
    // What "Simulation" / "Finish" does next: start a run, or end the one going on.
    enum class StartState { Simulation, Finish };
    // What the pause button does next: pause, resume, or take one step.
    enum class PauseState { Pause, Continue, Next };
    // What the step button does next: turn stepping on, or back off.
    enum class StepState { Step, Restore };

    StartState startState() const { return m_startState; }
    PauseState pauseState() const { return m_pauseState; }
    StepState stepState() const { return m_stepState; }

private:
    void setStartState(StartState state);
    void setPauseState(PauseState state);
    void setStepState(StepState state);
    void showButton(Button button, const QString& caption, const QString& hint);
    void StartSimulation();
    void guardedTick();
    void setRunButtonsEnabled(bool running);

    std::array<QPushButton*, 10> cmdCommand;
    QScrollBar* HScrSimulationDelay;
    QTimer m_Timer1;
    std::function<void()> m_start;
    std::function<void()> m_tick;
    bool m_RunCompleted = false;
    StartState m_startState = StartState::Simulation;
    PauseState m_pauseState = PauseState::Pause;
    StepState m_stepState = StepState::Step;
};
