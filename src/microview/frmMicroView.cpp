#include "frmMicroView.h"

#include "MicroViewExport.h"
#include "TickDriver.h"

#include "widgets/CanvasWidget.h"
#include "canvas/Rgb.h"
#include "core/Numeric.h"
#include "model/Gas.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/HandlerGuard.h"
#include "widgets/suppl.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QLocale>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>

#include <charconv>

namespace {

constexpr int16_t SolidLiquidTemperature = 100;
constexpr int16_t LiquidGasTemperature = 200;

// The shortest text that reads back as the same float, with the user's separator.
QString timeStepText(float value)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    QString text = QString::fromLatin1(buffer, int(result.ptr - buffer));
    return text.replace(QLatin1Char('.'), QLocale().decimalPoint());
}

void setTextColor(QLabel* label, int32_t color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Rgb::toQColor(color));
    label->setPalette(palette);
}

} // namespace

frmMicroView::frmMicroView()
{
    setObjectName("frmMicroView");
    setWindowTitle(tr("Microscopic View of Gas"));
    FormLayout::fixSize(this, 7680, 6705);
    buildControls(this);
    SimulationTimer = new TickDriver([this] { tick(); }, this);
    connectControls();
    new MicroViewExport(this, m_statistics);
    RunGuarded([this] { InitialiseProgram(); });
}

frmMicroView::~frmMicroView()
{
    SimulationTimer->setEnabled(false);
}

void frmMicroView::connectControls()
{
    for (int i = 0; i < 3; ++i) {
        picDraw[i]->setPaintHandler([this, i] { RunGuarded([this, i] { picDraw_Paint(i); }); });
        connect(cmdCommand[i], &QPushButton::clicked, this,
            [this, i] { RunGuarded([this, i] { cmdCommand_Click(i); }); });
    }
    for (int i = 0; i < 2; ++i)
        connectBar(HScrNoOfMolecules[i], [this, i] { HScrNoOfMolecules_Change(i); },
            [this, i] { HScrNoOfMolecules_Scroll(i); });
    connectBar(HScrMass, [this] { HScrMass_Change(); }, {});
    connectBar(HScrRadius, [this] { HScrRadius_Change(); }, [this] { HScrRadius_Scroll(); });
    connectBar(HScrdt, [this] { HScrdt_Change(); }, [this] { HScrdt_Scroll(); });
    connectBar(HScrTemp, [this] { HScrTemp_Change(); }, [this] { HScrTemp_Scroll(); });
    const std::array<std::pair<QCheckBox*, void (frmMicroView::*)()>, 7> boxes = {{
        {chkDrawGrid, &frmMicroView::chkDrawGrid_Click},
        {chkDrawCenterLine, &frmMicroView::chkDrawCenterLine_Click},
        {ChkRandomDrawColor, &frmMicroView::ChkRandomDrawColor_Click},
        {chkFilledMolecules, &frmMicroView::chkFilledMolecules_Click},
        {ChkLeaveTrail, &frmMicroView::ChkLeaveTrail_Click},
        {ChkObserveSingleMolecule, &frmMicroView::ChkObserveSingleMolecule_Click},
        {ChkPerturbation, &frmMicroView::ChkPerturbation_Click},
    }};
    for (const auto& [box, handler] : boxes)
        connect(box, &QCheckBox::clicked, this,
            [this, handler = handler] { RunGuarded([this, handler] { (this->*handler)(); }); });
}

void frmMicroView::connectBar(QScrollBar* bar, std::function<void()> change, std::function<void()> scroll)
{
    // While the thumb is dragged the bar scrolls; the change comes when it is let
    // go, and only if the value moved (a bar without a scroll handler applies its
    // value then). Arrow and page clicks change the value at once.
    connect(bar, &QScrollBar::valueChanged, this, [bar, change, scroll] {
        if (!bar->isSliderDown())
            RunGuarded(change);
        else if (scroll)
            RunGuarded(scroll);
    });
    connect(bar, &QScrollBar::sliderPressed, this, [bar] { bar->setProperty("pressedValue", bar->value()); });
    connect(bar, &QScrollBar::sliderReleased, this, [bar, change] {
        if (bar->property("pressedValue").toInt() != bar->value())
            RunGuarded(change);
    });
}

void frmMicroView::setBarValue(QScrollBar* bar, int value, const std::function<void()>& handler)
{
    {
        const QSignalBlocker blocker(bar);
        bar->setValue(value);
    }
    handler();
}

void frmMicroView::setCheckValue(QCheckBox* box, bool checked, const std::function<void()>& handler)
{
    box->setChecked(checked);
    handler();
}

void frmMicroView::forEachSample(const std::function<void(Gas&)>& action)
{
    for (const std::unique_ptr<Gas>& gas : Sample)
        if (gas)
            action(*gas);
}

void frmMicroView::Form_Resize()
{
    CentreForm(this);
}

void frmMicroView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    RunGuarded([this] { Form_Resize(); });
}

void frmMicroView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The form keeps its designed size, so maximising and restoring its child-window
    // frame resize the frame alone; those changes reach the form through this filter.
    QWidget* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (frame && frame != m_watchedFrame) {
        frame->installEventFilter(this);
        m_watchedFrame = frame;
    }
}

bool frmMicroView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_watchedFrame && (event->type() == QEvent::WindowStateChange || event->type() == QEvent::Resize))
        RunGuarded([this] { Form_Resize(); });
    return QWidget::eventFilter(watched, event);
}

void frmMicroView::closeEvent(QCloseEvent* event)
{
    SimulationTimer->setEnabled(false);
    QWidget::closeEvent(event);
}

void frmMicroView::InitialiseProgram()
{
    m_panel.setIndicatorScaleX(1.0F);
    m_panel.setIndicatorScaleY(1.0F);
    createSamples();
    Sample[0]->setWallCoord(picDraw[0]->canvas().ScaleWidth() / 3);
    Sample[1]->setWallCoord(2 * picDraw[1]->canvas().ScaleWidth() / 3);
    Sample[2]->setWallCoord(picDraw[2]->canvas().ScaleHeight() / 3);
    setCheckValue(chkFilledMolecules, false, [this] { chkFilledMolecules_Click(); });
    setBarValue(HScrMass, 10, [this] { HScrMass_Change(); });
    setBarValue(HScrRadius, 70, [this] { HScrRadius_Change(); });
    forEachSample([](Gas& gas) {
        gas.setExternalForceX(0);
        gas.setExternalForceY(0);
    });
    setBarValue(HScrTemp, 293, [this] { HScrTemp_Change(); });
    setBarValue(HScrdt, 10, [this] { HScrdt_Change(); });
    setCheckValue(chkDrawGrid, false, [this] { chkDrawGrid_Click(); });
    forEachSample([](Gas& gas) {
        gas.setMoleculesKapaX(0);
        gas.setMoleculesKapaY(0);
        gas.setLatticeKapaX(0);
        gas.setLatticeKapaY(0);
    });
    setCheckValue(ChkPerturbation, false, [this] { ChkPerturbation_Click(); });
    SimulationTimer->setInterval(1);
    setBarValue(HScrNoOfMolecules[0], 3, [this] { HScrNoOfMolecules_Change(0); });
    setBarValue(HScrNoOfMolecules[1], 3, [this] { HScrNoOfMolecules_Change(1); });
}

void frmMicroView::createSamples()
{
    const int16_t equilibrium = Numeric::toInt16(HScrTemp->maximum() / 2.0);
    for (int i = 0; i < 3; ++i) {
        Sample[i] = std::make_unique<Gas>();
        Gas& gas = *Sample[i];
        gas.setCanvas(&picDraw[i]->canvas());
        gas.setWall(int16_t(i));
        gas.setSolidLiquidTemperature(SolidLiquidTemperature);
        gas.setLiquidGasTemperature(LiquidGasTemperature);
        gas.setEquilibriumTemperature(equilibrium);
    }
}

void frmMicroView::DestroySample()
{
    for (std::unique_ptr<Gas>& gas : Sample)
        gas.reset();
}

void frmMicroView::InitialiseCounters()
{
    m_statistics.InitialiseCounters();
}

void frmMicroView::ClearHistory()
{
    InitialiseCounters();
    m_panel.setIndicatorScaleX(0);
    m_panel.setIndicatorScaleY(0);
}

void frmMicroView::picDraw_Paint(int Index)
{
    if (Sample.at(Index))
        Sample[Index]->DrawGas();
}

void frmMicroView::tick()
{
    // A fault stops the run as "Pause" would, so the button and the timer agree.
    RunGuarded([this] { SimulationTimer_Timer(); }, [this] { pause(); });
}

void frmMicroView::SimulationTimer_Timer()
{
    if (!Sample[0] || !Sample[1] || !Sample[2])
        return;
    float L = 0, R = 0, T = 0, B = 0;
    // Impulses on walls this view does not measure land here and are dropped.
    float S1 = 0, S2 = 0, S3 = 0;
    Sample[0]->ShowNextSnapshot(L, S1, S2, S3);
    Sample[1]->ShowNextSnapshot(S1, R, S2, S3);
    Sample[2]->ShowNextSnapshot(S1, S2, T, S3);
    UpdateForceIndicators(L, R, T, B);
    DrawMacroGrid();
}

void frmMicroView::UpdateForceIndicators(float& Fleft, float& Fright, float& Ftop, float& Fbottom)
{
    const ForceReadout readout = m_statistics.UpdateForceIndicators(Fleft, Fright, Ftop, Fbottom);
    lblCurrentFx[0]->setText(readout.CurrentLeft);
    lblCurrentFx[1]->setText(readout.CurrentRight);
    lblCurrentFy->setText(readout.CurrentTop);
    lblMeanFx[0]->setText(readout.MeanLeft);
    lblMeanFx[1]->setText(readout.MeanRight);
    lblMeanFy->setText(readout.MeanTop);
    lblFxMeanTotal->setText(readout.MeanHorizontal);
    lblFyMeanTotal->setText(readout.MeanVertical);
    m_panel.UpdateIndicators(readout.H, readout.V, picForceXIndicator->canvas(), picForceYIndicator->canvas());
}

void frmMicroView::DrawMacroGrid()
{
    m_panel.DrawMacroGrid(picMacroView->canvas());
}

void frmMicroView::cmdCommand_Click(int Index)
{
    switch (Index) {
    case ExitButton:
        SimulationTimer->setEnabled(false);
        DestroySample();
        CloseAndRelease(this);
        break;
    case SimulateButton:
        if (m_running)
            pause();
        else
            simulate();
        break;
    case ClearHistoryButton:
        ClearHistory();
        break;
    default:
        break;
    }
}

void frmMicroView::simulate()
{
    m_running = true;
    cmdCommand[SimulateButton]->setToolTip(tr("Click to pause simulation"));
    InitialiseCounters();
    cmdCommand[SimulateButton]->setText(tr("Pause"));
    SimulationTimer->setEnabled(true);
}

void frmMicroView::pause()
{
    m_running = false;
    cmdCommand[SimulateButton]->setToolTip(tr("Click to begin simulation"));
    SimulationTimer->setEnabled(false);
    cmdCommand[SimulateButton]->setText(tr("Simulate"));
}

void frmMicroView::HScrNoOfMolecules_Change(int Index)
{
    forEachSample([](Gas& gas) { gas.DestroyMolecules(); });
    const int16_t value = int16_t(HScrNoOfMolecules.at(Index)->value());
    if (Index == 0)
        forEachSample([value](Gas& gas) { gas.setColumnsOfMolecules(value); });
    else
        forEachSample([value](Gas& gas) { gas.setRowsOfMolecules(value); });
    lblNoOfMolecules[Index]->setText((Index == 0 ? tr("Nx=%1") : tr("Ny=%1")).arg(value));
    forEachSample([](Gas& gas) {
        gas.InitialiseParticles();
        gas.DrawGas();
    });
}

void frmMicroView::HScrNoOfMolecules_Scroll(int Index)
{
    HScrNoOfMolecules_Change(Index);
}

void frmMicroView::HScrMass_Change()
{
    const int16_t value = int16_t(HScrMass->value());
    lblMass->setText(tr("m=%1").arg(value));
    forEachSample([value](Gas& gas) { gas.setMoleculesMass(value); });
}

void frmMicroView::HScrRadius_Change()
{
    const int16_t value = int16_t(HScrRadius->value());
    lblRadius->setText(tr("R=%1").arg(value));
    forEachSample([value](Gas& gas) { gas.setRadius(value); });
}

void frmMicroView::HScrRadius_Scroll()
{
    HScrRadius_Change();
}

void frmMicroView::HScrdt_Change()
{
    const float value = float(HScrdt->value()) / 100;
    forEachSample([value](Gas& gas) { gas.setTimeStep(value); });
    lbldt->setText(tr("dt=%1").arg(timeStepText(Sample[0]->TimeStep())));
}

void frmMicroView::HScrdt_Scroll()
{
    HScrdt_Change();
}

void frmMicroView::HScrTemp_Change()
{
    const int16_t value = int16_t(HScrTemp->value());
    lblTemp->setText(tr("T=%1").arg(value));
    forEachSample([value](Gas& gas) { gas.setTemperature(value); });
    int32_t color = Rgb::RGB(0, 0, 0);
    if (value >= Sample[0]->LiquidGasTemperature())
        color = Rgb::RGB(255, 0, 0);
    else if (value <= Sample[0]->SolidLiquidTemperature())
        color = Rgb::RGB(0, 0, 255);
    setTextColor(lblTemp, color);
}

void frmMicroView::HScrTemp_Scroll()
{
    HScrTemp_Change();
}

void frmMicroView::chkDrawGrid_Click()
{
    const bool checked = chkDrawGrid->isChecked();
    forEachSample([checked](Gas& gas) { gas.setGridOn(checked); });
}

void frmMicroView::chkDrawCenterLine_Click()
{
    const bool checked = chkDrawCenterLine->isChecked();
    forEachSample([checked](Gas& gas) { gas.setDrawCenterLine(checked); });
    forEachSample([](Gas& gas) { gas.DrawGas(); });
}

void frmMicroView::ChkRandomDrawColor_Click()
{
    const bool checked = ChkRandomDrawColor->isChecked();
    forEachSample([checked](Gas& gas) { gas.setRandomDrawColor(checked); });
    forEachSample([](Gas& gas) { gas.DrawGas(); });
}

void frmMicroView::chkFilledMolecules_Click()
{
    const bool checked = chkFilledMolecules->isChecked();
    forEachSample([checked](Gas& gas) { gas.setFilledMolecules(checked); });
    forEachSample([](Gas& gas) { gas.DrawGas(); });
}

void frmMicroView::ChkLeaveTrail_Click()
{
    const bool checked = ChkLeaveTrail->isChecked();
    forEachSample([checked](Gas& gas) { gas.setLeaveTrail(checked); });
}

void frmMicroView::ChkObserveSingleMolecule_Click()
{
    if (ChkObserveSingleMolecule->isChecked()) {
        chkFilledMolecules->setEnabled(false);
        ChkRandomDrawColor->setEnabled(false);
        forEachSample([](Gas& gas) { gas.setObserveSingleMolecule(true); });
    } else {
        forEachSample([](Gas& gas) { gas.setObserveSingleMolecule(false); });
        chkFilledMolecules->setEnabled(true);
        ChkRandomDrawColor->setEnabled(true);
    }
}

void frmMicroView::ChkPerturbation_Click()
{
    const bool checked = ChkPerturbation->isChecked();
    forEachSample([checked](Gas& gas) { gas.setPerturbation(checked); });
}
