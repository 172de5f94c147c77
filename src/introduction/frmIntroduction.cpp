#include "frmIntroduction.h"

#include "CollisionLab.h"
#include "IntroductionKeys.h"
#include "RunControl.h"
#include "frmCollisionOptions.h"

#include "widgets/CanvasWidget.h"
#include "core/EntryFilter.h"
#include "core/Numeric.h"
#include "widgets/OptionsWidgets.h"
#include "microview/frmLGOptions.h"
#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"
#include "model/ParameterDefaults.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/StatusLine.h"
#include "widgets/HandlerGuard.h"
#include "widgets/MsgBox.h"
#include "widgets/StatusHints.h"
#include "widgets/suppl.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>

using namespace OptionsWidgets;

namespace {

constexpr int ClientWidth = 8145;
constexpr int ClientHeight = 5400;
constexpr int PictureWidth = 4575;
constexpr int PictureHeight = 4935;

// The typed unit and page: digits only, no minus sign, no decimal point.
constexpr int16_t UnitPageFlags = 5;

} // namespace

frmIntroduction::frmIntroduction(CollisionSetup& setup, FluidParameters& fluid) : m_setup(setup), m_fluid(fluid)
{
    setObjectName("frmIntroduction");
    setWindowTitle(tr("Introduction"));
    FormLayout::fixSize(this, ClientWidth, ClientHeight);
    createControls();
    installHints();
    IntroductionKeys::install(cmdCommand, txtUnit, txtPage, HScrSimulationDelay, picIntroduction, txtIntro);
    GoToFirstPage();
    RestoreAllDefaults(m_setup, m_fluid, PictureBackColor());
    m_experiment->InitialiseCollision();
}

frmIntroduction::~frmIntroduction() = default;

QPushButton* frmIntroduction::createButton(int index, const QString& caption, int left, int top, int width,
    int height)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(indexedName("cmdCommand", index));
    FormLayout::place(button, left, top, width, height);
    connect(button, &QPushButton::clicked, this, [this, index] { RunGuarded([this, index] { cmdCommand_Click(index); }); });
    cmdCommand[index] = button;
    return button;
}

void frmIntroduction::createControls()
{
    fraDraw = new QGroupBox(this);
    fraDraw->setObjectName("fraDraw");
    FormLayout::place(fraDraw, 120, 0, 4815, 5295);
    picIntroduction = new CanvasWidget(fraDraw);
    picIntroduction->setObjectName("picIntroduction");
    FormLayout::place(picIntroduction, 120, 240, PictureWidth, PictureHeight);
    // The picture is drawn in its own twips whatever the screen's pixel density,
    // with every figure combined by exclusive-or and filled solid.
    ImageCanvas& canvas = picIntroduction->canvas();
    canvas.resize(picIntroduction->width(), picIntroduction->height());
    canvas.setScale(0, 0, PictureWidth, PictureHeight);
    canvas.setDrawMode(Canvas::XorPen);
    canvas.setFillStyle(Canvas::Solid);
    picIntroduction->setPaintHandler([this] { RunGuarded([this] { picIntroduction_Paint(); }); });
    picIntroduction->setMouseUpHandler([this](int16_t button, int16_t shift, float x, float y) {
        RunGuarded([&] { picIntroduction_MouseUp(button, shift, x, y); });
    });
    m_experiment = std::make_unique<ExperimentView>(canvas, m_setup);
    m_liquid = std::make_unique<LiquidPage>(canvas, m_fluid);
    m_lab = new CollisionLab(this, picIntroduction, *m_experiment, ClientWidth, ClientHeight);

    txtIntro = new QPlainTextEdit(this);
    txtIntro->setObjectName("txtIntro");
    txtIntro->setReadOnly(true);
    txtIntro->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    FormLayout::place(txtIntro, 5040, 120, 3015, 2535);

    createNavigation();
    createRunControls();
}

void frmIntroduction::createNavigation()
{
    createButton(PreviousUnitButton, tr("<<"), 5160, 2760, 495, 255);
    createButton(PreviousPageButton, tr("<"), 5880, 2760, 495, 255);
    createButton(NextPageButton, tr(">"), 6720, 2760, 495, 255);
    createButton(NextUnitButton, tr(">>"), 7440, 2760, 495, 255);

    lblUnit = new QLabel(tr("Unit:"), this);
    lblUnit->setObjectName("lblUnit");
    FormLayout::place(lblUnit, 5040, 3120, 855, 285);
    txtUnit = new QLineEdit(this);
    txtUnit->setObjectName("txtUnit");
    txtUnit->setMaxLength(2);
    FormLayout::place(txtUnit, 6000, 3120, 375, 285);
    lblPage = new QLabel(tr("Page:"), this);
    lblPage->setObjectName("lblPage");
    FormLayout::place(lblPage, 6720, 3120, 735, 285);
    txtPage = new QLineEdit(this);
    txtPage->setObjectName("txtPage");
    txtPage->setMaxLength(2);
    FormLayout::place(txtPage, 7560, 3120, 375, 285);
    connect(txtUnit, &QLineEdit::textEdited, this, [this] { RunGuarded([this] { txtUnit_Change(); }); });
    connect(txtPage, &QLineEdit::textEdited, this, [this] { RunGuarded([this] { txtPage_Change(); }); });

    createButton(GoToButton, tr("Go To"), 5040, 3480, 1455, 375);
}

void frmIntroduction::createRunControls()
{
    createButton(SimulationButton, tr("Simulation"), 6600, 3480, 1455, 375);
    createButton(PauseButton, tr("Pause"), 5040, 3960, 1455, 375)->setEnabled(false);
    createButton(StepButton, tr("Step"), 6600, 3960, 1455, 375)->setEnabled(false);
    createButton(OptionsButton, tr("Options"), 6600, 4440, 1455, 375);
    createButton(ExitButton, tr("Exit"), 6600, 4920, 1455, 375);

    Label1 = new QLabel(tr("Delay"), this);
    Label1->setObjectName("Label1");
    Label1->setAlignment(Qt::AlignCenter);
    FormLayout::place(Label1, 5160, 4800, 1215, 255);
    HScrSimulationDelay = new QScrollBar(Qt::Horizontal, this);
    HScrSimulationDelay->setObjectName("HScrSimulationDelay");
    HScrSimulationDelay->setRange(1, 5);
    HScrSimulationDelay->setPageStep(1);
    HScrSimulationDelay->setValue(1);
    FormLayout::place(HScrSimulationDelay, 5160, 5055, 1215, 240);

    m_run = new RunControl(cmdCommand, HScrSimulationDelay, this);
    m_run->setStartHandler([this] { StartSimulation(); });
    m_run->setTickHandler([this] { TickPage(); });
}

void frmIntroduction::installHints()
{
    StatusHints::install(this, tr("Introduction"));
    StatusHints::install(txtIntro, tr("Explanation"));
    StatusHints::install(txtIntro->viewport(), tr("Explanation"));
    StatusHints::install(txtUnit, tr("select unit"));
    StatusHints::install(txtPage, tr("Select page"));
    StatusHints::install(lblUnit, tr("Select Unit"));
    onClick(lblPage, [] { SetStatusLine(tr("Select Page")); });
    StatusHints::install(picIntroduction, tr("Visualisation"));
    const std::array<std::pair<Command, QString>, 7> hints = {{
        {ExitButton, tr("Exit introduction")},
        {PreviousUnitButton, tr("Go to previous unit")},
        {PreviousPageButton, tr("Go to previous page")},
        {NextPageButton, tr("Go to next page")},
        {NextUnitButton, tr("Go to next unit")},
        {GoToButton, tr("Go to Unit and/or Page")},
        {OptionsButton, tr("Define collision parameters")},
    }};
    for (const auto& [index, hint] : hints)
        StatusHints::install(cmdCommand[index], hint);
}

QString frmIntroduction::ClosingHint()
{
    return tr("The Floatrixon - A modern Greek game");
}

int32_t frmIntroduction::PictureBackColor() const
{
    return picIntroduction->canvas().BackColor();
}

bool frmIntroduction::onCollisionPage() const
{
    return IntroductionBook::IsCollisionPage(m_CurrentUnit, m_CurrentPage);
}

bool frmIntroduction::onLiquidPage() const
{
    return IntroductionBook::IsLiquidPage(m_CurrentUnit, m_CurrentPage);
}

void frmIntroduction::cmdCommand_Click(int Index)
{
    switch (Index) {
    case ExitButton:
        CloseAndRelease(this);
        break;
    case PreviousUnitButton:
    case PreviousPageButton:
    case NextPageButton:
    case NextUnitButton:
        Navigate(Index);
        break;
    case GoToButton:
        GoTo();
        break;
    case OptionsButton:
        ShowOptions();
        break;
    default:
        m_run->cmdCommand_Click(Index);
        break;
    }
}

bool frmIntroduction::NextPosition(int Index, int16_t& unit, int16_t& page) const
{
    unit = m_CurrentUnit;
    page = m_CurrentPage;
    switch (Index) {
    case PreviousUnitButton:
        if (unit <= 1)
            return false;
        --unit;
        page = 1;
        return true;
    case PreviousPageButton:
        if (page > 1) {
            --page;
            return true;
        }
        if (unit <= 1)
            return false;
        --unit;
        page = m_book.PagesInUnit(unit);
        return true;
    case NextPageButton:
        if (page < m_book.PagesInUnit(unit)) {
            ++page;
            return true;
        }
        if (unit >= IntroductionBook::UnitCount)
            return false;
        ++unit;
        page = 1;
        return true;
    case NextUnitButton:
        if (unit >= IntroductionBook::UnitCount)
            return false;
        ++unit;
        page = 1;
        return true;
    default:
        return false;
    }
}

void frmIntroduction::Navigate(int Index)
{
    int16_t unit = 0;
    int16_t page = 0;
    if (!NextPosition(Index, unit, page))
        return;
    // Only "<" within the same unit leaves the unit box alone.
    MoveTo(unit, page, Index != PreviousPageButton || unit != m_CurrentUnit);
}

void frmIntroduction::MoveTo(int16_t unit, int16_t page, bool writeUnit)
{
    m_CurrentUnit = unit;
    m_CurrentPage = page;
    if (writeUnit)
        writeUnitText(unit);
    writePageText(page);
    // Every page starts from the default parameters of both experiments.
    RestoreAllDefaults(m_setup, m_fluid, PictureBackColor());
    GoTo();
}

void frmIntroduction::writeUnitText(int16_t unit)
{
    txtUnit->setText(QString::number(unit));
    txtUnit_Change();
}

void frmIntroduction::writePageText(int16_t page)
{
    txtPage->setText(QString::number(page));
    txtPage_Change();
}

bool frmIntroduction::typedNumberValid(const QLineEdit* box, int16_t max) const
{
    // The book has no unit or page 0.
    return IsValidNumber(UnitPageFlags, box->text(), max) && LeadingNumber(box->text()) >= 1;
}

bool frmIntroduction::takeTypedNumber(QLineEdit* box, int16_t max, int16_t& position)
{
    const bool valid = typedNumberValid(box, max);
    showValidity(box, valid);
    if (!valid) {
        cmdCommand[GoToButton]->setEnabled(false);
        return false;
    }
    position = Numeric::toInt16(LeadingNumber(box->text()));
    return true;
}

void frmIntroduction::txtUnit_Change()
{
    // "Go To" comes back only once the other box holds a valid number too.
    if (takeTypedNumber(txtUnit, IntroductionBook::UnitCount, m_CurrentUnit)
        && typedNumberValid(txtPage, m_book.PagesInUnit(m_CurrentUnit)))
        cmdCommand[GoToButton]->setEnabled(true);
}

void frmIntroduction::txtPage_Change()
{
    if (takeTypedNumber(txtPage, m_book.PagesInUnit(m_CurrentUnit), m_CurrentPage)
        && typedNumberValid(txtUnit, IntroductionBook::UnitCount))
        cmdCommand[GoToButton]->setEnabled(true);
}

void frmIntroduction::GoToFirstPage()
{
    m_run->setRunCompleted(false);
    writeUnitText(1);
    writePageText(1);
    GoTo();
}

void frmIntroduction::GoTo()
{
    m_PageReady = false;
    picIntroduction->canvas().setPicture(QImage());
    m_liquid->Leave();
    m_PageReady = true;
    // Only a page with an experiment offers a run: elsewhere a run could never end.
    cmdCommand[SimulationButton]->setEnabled(onCollisionPage() || onLiquidPage());
    m_run->setRunCompleted(false);
    ShowPage();
}

void frmIntroduction::ShowPage()
{
    txtIntro->setPlainText(m_book.PageTitle(m_CurrentUnit, m_CurrentPage));
    picIntroduction->canvas().Cls();
    m_lab->PageShown(onCollisionPage(), onLiquidPage());
    if (onLiquidPage()) {
        fraDraw->setTitle(QString());
        m_liquid->PrepareLiquidPage(m_CurrentPage);
        m_lab->LiquidChanged(m_liquid->Molecules(), m_fluid);
    } else if (onCollisionPage()) {
        ShowCollisionPage();
    }
}

void frmIntroduction::ShowCollisionPage()
{
    fraDraw->setTitle(IntroductionBook::FrameCaption(m_CurrentUnit, m_CurrentPage));
    txtIntro->setPlainText(m_book.PageText(m_CurrentUnit, m_CurrentPage));
    m_experiment->SetUpPage(m_CurrentPage);
    CheckCollision();
}

void frmIntroduction::CheckCollision()
{
    const int16_t code = m_experiment->CheckCollision();
    cmdCommand[SimulationButton]->setEnabled(false);
    cmdCommand[OptionsButton]->setFocus();
    if (code == CollisionState::CodeReady) {
        cmdCommand[SimulationButton]->setEnabled(true);
        cmdCommand[SimulationButton]->setFocus();
        return;
    }
    const QString text = ExperimentView::CheckBoxText(code);
    if (!text.isEmpty())
        MsgBox(text, 16, ExperimentView::CheckTitle());
}

void frmIntroduction::StartSimulation()
{
    // Every start ends an enlarged graph, a liquid run's too, so that the side
    // view's next set-up lays its graphs out in their own panels.
    m_experiment->ClearZoom();
    if (onCollisionPage()) {
        m_experiment->StartCollisionRun();
        m_lab->RunStarted();
        m_run->StartTimer();
    } else if (onLiquidPage()) {
        m_run->StartLiquidRun();
    }
}

void frmIntroduction::TickPage()
{
    if (onCollisionPage()) {
        if (m_experiment->Tick()) {
            m_run->StopSimulation();
            m_lab->RunFinished();
        }
    } else if (onLiquidPage()) {
        m_liquid->Tick();
        m_lab->LiquidChanged(m_liquid->Molecules(), m_fluid);
    }
}

void frmIntroduction::ShowOptions()
{
    m_setup.Page = m_CurrentPage;
    // A dialog releases itself on "Ok" or "Cancel"; one left by other means goes here.
    QPointer<QDialog> dialog;
    if (onCollisionPage())
        dialog = new frmCollisionOptions(m_setup, PictureBackColor());
    else if (onLiquidPage())
        dialog = new frmLGOptions(m_fluid, m_CurrentPage);
    else
        return;
    dialog->exec();
    if (dialog && !IsReleased(dialog))
        CloseAndRelease(dialog);
    GoTo();
    if (onCollisionPage())
        m_experiment->SetUpPage(m_CurrentPage);
}

void frmIntroduction::picIntroduction_Paint()
{
    if (!m_PageReady)
        return;
    if (onCollisionPage())
        m_experiment->Paint(m_run->RunCompleted());
    else if (onLiquidPage() && m_liquid->Page() == m_CurrentPage)
        m_liquid->DrawLiquidPage();
}

void frmIntroduction::picIntroduction_MouseUp(int16_t Button, int16_t, float, float Y)
{
    if (onCollisionPage())
        m_experiment->MouseUp(Button, Y, m_run->RunCompleted());
    else if (onLiquidPage())
        m_liquid->RemovePartition();
}

void frmIntroduction::Form_Resize()
{
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (frame && frame->isMinimized())
        SetStatusLine(ClosingHint());
    else
        CentreForm(this);
}

void frmIntroduction::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    RunGuarded([this] { Form_Resize(); });
}

void frmIntroduction::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The child-window frame that holds the form is minimised and restored as a
    // whole; its state changes reach the form through this filter.
    QWidget* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    if (frame && frame != m_watchedFrame) {
        frame->installEventFilter(this);
        m_watchedFrame = frame;
    }
}

bool frmIntroduction::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_watchedFrame && (event->type() == QEvent::WindowStateChange || event->type() == QEvent::Resize))
        RunGuarded([this] { Form_Resize(); });
    return QWidget::eventFilter(watched, event);
}

void frmIntroduction::closeEvent(QCloseEvent* event)
{
    m_run->Timer1().stop();
    SetStatusLine(ClosingHint());
    event->accept();
}
