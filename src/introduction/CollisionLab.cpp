#include "CollisionLab.h"

#include "ExperimentView.h"
#include "ResultsPanel.h"

#include "core/Numeric.h"
#include "model/FluidParameters.h"
#include "model/LiquidMolecules.h"
#include "widgets/CanvasWidget.h"
#include "widgets/FileExport.h"
#include "widgets/FormLayout.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"

#include <QMdiSubWindow>
#include <QPushButton>
#include <QShortcut>

CollisionLab::CollisionLab(QWidget* form, CanvasWidget* picture, ExperimentView& experiment, int clientWidth,
                           int clientHeight)
    : QObject(form), m_form(form), m_picture(picture), m_experiment(experiment), m_clientWidth(clientWidth),
      m_clientHeight(clientHeight)
{
    // Left of "Options", above "Delay": the one free place in the column of buttons.
    cmdResults = new QPushButton(tr("Results"), form);
    cmdResults->setObjectName("cmdResults");
    cmdResults->setCheckable(true);
    cmdResults->setAutoDefault(false);
    FormLayout::place(cmdResults, 5040, 4440, 1455, 345);
    StatusHints::install(cmdResults, tr("Momentum and kinetic energy before and after the collision; saving"));
    cmdResults->hide();
    connect(cmdResults, &QPushButton::toggled, this, [this](bool open) { RunGuarded([this, open] { ShowResults(open); }); });

    m_panel = new ResultsPanel(form);
    FormLayout::place(m_panel, clientWidth, 0, ResultsPanel::Width, ResultsPanel::Height);
    m_panel->hide();
    m_panel->SaveDataButton()->setEnabled(false);
    connect(m_panel->SavePictureButton(), &QPushButton::clicked, this, [this] { RunGuarded([this] { SavePicture(); }); });
    connect(m_panel->SaveDataButton(), &QPushButton::clicked, this, [this] { RunGuarded([this] { SaveData(); }); });

    auto* pictureKey = new QShortcut(QKeySequence(tr("Ctrl+Shift+S")), form);
    auto* dataKey = new QShortcut(QKeySequence(tr("Ctrl+S")), form);
    for (QShortcut* key : {pictureKey, dataKey})
        key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(pictureKey, &QShortcut::activated, this, [this] {
        if (m_collisionPage)
            RunGuarded([this] { SavePicture(); });
    });
    connect(dataKey, &QShortcut::activated, this, [this] {
        if (m_collisionPage && m_runShown)
            RunGuarded([this] { SaveData(); });
    });
}

void CollisionLab::PageShown(bool collisionPage, bool liquidPage)
{
    m_collisionPage = collisionPage;
    m_liquidPage = liquidPage;
    cmdResults->setText(liquidPage ? tr("Counts") : tr("Results"));
    cmdResults->setVisible(collisionPage || liquidPage);
    if (!collisionPage && !liquidPage)
        cmdResults->setChecked(false);
    if (collisionPage)
        m_panel->ShowCollisionPanel();
    RunStarted();
}

void CollisionLab::LiquidChanged(const LiquidMolecules& molecules, const FluidParameters& fluid)
{
    if (m_liquidPage)
        m_panel->ShowCounts(molecules.HalfCounts(), {Numeric::toInt32(fluid.FluidGroupColor[1]),
                                                     Numeric::toInt32(fluid.FluidGroupColor[2])});
}

void CollisionLab::RunStarted()
{
    m_runShown = false;
    m_panel->ClearFigures();
    m_panel->SaveDataButton()->setEnabled(false);
}

void CollisionLab::RunFinished()
{
    m_runShown = true;
    m_panel->ShowFigures(m_experiment.Balance(), m_experiment.Page());
    m_panel->SaveDataButton()->setEnabled(true);
}

void CollisionLab::ShowResults(bool open)
{
    m_panel->setVisible(open);
    fitForm(open);
}

void CollisionLab::fitForm(bool open)
{
    FormLayout::fixSize(m_form, m_clientWidth + (open ? ResultsPanel::Width + 120 : 0), m_clientHeight);
    if (auto* frame = qobject_cast<QMdiSubWindow*>(m_form->parentWidget()))
        frame->adjustSize();
}

void CollisionLab::SavePicture()
{
    FileExport::SavePicture(m_form, m_picture->canvas().image(), QStringLiteral("collision.png"));
}

void CollisionLab::SaveData()
{
    FileExport::SaveTable(m_form, m_experiment.Record().Table(), QStringLiteral("collision.csv"));
}
