#include "frmLGOptions.h"

#include "core/EntryFilter.h"
#include "core/Numeric.h"
#include "model/FluidParameters.h"
#include "widgets/FormLayout.h"
#include "widgets/HandlerGuard.h"
#include "widgets/KeyboardAccess.h"
#include "widgets/OptionsWidgets.h"
#include "widgets/StatusHints.h"
#include "widgets/TypingLimit.h"

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
// The characters a learner may type into either field.
constexpr int FieldTypingLimit = 3;

constexpr int ClientWidth = 4335;
// Outer heights of the designed window, and the part of them taken by the caption
// and the borders, which Qt does not count in the client size.
constexpr int WindowHeight = 3975;
constexpr int Page8WindowHeight = 3495;
constexpr int CaptionAndBorders = 360;
// The second liquid page has no liquid surface switch: the buttons move up over its place.
constexpr int Page8Lift = 480;

} // namespace

frmLGOptions::frmLGOptions(FluidParameters& fluid, int16_t page) : m_fluid(fluid), m_page(page)
{
    setObjectName("frmLGOptions");
    setWindowTitle(tr("Parameters of Gas Molecules"));
    setModal(true);
    FormLayout::fixSize(this, ClientWidth, WindowHeight - CaptionAndBorders);
    useColorChooser(CMDColors);
    createControls();
    installHints();
    nameControls();
    ShowCurrentValues();
    ArrangeForPage();
}

void frmLGOptions::createControls()
{
    fraOptions = new QGroupBox(this);
    fraOptions->setObjectName("fraOptions");
    FormLayout::place(fraOptions, 120, 120, 4095, 2415);

    const QString titles[2] = {tr("# of rows"), tr("# of columns")};
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
    m_rowsLimit = new TypingLimit(txtNoOfRows, FieldTypingLimit);
    m_columnsLimit = new TypingLimit(txtNoOfColumns, FieldTypingLimit);
    connect(txtNoOfRows, &QLineEdit::textEdited, this, [this] { RunGuarded([this] { txtNoOfRows_Change(); }); });
    connect(txtNoOfColumns, &QLineEdit::textEdited, this, [this] { RunGuarded([this] { txtNoOfColumns_Change(); }); });

    createColorRow(0, tr("First kind:"), 360);
    createColorRow(1, tr("Second kind:"), 1095);

    chk3DLiquidSurface = new QWidget(fraOptions);
    chk3DLiquidSurface->setObjectName("chk3DLiquidSurface");
    FormLayout::place(chk3DLiquidSurface, 480, 1920, 2055, 255);
    // The switch's area shows no hint: moves over it do not reach the dialog.
    chk3DLiquidSurface->setMouseTracking(true);
    chk3DLiquidSurface->setAttribute(Qt::WA_NoMousePropagation);

    createCommandButtons();
    cmdCommand[Ok]->setDefault(true);
    placeCommandButtons(0);
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
    addColorChoice(cmdColorSelection[index], lblColorSelection[index], lblCurrentColor[index]);
}

void frmLGOptions::placeCommandButtons(int lift)
{
    FormLayout::place(cmdCommand[Ok], 2280, 3120 - lift, 1935, 375);
    FormLayout::place(cmdCommand[Cancel], 120, 3120 - lift, 1935, 375);
    FormLayout::place(cmdCommand[DefaultValues], 120, 2640 - lift, 4095, 375);
}

void frmLGOptions::installHints()
{
    StatusHints::install(this, tr("Επιλογές Απεικόνισης Μορίων Ρευστών"));
    StatusHints::install(lblTitle[0], tr("Πλήθος σειρών μορίων"));
    StatusHints::install(lblTitle[1], tr("Πλήθος στηλών μορίων"));
    StatusHints::install(txtNoOfRows, tr("Εισαγωγή πλήθους σειρών μορίων (1,%1]").arg(MaxRows));
    StatusHints::install(txtNoOfColumns, tr("Εισαγωγή πλήθους στηλών μορίων (1,%1]").arg(MaxColumns));
    const QString choose[2] = {tr("Επιλογή χρώματος 1ης ομάδας μορίων"), tr("Επιλογή χρώματος 2ης ομάδας μορίων")};
    const QString current[2] = {tr("Τρέχον χρώμα 1ης ομάδας μορίων"), tr("Τρέχον χρώμα 2ης ομάδας μορίων")};
    for (int i = 0; i < 2; ++i) {
        StatusHints::install(lblColorSelection[i], choose[i]);
        StatusHints::install(cmdColorSelection[i], choose[i]);
        StatusHints::install(lblCurrentColor[i], current[i]);
    }
}

void frmLGOptions::ArrangeForPage()
{
    if (m_page != FluidParameters::SecondLiquidPage)
        return;
    placeCommandButtons(Page8Lift);
    for (QPushButton* button : cmdCommand)
        button->raise();
    FormLayout::fixSize(this, ClientWidth, Page8WindowHeight - CaptionAndBorders);
}

void frmLGOptions::showValues(const FluidParameters& fluid, const std::array<float, 3>& colors)
{
    m_rowsLimit->setText(QString::number(fluid.FluidRows));
    txtNoOfRows_Change();
    m_columnsLimit->setText(QString::number(fluid.FluidColumns));
    txtNoOfColumns_Change();
    for (int i = 0; i < 2; ++i)
        setSwatchColor(lblCurrentColor[i], Numeric::toInt32(colors[i + 1]));
}

void frmLGOptions::ShowCurrentValues()
{
    showValues(m_fluid, m_fluid.FluidGroupColor);
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
    // The rows and columns of a fresh record, the colours the record offers as its
    // defaults.
    showValues(FluidParameters(), m_fluid.DefaultFluidGroupColor);
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

void frmLGOptions::nameControls()
{
    KeyboardAccess::name(txtNoOfRows, tr("Number of rows of molecules"));
    KeyboardAccess::name(txtNoOfColumns, tr("Number of columns of molecules"));
    KeyboardAccess::name(cmdColorSelection[0], tr("Colour of the first kind of molecules"));
    KeyboardAccess::name(cmdColorSelection[1], tr("Colour of the second kind of molecules"));
}
