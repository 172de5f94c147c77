#include "MicroViewDesign.h"

#include "DecorShape.h"

#include "canvas/Rgb.h"
#include "core/Twips.h"
#include "widgets/CanvasWidget.h"
#include "widgets/FormLayout.h"
#include "widgets/KeyboardAccess.h"
#include "widgets/OptionsWidgets.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include <cmath>

namespace {

using OptionsWidgets::indexedName;
using Rgb::RGB;

const int32_t White = RGB(255, 255, 255);
const int32_t Red = RGB(255, 0, 0);
const int32_t Black = RGB(0, 0, 0);

QGroupBox* frame(QWidget* parent, const QString& name, const QString& caption, int left, int top, int width, int height)
{
    auto* box = new QGroupBox(caption, parent);
    box->setObjectName(name);
    FormLayout::place(box, left, top, width, height);
    return box;
}

QLabel* label(
    QWidget* parent, const QString& name, const QString& caption, const QString& hint, int left, int top, int width)
{
    auto* text = new QLabel(caption, parent);
    text->setObjectName(name);
    text->setTextFormat(Qt::PlainText);
    text->setToolTip(hint);
    FormLayout::place(text, left, top, width, 255);
    return text;
}

// A picture area whose surface already has its design size, so that the window
// can lay out and draw its samples before it is first shown.
CanvasWidget* picture(
    QWidget* parent, const QString& name, const QString& hint, int left, int top, int width, int height)
{
    auto* area = new CanvasWidget(parent);
    area->setObjectName(name);
    area->setToolTip(hint);
    FormLayout::place(area, left, top, width, height);
    const qreal ratio = area->devicePixelRatioF();
    area->canvas().resize(int(std::lround(area->width() * ratio)), int(std::lround(area->height() * ratio)));
    area->canvas().setBackColor(White);
    area->canvas().Cls();
    return area;
}

QScrollBar* bar(QWidget* parent, const QString& name, int left, int top, int minimum, int maximum, int value)
{
    auto* scroll = new QScrollBar(Qt::Horizontal, parent);
    scroll->setObjectName(name);
    scroll->setRange(minimum, maximum);
    scroll->setSingleStep(1);
    scroll->setPageStep(1);
    scroll->setValue(value);
    FormLayout::place(scroll, left, top, 1095, 255);
    return scroll;
}

QCheckBox* checkBox(
    QWidget* parent, const QString& name, const QString& caption, const QString& hint, int left, int top, int width)
{
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(name);
    box->setToolTip(hint);
    FormLayout::place(box, left, top, width, 255);
    return box;
}

} // namespace

void MicroViewDesign::buildControls(QWidget* form)
{
    // The design's twips leave room for the narrow 8-point dialog font of old (11
    // pixels); a wider font would clip the longer check box captions.
    QFont font = form->font();
    font.setPixelSize(11);
    font.setStretch(QFont::SemiCondensed);
    form->setFont(font);
    buildCalculations(form);
    buildSamplePictures(form);
    buildMacroView(form);
    buildCheckBoxes(form);
    buildBars(form);
    buildButtons(form);
    buildKeyboardAccess();
}

void MicroViewDesign::buildSamplePictures(QWidget* form)
{
    const std::array<QString, 3> captions = {tr("Left Wall"), tr("Right Wall"), tr("Top Wall")};
    const std::array<int, 3> lefts = {120, 5400, 2760};
    const std::array<int, 3> tops = {2640, 2640, 120};
    for (int i = 0; i < 3; ++i) {
        fraDraw[i] = frame(form, indexedName("fraDraw", i), captions[i], lefts[i], tops[i], 2175, 2175);
        picDraw[i] = picture(fraDraw[i], indexedName("picDraw", i), tr("Microscopic view of gas molecules' movement"),
            120, 240, 1905, 1785);
        // The scale is the picture's design size in twips whatever the screen's
        // pixel ratio, so that molecule sizes keep their proportions.
        picDraw[i]->canvas().setScale(0, 0, 1905, 1785);
        picDraw[i]->canvas().setDrawMode(7);
    }
}

void MicroViewDesign::buildCalculations(QWidget* form)
{
    fraCalculations[2]
        = frame(form, indexedName("fraCalculations", 2), tr("Top Wall Calculations"), 480, 240, 2175, 975);
    fraCalculations[0]
        = frame(form, indexedName("fraCalculations", 0), tr("Calculations of Totals"), 5400, 240, 2175, 975);
    fraCalculations[1]
        = frame(form, indexedName("fraCalculations", 1), tr("Left Wall Calculations"), 120, 1560, 2175, 975);
    fraCalculations[3]
        = frame(form, indexedName("fraCalculations", 3), tr("Right Wall Calculations"), 5400, 1560, 2175, 975);
    lblCurrentFx[0] = label(fraCalculations[1], indexedName("lblCurrentFx", 0), tr("  Fx ="),
        tr("Current value of force on left wall"), 120, 240, 1935);
    lblMeanFx[0] = label(fraCalculations[1], indexedName("lblMeanFx", 0), tr("<Fx> ="),
        tr("Mean value of force on left wall"), 120, 600, 1935);
    lblCurrentFx[1] = label(fraCalculations[3], indexedName("lblCurrentFx", 1), tr("  Fx ="),
        tr("Current value of force on right wall"), 120, 240, 1935);
    lblMeanFx[1] = label(fraCalculations[3], indexedName("lblMeanFx", 1), tr("<Fx> ="),
        tr("Mean value of force on right wall"), 120, 600, 1935);
    lblCurrentFy = label(
        fraCalculations[2], "lblCurrentFy", tr("  Fy ="), tr("Current value of force on top wall"), 120, 240, 1935);
    lblMeanFy
        = label(fraCalculations[2], "lblMeanFy", tr("<Fy> ="), tr("Mean value of force on top wall"), 120, 600, 1935);
    lblFxMeanTotal = label(fraCalculations[0], "lblFxMeanTotal", tr("<Fx> ="),
        tr("Mean value (in time) of horizontal force"), 120, 240, 1935);
    lblFyMeanTotal = label(fraCalculations[0], "lblFyMeanTotal", tr("<Fy> ="),
        tr("Mean value (in time) of vertical force"), 120, 600, 1935);
}

void MicroViewDesign::buildMacroView(QWidget* form)
{
    fraMacroView = frame(form, "fraMacroView", tr("Macroscopic Movement"), 2400, 2400, 2895, 2535);
    picMacroView = picture(
        fraMacroView, "picMacroView", tr("Macroscopic view of Floatrix's direction of movement"), 360, 240, 2415, 1935);
    picMacroView->canvas().setScale(0, 0, 2415, 1935);
    picForceXIndicator
        = picture(fraMacroView, "picForceXIndicator", tr("Horizontal force indicator"), 360, 2280, 2415, 135);
    picForceYIndicator
        = picture(fraMacroView, "picForceYIndicator", tr("Vertical force indicator"), 120, 240, 135, 1935);
    for (CanvasWidget* indicator : {picForceXIndicator, picForceYIndicator}) {
        Canvas& surface = indicator->canvas();
        surface.setScalePixels();
        surface.setForeColor(Red);
        surface.setFillStyle(Canvas::Solid);
        surface.setFillColor(Red);
    }
    buildBalloon();
}

void MicroViewDesign::buildBalloon()
{
    using Kind = DecorShape::Kind;
    Floatrix = DecorShape::shape(picMacroView, "Floatrix", Kind::Rectangle, 720, 720, 975, 1095);
    Floatrix->setBorder(RGB(128, 128, 128), 1);
    Floatrix->setFill(RGB(192, 192, 192));
    const std::array<QPoint, 4> lenses = {QPoint(), QPoint(600, 840), QPoint(1560, 840), QPoint(960, 480)};
    const std::array<QLine, 4> handles
        = {QLine(), QLine(360, 1140, 600, 1080), QLine(1905, 1065, 2145, 1125), QLine(1305, 705, 1545, 765)};
    const std::array<QPoint, 4> markers = {QPoint(), QPoint(750, 915), QPoint(1710, 915), QPoint(1110, 555)};
    for (int i = 1; i <= 3; ++i) {
        Handle[i] = DecorShape::line(
            picMacroView, indexedName("Handle", i), handles[i].x1(), handles[i].y1(), handles[i].x2(), handles[i].y2());
        Handle[i]->setBorder(Black, 4);
        Magnifier[i] = DecorShape::shape(
            picMacroView, indexedName("Magnifier", i), Kind::Circle, lenses[i].x(), lenses[i].y(), 360, 345);
        Magnifier[i]->setBorder(Black, 3);
        Magnifier[i]->setFill(RGB(128, 255, 255));
        mirror[i] = DecorShape::shape(
            picMacroView, indexedName("mirror", i), Kind::RoundedRectangle, markers[i].x(), markers[i].y(), 120, 120);
        mirror[i]->setBorder(RGB(255, 128, 0), 1);
        mirror[i]->setFill(RGB(255, 128, 0));
    }
}

void MicroViewDesign::buildBars(QWidget* form)
{
    const std::array<QString, 2> latticeHints = {tr("# of columns of molecules"), tr("# of rows of molecules")};
    for (int i = 0; i < 2; ++i) {
        const int top = i == 0 ? 6000 : 6360;
        HScrNoOfMolecules[i] = bar(form, indexedName("HScrNoOfMolecules", i), 120, top, 1, 5, 5);
        lblNoOfMolecules[i]
            = label(form, indexedName("lblNoOfMolecules", i), QString(), latticeHints[i], 1320, top, 735);
    }
    HScrMass = bar(form, "HScrMass", 2160, 6000, 1, 500, 1);
    lblMass = label(form, "lblMass", QString(), tr("Molecules' mass"), 3360, 6000, 735);
    HScrRadius = bar(form, "HScrRadius", 2160, 6360, 10, 150, 10);
    lblRadius = label(form, "lblRadius", QString(), tr("Molecules' radius"), 3360, 6360, 735);
    HScrdt = bar(form, "HScrdt", 4200, 6000, 1, 50, 1);
    lbldt = label(form, "lbldt", QString(), tr("Time \"step\" of simulation"), 5400, 6000, 780);
    HScrTemp = bar(form, "HScrTemp", 4200, 6360, 290, 330, 293);
    HScrTemp->setPageStep(10);
    lblTemp = label(form, "lblTemp", QString(), tr("Temperature of sample (K)"), 5400, 6360, 780);
}

void MicroViewDesign::buildCheckBoxes(QWidget* form)
{
    chkDrawGrid = checkBox(form, "chkDrawGrid", tr("Draw Grid"), tr("Check to draw lattice grid"), 120, 5160, 2100);
    chkDrawCenterLine = checkBox(form, "chkDrawCenterLine", tr("Draw molecule distance"),
        tr("Check to draw molecules' current distance from lattice positions"), 120, 5520, 2100);
    ChkRandomDrawColor = checkBox(form, "ChkRandomDrawColor", tr("Random Draw  Color"),
        tr("Check to draw molecules in random colors"), 2280, 5160, 2100);
    chkFilledMolecules = checkBox(
        form, "chkFilledMolecules", tr("\"Compact\" molecules"), tr("Check to draw solid molecules"), 2280, 5520, 2100);
    ChkLeaveTrail = checkBox(
        form, "ChkLeaveTrail", tr("Track movement"), tr("Check to make molecules' paths visible"), 4440, 5160, 1740);
    ChkObserveSingleMolecule = checkBox(form, "ChkObserveSingleMolecule", tr("Observe Molecule"),
        tr("Check to observe a single molecules of the sample"), 4440, 5520, 1740);
    ChkPerturbation = checkBox(form, "ChkPerturbation", tr("Perturbation"),
        tr("Check to introduce perturbation in the molecules' movement"), 6240, 4920, 1395);
}

void MicroViewDesign::buildButtons(QWidget* form)
{
    const std::array<QString, 3> captions = {tr("Exit"), tr("Simulate"), tr("Clear history")};
    const std::array<int, 3> tops = {6240, 5280, 5760};
    for (int i = 0; i < 3; ++i) {
        cmdCommand[i] = new QPushButton(captions[i], form);
        cmdCommand[i]->setObjectName(indexedName("cmdCommand", i));
        FormLayout::place(cmdCommand[i], 6240, tops[i], 1335, 375);
    }
    cmdCommand[0]->setToolTip(tr("Click to exit"));
    cmdCommand[2]->setToolTip(tr("Click to restart calculations of mean force values"));
}

void MicroViewDesign::buildKeyboardAccess()
{
    const auto text = [](const char* source) { return QCoreApplication::translate("frmMicroView", source); };
    const std::array<std::pair<QScrollBar*, QString>, 6> bars = {{
        {HScrNoOfMolecules[0], text(QT_TRANSLATE_NOOP("frmMicroView", "Number of molecules along x"))},
        {HScrNoOfMolecules[1], text(QT_TRANSLATE_NOOP("frmMicroView", "Number of molecules along y"))},
        {HScrMass, text(QT_TRANSLATE_NOOP("frmMicroView", "Mass of a molecule"))},
        {HScrRadius, text(QT_TRANSLATE_NOOP("frmMicroView", "Radius of a molecule"))},
        {HScrdt, text(QT_TRANSLATE_NOOP("frmMicroView", "Time step of the simulation"))},
        {HScrTemp, text(QT_TRANSLATE_NOOP("frmMicroView", "Temperature"))},
    }};
    for (const auto& [bar, name] : bars)
        KeyboardAccess::focusableBar(bar, name);
    const std::array<QString, 3> walls = {text(QT_TRANSLATE_NOOP("frmMicroView", "Molecules at the left wall")),
        text(QT_TRANSLATE_NOOP("frmMicroView", "Molecules at the right wall")),
        text(QT_TRANSLATE_NOOP("frmMicroView", "Molecules at the top wall"))};
    for (int i = 0; i < 3; ++i)
        KeyboardAccess::describePicture(picDraw[i], walls[i]);
    KeyboardAccess::describePicture(
        picMacroView, text(QT_TRANSLATE_NOOP("frmMicroView", "The balloon and the direction the gas pushes it")));
    KeyboardAccess::describePicture(
        picForceXIndicator, text(QT_TRANSLATE_NOOP("frmMicroView", "Horizontal force on the balloon")));
    KeyboardAccess::describePicture(
        picForceYIndicator, text(QT_TRANSLATE_NOOP("frmMicroView", "Vertical force on the balloon")));
    // Tab follows the buttons from top to bottom.
    QWidget::setTabOrder(cmdCommand[1], cmdCommand[2]);
    QWidget::setTabOrder(cmdCommand[2], cmdCommand[0]);
}
