#include "RunControl.h"

#include "core/Numeric.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"

#include <QPushButton>
#include <QScrollBar>

namespace {

const QString Simulation = QStringLiteral("Simulation");
const QString Finish = QStringLiteral("Finish");
const QString Pause = QStringLiteral("Pause");
const QString Continue = QStringLiteral("Continue");
const QString Next = QStringLiteral("Next");
const QString Step = QStringLiteral("Step");
const QString Restore = QStringLiteral("Restore");

} // namespace

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
    for (int index : {5, 8, 9})
        setCaption(index, cmdCommand[index]->text());
}

void RunControl::setCaption(int index, const QString& caption)
{
    cmdCommand[index]->setText(caption);
    StatusHints::install(cmdCommand[index], HintFor(index, caption));
}

QString RunControl::HintFor(int index, const QString& caption)
{
    switch (index) {
    case 5:
        return caption == Simulation ? QStringLiteral("Simulation of phenomenon") : QStringLiteral("Stop simulation");
    case 8:
        if (caption == Continue)
            return QStringLiteral("Resume simulation");
        if (caption == Pause)
            return QStringLiteral("Pause simulation");
        if (caption == Next)
            return QStringLiteral("Next snapshot of simulation process");
        return QString();
    case 9:
        return caption == Step ? QStringLiteral("Activate step by step simulation")
                               : QStringLiteral("Deactivate step by step simulation");
    default:
        return QString();
    }
}

void RunControl::cmdCommand_Click(int Index)
{
    const QString caption = cmdCommand[Index]->text();
    if (Index == 5) {
        if (caption == Simulation)
            StartSimulation();
        else
            StopSimulation();
    } else if (Index == 8) {
        if (caption == Pause) {
            m_Timer1.stop();
            setCaption(8, Continue);
        } else if (caption == Continue) {
            m_Timer1.start();
            setCaption(8, Pause);
        } else if (caption == Next) {
            guardedTick();
        }
    } else if (Index == 9) {
        if (caption == Step) {
            m_Timer1.stop();
            setCaption(8, Next);
            setCaption(9, Restore);
        } else {
            m_Timer1.start();
            setCaption(8, Pause);
            setCaption(9, Step);
        }
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
    cmdCommand[8]->setEnabled(running);
    cmdCommand[9]->setEnabled(running);
}

void RunControl::StartTimer()
{
    m_Timer1.start();
}

void RunControl::StartLiquidRun()
{
    setCaption(5, Finish);
    cmdCommand[5]->setEnabled(true);
    m_Timer1.start();
}

void RunControl::StopSimulation()
{
    m_Timer1.stop();
    setCaption(5, Simulation);
    setRunButtonsEnabled(false);
    cmdCommand[5]->setEnabled(false);
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
