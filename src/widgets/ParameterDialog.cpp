#include "ParameterDialog.h"

#include "ColorChooser.h"
#include "HandlerGuard.h"
#include "OptionsWidgets.h"
#include "StatusLine.h"
#include "suppl.h"
#include "WindowRelease.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

using namespace OptionsWidgets;

void ParameterDialog::createCommandButtons()
{
    const QString captions[CommandCount] = {tr("Ok"), tr("Cancel"), tr("Default values")};
    for (int i = 0; i < CommandCount; ++i) {
        cmdCommand[i] = new QPushButton(captions[i], this);
        cmdCommand[i]->setObjectName(indexedName("cmdCommand", i));
        cmdCommand[i]->setAutoDefault(false);
        connect(
            cmdCommand[i], &QPushButton::clicked, this, [this, i] { RunGuarded([this, i] { cmdCommand_Click(i); }); });
        onMouseMove(cmdCommand[i], [i] { ShowOptionsButtonHint(int16_t(i)); });
    }
    // Enter in any field accepts, as "Ok" does (Escape cancels).
    cmdCommand[Ok]->setDefault(true);
}

int ParameterDialog::addColorChoice(QPushButton* button, QLabel* caption, QLabel* swatch)
{
    const int index = int(m_swatches.size());
    m_swatches.push_back(swatch);
    auto choose = [this, index] { RunGuarded([this, index] { cmdColorSelection_Click(index); }); };
    connect(button, &QPushButton::clicked, this, choose);
    onClick(caption, choose);
    onClick(swatch, choose);
    return index;
}

void ParameterDialog::cmdCommand_Click(int Index)
{
    switch (Index) {
    case Ok:
        AcceptValues();
        accept();
        CloseAndRelease(this);
        break;
    case Cancel:
        reject();
        break;
    case DefaultValues:
        ShowDefaultValues();
        break;
    default:
        break;
    }
}

void ParameterDialog::reject()
{
    QDialog::reject();
    CloseAndRelease(this);
}

void ParameterDialog::cmdColorSelection_Click(int Index)
{
    setSwatchColor(m_swatches.at(size_t(Index)), m_chooser->ShowColor(this));
}

void ParameterDialog::MarkFieldValidity(int Field, bool Valid)
{
    if (Valid)
        InvalidFields.erase(Field);
    else
        InvalidFields.insert(Field);
    cmdCommand[Ok]->setEnabled(InvalidFields.empty());
}

void ParameterDialog::Form_Resize()
{
    if (isMinimized())
        SetStatusLine(m_minimisedHint);
    else
        CentreForm(this);
}

void ParameterDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (!m_minimisedHint.isEmpty())
        RunGuarded([this] { Form_Resize(); });
}

void ParameterDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && !m_minimisedHint.isEmpty())
        RunGuarded([this] { Form_Resize(); });
}
