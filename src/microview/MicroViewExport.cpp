#include "MicroViewExport.h"

#include "ForceStatistics.h"

#include "widgets/FileExport.h"
#include "widgets/FormLayout.h"
#include "widgets/HandlerGuard.h"

#include <QPushButton>
#include <QShortcut>

MicroViewExport::MicroViewExport(QWidget* view, const ForceStatistics& statistics)
    : QObject(view), m_view(view), m_statistics(statistics)
{
    auto* savePicture = new QPushButton(tr("Save picture..."), view);
    savePicture->setObjectName("cmdSavePicture");
    savePicture->setToolTip(tr("Save this window's picture as a PNG file (Ctrl+Shift+S)"));
    FormLayout::place(savePicture, 480, 1245, 2175, 300);
    auto* saveData = new QPushButton(tr("Save data..."), view);
    saveData->setObjectName("cmdSaveData");
    saveData->setToolTip(tr("Save the current and mean wall forces of every tick since the last reset as a CSV "
                            "file (Ctrl+S)"));
    FormLayout::place(saveData, 5400, 1245, 2175, 300);
    for (QPushButton* button : {savePicture, saveData})
        button->setFocusPolicy(Qt::NoFocus);

    auto* pictureKey = new QShortcut(QKeySequence(tr("Ctrl+Shift+S")), view);
    auto* dataKey = new QShortcut(QKeySequence(tr("Ctrl+S")), view);
    for (QShortcut* key : {pictureKey, dataKey})
        key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(savePicture, &QPushButton::clicked, this, [this] { RunGuarded([this] { SavePicture(); }); });
    connect(pictureKey, &QShortcut::activated, this, [this] { RunGuarded([this] { SavePicture(); }); });
    connect(saveData, &QPushButton::clicked, this, [this] { RunGuarded([this] { SaveData(); }); });
    connect(dataKey, &QShortcut::activated, this, [this] { RunGuarded([this] { SaveData(); }); });
}

void MicroViewExport::SavePicture()
{
    FileExport::SavePicture(m_view, m_view->grab().toImage(), QStringLiteral("microview.png"));
}

void MicroViewExport::SaveData()
{
    FileExport::SaveTable(m_view, m_statistics.Record(), QStringLiteral("wall_forces.csv"));
}
