#include "RunControl.h"

#include "core/Numeric.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"

#include <QPushButton>
#include <QScrollBar>

RunControl::RunControl(const std::array<QPushButton*, 10>& cmdCommand, QScrollBar* HScrSimulationDelay,
    QObject* parent)
    : QObject(parent), cmdCommand(cmdCommand), HScrSimulationDelay(HScrSimulationDelay)
{
    m_Timer1.setObjectName("Timer1");
    m_Timer1.setTimerType(Qt::PreciseTimer);
    m_Timer1.setInterval(10);
    connect(&m_Timer1, &QTimer::timeout, this, &RunControl::guardedTick);
    connect(HScrSimulationDelay, &QScrollBar::valueChanged, this,
        [this] { RunGuarded([this] { HScrSimulationDelay_Change(); }); });
    setStartState(m_startState);
    setPauseState(m_pauseState);
    setStepState(m_stepState);
}

void RunControl::showButton(Button button, const QString& caption, const QString& hint)
{
    cmdCommand[button]->setText(caption);
    StatusHints::install(cmdCommand[button], hint);
}

void RunControl::setStartState(StartState state)
{
    m_startState = state;
    if (state == StartState::Simulation)
        showButton(StartButton, tr("Simulation"), tr("Simulation of phenomenon"));
    else
        showButton(StartButton, tr("Finish"), tr("Stop simulation"));
}

void RunControl::setPauseState(PauseState state)
{
    m_pauseState = state;
    switch (state) {
    case PauseState::Pause:
        showButton(PauseButton, tr("Pause"), tr("Pause simulation"));
        break;
    case PauseState::Continue:
        showButton(PauseButton, tr("Continue"), tr("Resume simulation"));
        break;
    case PauseState::Next:
        showButton(PauseButton, tr("Next"), tr("Next snapshot of simulation process"));
        break;
    }
}

void RunControl::setStepState(StepState state)
{
    m_stepState = state;
    if (state == StepState::Step)
        showButton(StepButton, tr("Step"), tr("Activate step by step simulation"));
    else
        showButton(StepButton, tr("Restore"), tr("Deactivate step by step simulation"));
}

void RunControl::cmdCommand_Click(int Index)
{
    switch (Index) {
    case StartButton:
        if (m_startState == StartState::Simulation)
            StartSimulation();
        else
            StopSimulation();
        break;
    case PauseButton:
        if (m_pauseState == PauseState::Pause) {
            m_Timer1.stop();
            setPauseState(PauseState::Continue);
        } else if (m_pauseState == PauseState::Continue) {
            m_Timer1.start();
            setPauseState(PauseState::Pause);
        } else {
            guardedTick();
        }
        break;
    case StepButton:
        if (m_stepState == StepState::Step) {
            m_Timer1.stop();
            setPauseState(PauseState::Next);
            setStepState(StepState::Restore);
        } else {
            m_Timer1.start();
            setPauseState(PauseState::Pause);
            setStepState(StepState::Step);
        }
        break;
    default:
        break;
    }
}

void RunControl::StartSimulation()
{
    setRunButtonsEnabled(true);
    if (m_start)
        m_start();
}

void RunControl::setRunButtonsEnabled(bool running)
{
    for (int i = 1; i <= 7; ++i)
        cmdCommand[i]->setEnabled(!running);
    cmdCommand[PauseButton]->setEnabled(running);
    cmdCommand[StepButton]->setEnabled(running);
}

void RunControl::StartTimer()
{
    m_Timer1.start();
}

void RunControl::StartLiquidRun()
{
    setStartState(StartState::Finish);
    cmdCommand[StartButton]->setEnabled(true);
    m_Timer1.start();
}

void RunControl::StopSimulation()
{
    m_Timer1.stop();
    setStartState(StartState::Simulation);
    setRunButtonsEnabled(false);
    cmdCommand[StartButton]->setEnabled(false);
    m_RunCompleted = true;
}

void RunControl::guardedTick()
{
    // A fault ends the run, so no further tick repeats it while its message is up.
    RunGuarded([this] { Timer1_Timer(); }, [this] { StopSimulation(); });
}

void RunControl::Timer1_Timer()
{
    if (m_tick)
        m_tick();
}

void RunControl::HScrSimulationDelay_Change()
{
    const double value = HScrSimulationDelay->value();
    m_Timer1.setInterval(Numeric::toInt32(10 * value * value));
}
