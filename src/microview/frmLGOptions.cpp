#include "frmLGOptions.h"

#include "core/EntryFilter.h"
#include "core/Numeric.h"
#include "widgets/OptionsWidgets.h"
#include "model/FluidParameters.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"
#include "widgets/suppl.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace OptionsWidgets;

namespace {

constexpr int16_t MaxRows = 6;
constexpr int16_t MaxColumns = 5;
// Digits only: no minus sign, no decimal point.
constexpr int16_t WholeNumberFlags = 1;

constexpr int ClientWidth = 4335;
// Outer heights of the designed window, and the part of them taken by the caption
// and the borders, which Qt does not count in the client size.
constexpr int WindowHeight = 3975;
constexpr int Page8WindowHeight = 3495;
constexpr int CaptionAndBorders = 360;
// Page 8 has no liquid surface switch: the buttons move up over its place.
constexpr int Page8Lift = 480;

constexpr int FieldRows = 0;
constexpr int FieldColumns = 1;

} // namespace

frmLGOptions::frmLGOptions(FluidParameters& fluid, int16_t page) : m_fluid(fluid), m_page(page)
{
    setObjectName("frmLGOptions");
    setWindowTitle(QStringLiteral("Parameters of Gas Molecules"));
    setModal(true);
    FormLayout::fixSize(this, ClientWidth, WindowHeight - CaptionAndBorders);
    createControls();
    installHints();
    ShowCurrentValues();
    ArrangeForPage();
}

void frmLGOptions::createControls()
{
    fraOptions = new QGroupBox(this);
    fraOptions->setObjectName("fraOptions");
    FormLayout::place(fraOptions, 120, 120, 4095, 2415);

    const QStringList titles = {QStringLiteral("# of rows"), QStringLiteral("# of columns")};
    const int titleTops[2] = {240, 975};
    for (int i = 0; i < 2; ++i) {
        lblTitle[i] = new QLabel(titles[i], fraOptions);
        lblTitle[i]->setObjectName(indexedName("lblTitle", i));
        FormLayout::place(lblTitle[i], 120, titleTops[i], 1215, 255);
    }
    txtNoOfRows = new QLineEdit(fraOptions);
    txtNoOfRows->setObjectName("txtNoOfRows");
    FormLayout::place(txtNoOfRows, 360, 600, 495, 285);
    txtNoOfColumns = new QLineEdit(fraOptions);
    txtNoOfColumns->setObjectName("txtNoOfColumns");
    FormLayout::place(txtNoOfColumns, 360, 1320, 495, 285);
    for (QLineEdit* box : {txtNoOfRows, txtNoOfColumns})
        box->setMaxLength(3);
    connect(txtNoOfRows, &QLineEdit::textEdited, this, [this] { RunGuarded([this] { txtNoOfRows_Change(); }); });
    connect(txtNoOfColumns, &QLineEdit::textEdited, this,
        [this] { RunGuarded([this] { txtNoOfColumns_Change(); }); });

    createColorRow(0, QStringLiteral("First kind:"), 360);
    createColorRow(1, QStringLiteral("Second kind:"), 1095);

    chk3DLiquidSurface = new QWidget(fraOptions);
    chk3DLiquidSurface->setObjectName("chk3DLiquidSurface");
    FormLayout::place(chk3DLiquidSurface, 480, 1920, 2055, 255);
    // The switch's area shows no hint: moves over it do not reach the dialog.
    chk3DLiquidSurface->setMouseTracking(true);
    chk3DLiquidSurface->setAttribute(Qt::WA_NoMousePropagation);

    createCommandButtons();
}

void frmLGOptions::createColorRow(int index, const QString& caption, int top)
{
    lblColorSelection[index] = new QLabel(caption, fraOptions);
    lblColorSelection[index]->setObjectName(indexedName("lblColorSelection", index));
    FormLayout::place(lblColorSelection[index], 1440, top, 1935, 255);
    // The swatch and its button sit one row below the caption.
    const int swatchTop = index == 0 ? 720 : 1440;
    lblCurrentColor[index] = new QLabel(fraOptions);
    lblCurrentColor[index]->setObjectName(indexedName("lblCurrentColor", index));
    lblCurrentColor[index]->setFrameShape(QFrame::Box);
    FormLayout::place(lblCurrentColor[index], 1200, swatchTop, 2295, 255);
    cmdColorSelection[index] = new QPushButton(fraOptions);
    cmdColorSelection[index]->setObjectName(indexedName("cmdColorSelection", index));
    FormLayout::place(cmdColorSelection[index], 3600, index == 0 ? 720 : 1455, 255, 255);

    auto choose = [this, index] { RunGuarded([this, index] { cmdColorSelection_Click(index); }); };
    connect(cmdColorSelection[index], &QPushButton::clicked, this, choose);
    onClick(lblColorSelection[index], choose);
    onClick(lblCurrentColor[index], choose);
}

void frmLGOptions::createCommandButtons()
{
    const QStringList captions = {QStringLiteral("Ok"), QStringLiteral("Cancel"), QStringLiteral("Default values")};
    for (int i = 0; i < 3; ++i) {
        cmdCommand[i] = new QPushButton(captions[i], this);
        cmdCommand[i]->setObjectName(indexedName("cmdCommand", i));
        cmdCommand[i]->setAutoDefault(false);
        connect(cmdCommand[i], &QPushButton::clicked, this, [this, i] { RunGuarded([this, i] { cmdCommand_Click(i); }); });
        onMouseMove(cmdCommand[i], [i] { ShowOptionsButtonHint(int16_t(i)); });
    }
    cmdCommand[0]->setDefault(true);
    FormLayout::place(cmdCommand[0], 2280, 3120, 1935, 375);
    FormLayout::place(cmdCommand[1], 120, 3120, 1935, 375);
    FormLayout::place(cmdCommand[2], 120, 2640, 4095, 375);
}

void frmLGOptions::installHints()
{
    StatusHints::install(this, QStringLiteral("Επιλογές Απεικόνισης Μορίων Ρευστών"));
    StatusHints::install(lblTitle[0], QStringLiteral("Πλήθος σειρών μορίων"));
    StatusHints::install(lblTitle[1], QStringLiteral("Πλήθος στηλών μορίων"));
    StatusHints::install(txtNoOfRows, QStringLiteral("Εισαγωγή πλήθους σειρών μορίων (1,%1]").arg(MaxRows));
    StatusHints::install(
        txtNoOfColumns, QStringLiteral("Εισαγωγή πλήθους στηλών μορίων (1,%1]").arg(MaxColumns));
    const QStringList groups = {QStringLiteral("1ης"), QStringLiteral("2ης")};
    for (int i = 0; i < 2; ++i) {
        const QString choose = QStringLiteral("Επιλογή χρώματος %1 ομάδας μορίων").arg(groups[i]);
        StatusHints::install(lblColorSelection[i], choose);
        StatusHints::install(cmdColorSelection[i], choose);
        StatusHints::install(lblCurrentColor[i], QStringLiteral("Τρέχον χρώμα %1 ομάδας μορίων").arg(groups[i]));
    }
}

void frmLGOptions::ArrangeForPage()
{
    if (m_page != 8)
        return;
    FormLayout::place(cmdCommand[2], 120, 2640 - Page8Lift, 4095, 375);
    FormLayout::place(cmdCommand[0], 2280, 3120 - Page8Lift, 1935, 375);
    FormLayout::place(cmdCommand[1], 120, 3120 - Page8Lift, 1935, 375);
    for (QPushButton* button : cmdCommand)
        button->raise();
    FormLayout::fixSize(this, ClientWidth, Page8WindowHeight - CaptionAndBorders);
}

void frmLGOptions::ShowCurrentValues()
{
    const FluidParameters& fluid = m_fluid;
    txtNoOfRows->setText(QString::number(fluid.FluidRows));
    txtNoOfRows_Change();
    txtNoOfColumns->setText(QString::number(fluid.FluidColumns));
    txtNoOfColumns_Change();
    for (int i = 0; i < 2; ++i)
        setSwatchColor(lblCurrentColor[i], Numeric::toInt32(fluid.FluidGroupColor[i + 1]));
    InvalidFields.clear();
}

void frmLGOptions::AcceptValues()
{
    FluidParameters& fluid = m_fluid;
    fluid.FluidRows = Numeric::toInt16(LeadingNumber(txtNoOfRows->text()));
    fluid.FluidColumns = Numeric::toInt16(LeadingNumber(txtNoOfColumns->text()));
    for (int i = 0; i < 2; ++i)
        fluid.FluidGroupColor[i + 1] = float(swatchColor(lblCurrentColor[i]));
}

void frmLGOptions::ShowDefaultValues()
{
    txtNoOfRows->setText(QStringLiteral("6"));
    txtNoOfRows_Change();
    txtNoOfColumns->setText(QStringLiteral("5"));
    txtNoOfColumns_Change();
    const FluidParameters& fluid = m_fluid;
    for (int i = 0; i < 2; ++i)
        setSwatchColor(lblCurrentColor[i], Numeric::toInt32(fluid.DefaultFluidGroupColor[i + 1]));
}

void frmLGOptions::txtNoOfRows_Change()
{
    const bool valid = IsValidNumber(WholeNumberFlags, txtNoOfRows->text(), MaxRows);
    showValidity(txtNoOfRows, valid);
    MarkFieldValidity(FieldRows, valid);
}

void frmLGOptions::txtNoOfColumns_Change()
{
    const bool valid = IsValidNumber(WholeNumberFlags, txtNoOfColumns->text(), MaxColumns);
    showValidity(txtNoOfColumns, valid);
    MarkFieldValidity(FieldColumns, valid);
}

void frmLGOptions::MarkFieldValidity(int Index, bool Valid)
{
    if (Valid)
        InvalidFields.erase(Index);
    else
        InvalidFields.insert(Index);
    cmdCommand[0]->setEnabled(InvalidFields.empty());
}

void frmLGOptions::cmdCommand_Click(int Index)
{
    switch (Index) {
    case 0:
        AcceptValues();
        accept();
        CloseAndRelease(this);
        break;
    case 1:
        reject();
        break;
    case 2:
        ShowDefaultValues();
        break;
    default:
        break;
    }
}

void frmLGOptions::reject()
{
    QDialog::reject();
    CloseAndRelease(this);
}

void frmLGOptions::cmdColorSelection_Click(int Index)
{
    setSwatchColor(lblCurrentColor[Index], CMDColors.ShowColor(this));
}
