#include "frmCollisionOptions.h"

#include "core/EntryFilter.h"
#include "core/Numeric.h"
#include "model/CollisionSetup.h"
#include "widgets/FormLayout.h"
#include "widgets/HandlerGuard.h"
#include "widgets/KeyboardAccess.h"
#include "widgets/OptionsWidgets.h"
#include "widgets/StatusHints.h"
#include "widgets/TypingLimit.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace OptionsWidgets;
using namespace BodyParameterHints;

namespace {

// How each kind of typed number is named, labelled, filtered and limited.
struct FieldKind
{
    const char* box;
    const char* label;
    const char* caption;
    const char* unit;
    int16_t flags;  // 9: decimal point; 10: minus sign and decimal point
    int16_t max;
    bool positive;  // the value must be above 0
};

const std::array<FieldKind, KindCount> Kinds = {{
    {"txtm", "lblm", QT_TRANSLATE_NOOP("frmCollisionOptions", "m="), QT_TRANSLATE_NOOP("frmCollisionOptions", "kgr"),
        9, 999, true},
    {"txtR", "lblR", QT_TRANSLATE_NOOP("frmCollisionOptions", "R="), QT_TRANSLATE_NOOP("frmCollisionOptions", "m"), 9,
        100, true},
    {"txtx", "lblx", QT_TRANSLATE_NOOP("frmCollisionOptions", "x="), QT_TRANSLATE_NOOP("frmCollisionOptions", "m"),
        10, 999, false},
    {"txty", "lbly", QT_TRANSLATE_NOOP("frmCollisionOptions", "y="), QT_TRANSLATE_NOOP("frmCollisionOptions", "m"),
        10, 999, false},
    {"txtux", "lblux", QT_TRANSLATE_NOOP("frmCollisionOptions", "υx="),
        QT_TRANSLATE_NOOP("frmCollisionOptions", "m/sec"), 10, 100, false},
    {"txtuy", "lbluy", QT_TRANSLATE_NOOP("frmCollisionOptions", "υy="),
        QT_TRANSLATE_NOOP("frmCollisionOptions", "m/sec"), 10, 100, false},
}};

// The characters a learner may type into any box.
constexpr int FieldTypingLimit = 3;

constexpr int ColumnLeft[2] = {600, 2400};
constexpr int RowTop[KindCount] = {540, 900, 1260, 1620, 1980, 2340};

constexpr int32_t DisabledTextColor = 0x6E6E6E; // RGB(110, 110, 110)

QString decimalText(float value)
{
    return QString::number(double(value), 'g', 7);
}

} // namespace

frmCollisionOptions::frmCollisionOptions(CollisionSetup& setup, int32_t pictureBackground)
    : m_setup(setup), m_pictureBackground(pictureBackground)
{
    setObjectName("frmCollisionOptions");
    setWindowTitle(tr("Παράμετροι Ελαστικής Κρούσης"));
    setModal(true);
    setMinimisedHint(tr("Μελέτης της υδροστατικής άνωσης με μέθοδο Monte Carlo"));
    FormLayout::fixSize(this, 7215, 5010);
    useColorChooser(CMDcolors);
    createBodyFrame();
    createGraphFrame();
    createVectorFrame();
    createModelFrame();
    createColorFrame();
    createCommandButtons();
    placeCommandButtons();
    nameControls();
    ShowCurrentValues();
    ArrangeForPage();
}

QGroupBox* frmCollisionOptions::createFrame(const char* name, const QString& caption, int left, int top, int width,
    int height)
{
    auto* frame = new QGroupBox(caption, this);
    frame->setObjectName(name);
    FormLayout::place(frame, left, top, width, height);
    StatusHints::install(frame, controlHint(frame->objectName()));
    return frame;
}

QCheckBox* frmCollisionOptions::createCheck(QWidget* parent, const char* name, const QString& caption, int left,
    int top, int width)
{
    auto* box = new QCheckBox(caption, parent);
    box->setObjectName(name);
    FormLayout::place(box, left, top, width, 255);
    const QString hint = controlHint(box->objectName());
    if (!hint.isEmpty())
        StatusHints::install(box, hint);
    return box;
}

void frmCollisionOptions::createBodyFrame()
{
    fraCollisionData = createFrame("fraCollisionData", tr("Parameters of Bodies"), 0, 120, 3855, 2895);
    const QStringList titles = {tr("First body:"), tr("Second Body:")};
    for (int i = 0; i < 2; ++i) {
        lblTitle[i] = new QLabel(titles[i], fraCollisionData);
        lblTitle[i]->setObjectName(indexedName("lblTitle", i));
        FormLayout::place(lblTitle[i], ColumnLeft[i] - 480, 240, 1695, 255);
    }
    for (int kind = 0; kind < KindCount; ++kind)
        createBodyRow(kind);
}

void frmCollisionOptions::createBodyRow(int kind)
{
    const FieldKind& kindInfo = Kinds[kind];
    std::array<QLabel*, 2>* labels[KindCount] = {&lblm, &lblR, &lblx, &lbly, &lblux, &lbluy};
    for (int i = 0; i < 2; ++i) {
        QLabel* label = new QLabel(tr(kindInfo.caption), fraCollisionData);
        label->setObjectName(indexedName(kindInfo.label, i));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        FormLayout::place(label, ColumnLeft[i] - 480, RowTop[kind], 450, 285);
        StatusHints::install(label, labelHint(kind, i + 1));
        (*labels[kind])[i] = label;

        QLineEdit* box = new QLineEdit(fraCollisionData);
        box->setObjectName(indexedName(kindInfo.box, i));
        // Three characters may be typed; a stored value is shown whole.
        m_typingLimit[kind][i] = new TypingLimit(box, FieldTypingLimit);
        FormLayout::place(box, ColumnLeft[i], RowTop[kind], 495, 285);
        StatusHints::install(box, fieldHint(kind, i + 1, kindInfo.max));
        connect(box, &QLineEdit::textEdited, this, [this, kind, i] { RunGuarded([=, this] { Field_Change(kind, i); }); });
        field(kind, i) = box;

        const int unitIndex = i * KindCount + kind;
        QLabel* unit = new QLabel(tr(kindInfo.unit), fraCollisionData);
        unit->setObjectName(indexedName("lblUnits", unitIndex));
        FormLayout::place(unit, ColumnLeft[i] + 540, RowTop[kind], 780, 285);
        StatusHints::install(unit, unitHint(unitIndex));
        lblUnits[unitIndex] = unit;
    }
}

void frmCollisionOptions::createGraphFrame()
{
    fraGraphs = createFrame("fraGraphs", tr("Graphs selection"), 0, 3120, 3855, 1335);
    chkGraphS = createCheck(fraGraphs, "chkGraphS", tr("Distance"), 240, 360, 1095);
    chkGraphU = createCheck(fraGraphs, "chkGraphU", tr("Velocity"), 1440, 360, 1095);
    chkGraphF = createCheck(fraGraphs, "chkGraphF", tr("Force"), 2640, 360, 1095);
    chkProportional = createCheck(fraGraphs, "chkProportional", tr("Proportional Graphs"), 240, 840, 2535);

    // The collision types of the view from above lie over the graph switches.
    const QStringList typeCaptions[2] = {{tr("Central"), tr("Πλάγια")},
        {tr("Elastic"), tr("Plastic")}};
    std::array<QRadioButton*, 2>* types[2] = {&OptType1, &OptType2};
    QWidget** panels[2] = {&picCollType1, &picCollType2};
    for (int p = 0; p < 2; ++p) {
        QWidget* panel = new QWidget(fraGraphs);
        panel->setObjectName(p == 0 ? "picCollType1" : "picCollType2");
        panel->setAutoFillBackground(true);
        FormLayout::place(panel, 120, 300 + p * 480, 3615, 375);
        for (int i = 0; i < 2; ++i) {
            auto* option = new QRadioButton(typeCaptions[p][i], panel);
            option->setObjectName(indexedName(p == 0 ? "OptType1" : "OptType2", i));
            FormLayout::place(option, 120 + i * 1800, 60, 1575, 255);
            (*types[p])[i] = option;
        }
        *panels[p] = panel;
    }
    // The side view hides both panels; this switch offers it the plastic contact,
    // beside the graph switches, and moves with "Plastic" of the second panel.
    chkPlastic = createCheck(fraGraphs, "chkPlastic", tr("Plastic"), 2640, 840, 1095);
    StatusHints::install(chkPlastic, tr("Πλαστική κρούση: τα σώματα κινούνται μαζί μετά την επαφή"));
    chkPlastic->hide();
    connect(chkPlastic, &QCheckBox::toggled, this, [this](bool on) { OptType2[on ? 1 : 0]->setChecked(true); });
    connect(OptType2[1], &QRadioButton::toggled, chkPlastic, &QCheckBox::setChecked);
}

void frmCollisionOptions::createVectorFrame()
{
    fraVisualisationOption =
        createFrame("fraVisualisationOption", tr("View vectors"), 4080, 120, 3015, 1095);
    chkShowVelocities = createCheck(fraVisualisationOption, "chkShowVelocities", tr("Velocity"), 240, 300, 1215);
    chkShowForces = createCheck(fraVisualisationOption, "chkShowForces", tr("Force"), 1560, 300, 1215);
    chkShowMomenta = createCheck(fraVisualisationOption, "chkShowMomenta", tr("Momentum"), 240, 690, 1815);
    StatusHints::install(chkShowMomenta, tr("Έλεγχος απεικόνισης ορμών"));
}

void frmCollisionOptions::createModelFrame()
{
    fraModel = createFrame("fraModel", tr("Mathematical Model"), 4080, 1320, 3015, 1455);
    const QStringList captions = {tr("Linear Model"), tr("u=f(t), continuous"),
        tr("u=f(t), F=f(t), continuous")};
    for (int i = 0; i < 3; ++i) {
        optModel[i] = new QRadioButton(captions[i], fraModel);
        optModel[i]->setObjectName(indexedName("optModel", i));
        FormLayout::place(optModel[i], 240, 300 + i * 360, 2655, 255);
        StatusHints::install(optModel[i], controlHint(QStringLiteral("optModel"), i));
    }
}

void frmCollisionOptions::createColorFrame()
{
    fraColors = createFrame("fraColors", tr("Color Selection"), 4080, 2880, 3015, 1575);
    const QStringList captions = {tr("Body 1:"), tr("Body 2:"), tr("velocities:"), tr("Forces:"), tr("Momenta:")};
    for (int i = 0; i < int(lblCurrentColor.size()); ++i) {
        // Five rows share the frame's height.
        const int top = 255 + i * 255;
        lblColorSelection[i] = new QLabel(captions[i], fraColors);
        lblColorSelection[i]->setObjectName(indexedName("lblColorSelection", i));
        FormLayout::place(lblColorSelection[i], 120, top, 1095, 255);
        cmdColorSelection[i] = new QPushButton(fraColors);
        cmdColorSelection[i]->setObjectName(indexedName("cmdColorSelection", i));
        cmdColorSelection[i]->setAutoDefault(false);
        FormLayout::place(cmdColorSelection[i], 1260, top, 255, 255);
        lblCurrentColor[i] = new QLabel(fraColors);
        lblCurrentColor[i]->setObjectName(indexedName("lblCurrentColor", i));
        lblCurrentColor[i]->setFrameShape(QFrame::Box);
        FormLayout::place(lblCurrentColor[i], 1620, top, 1215, 255);

        const bool momenta = i == MomentumSwatch;
        const QString choose = momenta ? tr("Επιλογή χρώματος διανυσμάτων ορμής")
                                       : controlHint(QStringLiteral("lblColorSelection"), i);
        StatusHints::install(lblColorSelection[i], choose);
        StatusHints::install(cmdColorSelection[i], choose);
        StatusHints::install(lblCurrentColor[i],
            momenta ? tr("Τρέχον χρώμα διανυσμάτων ορμής") : controlHint(QStringLiteral("lblCurrentColor"), i));
        addColorChoice(cmdColorSelection[i], lblColorSelection[i], lblCurrentColor[i]);
    }
}

void frmCollisionOptions::placeCommandButtons()
{
    const int left[CommandCount] = {5400, 3480, 120};
    const int width[CommandCount] = {1695, 1695, 3135};
    for (int i = 0; i < CommandCount; ++i)
        FormLayout::place(cmdCommand[i], left[i], 4560, width[i], 375);
}

QLineEdit*& frmCollisionOptions::field(int kind, int Index)
{
    FieldArray* fields[KindCount] = {&txtm, &txtR, &txtx, &txty, &txtux, &txtuy};
    return (*fields[kind])[Index];
}

void frmCollisionOptions::showColors(const std::array<float, 5>& stored)
{
    const int32_t background = pictureBackground();
    for (int i = 0; i < int(stored.size()); ++i)
        setSwatchColor(lblCurrentColor[i], Numeric::toInt32(stored[i]) ^ background);
}

float frmCollisionOptions::storedColor(int Index, int32_t background) const
{
    return float(swatchColor(lblCurrentColor[Index]) ^ background);
}

void frmCollisionOptions::writeField(int kind, int Index, const QString& text)
{
    m_typingLimit[kind][Index]->setText(text);
    Field_Change(kind, Index);
}

void frmCollisionOptions::showBodies(const CollisionSetup& setup)
{
    for (int i = 0; i < 2; ++i) {
        const int body = i + 1;
        writeField(Mass, i, QString::number(setup.Mass[body]));
        writeField(Radius, i, decimalText(setup.Radius[body]));
        writeField(PositionX, i, decimalText(setup.X[body]));
        writeField(PositionY, i, decimalText(setup.Y[body]));
        writeField(VelocityX, i, decimalText(setup.Ux[body]));
        writeField(VelocityY, i, decimalText(setup.Uy[body]));
    }
}

void frmCollisionOptions::showSwitches(const CollisionSetup& setup)
{
    chkShowVelocities->setChecked(setup.ShowVelocities == 1);
    chkShowForces->setChecked(setup.ShowForces == 1);
    chkGraphS->setChecked(setup.GraphDistance == 1);
    chkGraphU->setChecked(setup.GraphVelocity == 1);
    chkGraphF->setChecked(setup.GraphForce == 1);
    chkProportional->setChecked(setup.ProportionalGraphs == 1);
    if (setup.ForceModel >= 0 && setup.ForceModel < int16_t(optModel.size()))
        optModel[setup.ForceModel]->setChecked(true);
}

void frmCollisionOptions::ShowCurrentValues()
{
    const CollisionSetup& setup = m_setup;
    showBodies(setup);
    showSwitches(setup);
    showColors({setup.BodyColor[1], setup.BodyColor[2], setup.VelocityColor, setup.ForceColor, setup.MomentumColor});
    InvalidFields.clear();
    showCollisionKind(setup.ShowMomenta, setup.CollisionDirection, setup.CollisionElasticity);
}

void frmCollisionOptions::showCollisionKind(int16_t momenta, CollisionSetup::Direction direction,
    CollisionSetup::Elasticity elasticity)
{
    chkShowMomenta->setChecked(momenta == 1);
    OptType1[direction == CollisionSetup::Direction::Oblique ? 1 : 0]->setChecked(true);
    OptType2[elasticity == CollisionSetup::Elasticity::Plastic ? 1 : 0]->setChecked(true);
}

void frmCollisionOptions::ArrangeForPage()
{
    const int16_t page = m_setup.Page;
    if (page == CollisionSetup::AboveView) {
        for (QCheckBox* box : {chkGraphS, chkGraphU, chkGraphF, chkProportional})
            box->hide();
        fraGraphs->setTitle(tr("Κατηγοριοποίηση Κρούσεων"));
    } else if (page == CollisionSetup::SideView) {
        // The side view is one-dimensional: its y values are shown but not edited.
        for (FieldArray* boxes : {&txty, &txtuy})
            for (QLineEdit* box : *boxes) {
                setTextColor(box, DisabledTextColor);
                box->setEnabled(false);
            }
        picCollType1->hide();
        picCollType2->hide();
        chkPlastic->show();
    }
}

void frmCollisionOptions::Field_Change(int kind, int Index)
{
    const FieldKind& kindInfo = Kinds[kind];
    QLineEdit* box = field(kind, Index);
    const QString text = box->text();
    bool valid = IsValidNumber(kindInfo.flags, text, kindInfo.max);
    if (valid && kindInfo.positive)
        valid = LeadingNumber(text) > 0;
    // A mass is kept in whole kilograms: one that would round to 0 is refused too,
    // so the experiment never meets a body without mass.
    if (valid && kind == Mass)
        valid = Numeric::toInt16(LeadingNumber(text)) > 0;
    if (!valid)
        showValidity(box, false);
    else if (box->isEnabled())
        showValidity(box, true);
    MarkFieldValidity(kind, Index, valid);
}

void frmCollisionOptions::MarkFieldValidity(int kind, int Index, bool Valid)
{
    // One field number for each box: the kind's two bodies side by side.
    ParameterDialog::MarkFieldValidity(kind * 2 + Index, Valid);
}

void frmCollisionOptions::AcceptValues()
{
    CollisionSetup& setup = m_setup;
    const int32_t background = pictureBackground();
    auto value = [this](int kind, int i) { return Numeric::toFloat(LeadingNumber(field(kind, i)->text())); };
    for (int i = 0; i < 2; ++i) {
        const int body = i + 1;
        setup.Mass[body] = Numeric::toInt16(LeadingNumber(txtm[i]->text()));
        setup.Radius[body] = value(Radius, i);
        setup.X[body] = value(PositionX, i);
        setup.Y[body] = value(PositionY, i);
        setup.Ux[body] = value(VelocityX, i);
        setup.Uy[body] = value(VelocityY, i);
        setup.BodyColor[body] = storedColor(i, background);
    }
    setup.ShowVelocities = chkShowVelocities->isChecked() ? 1 : 0;
    setup.ShowForces = chkShowForces->isChecked() ? 1 : 0;
    setup.GraphDistance = chkGraphS->isChecked() ? 1 : 0;
    setup.GraphVelocity = chkGraphU->isChecked() ? 1 : 0;
    setup.GraphForce = chkGraphF->isChecked() ? 1 : 0;
    setup.ProportionalGraphs = chkProportional->isChecked() ? 1 : 0;
    for (int i = 0; i < int(optModel.size()); ++i)
        if (optModel[i]->isChecked()) {
            setup.ForceModel = int16_t(i);
            break;
        }
    setup.VelocityColor = storedColor(2, background);
    setup.ForceColor = storedColor(3, background);
    setup.MomentumColor = storedColor(MomentumSwatch, background);
    setup.ShowMomenta = chkShowMomenta->isChecked() ? 1 : 0;
    setup.CollisionDirection = OptType1[1]->isChecked() ? CollisionSetup::Direction::Oblique
                                                        : CollisionSetup::Direction::Central;
    setup.CollisionElasticity = OptType2[1]->isChecked() ? CollisionSetup::Elasticity::Plastic
                                                         : CollisionSetup::Elasticity::Elastic;
}

void frmCollisionOptions::ShowDefaultValues()
{
    // The numbers and switches of a fresh record; the colours the set-up offers as
    // its defaults, made against the picture's background.
    const CollisionSetup defaults;
    showBodies(defaults);
    showSwitches(defaults);
    const CollisionSetup& setup = m_setup;
    showColors({setup.DefaultBodyColor[1], setup.DefaultBodyColor[2], setup.DefaultVelocityColor,
        setup.DefaultForceColor, setup.DefaultMomentumColor});
    showCollisionKind(0, CollisionSetup::Direction::Central, CollisionSetup::Elasticity::Elastic);
}

void frmCollisionOptions::nameControls()
{
    const std::array<const char*, KindCount> fields = {
        QT_TR_NOOP("Mass of body %1 (kg)"),
        QT_TR_NOOP("Radius of body %1 (m)"),
        QT_TR_NOOP("Position x of body %1 (m)"),
        QT_TR_NOOP("Position y of body %1 (m)"),
        QT_TR_NOOP("Velocity x of body %1 (m/s)"),
        QT_TR_NOOP("Velocity y of body %1 (m/s)"),
    };
    for (int kind = 0; kind < KindCount; ++kind)
        for (int i = 0; i < 2; ++i)
            KeyboardAccess::name(field(kind, i), tr(fields[size_t(kind)]).arg(i + 1));
    const std::array<QString, 4> colours = {tr("Colour of body 1"), tr("Colour of body 2"),
        tr("Colour of the velocities"), tr("Colour of the forces")};
    for (int i = 0; i < 4; ++i)
        KeyboardAccess::name(cmdColorSelection[size_t(i)], colours[size_t(i)]);
    // "Velocity" and "Force" are both a graph and a vector.
    KeyboardAccess::name(chkGraphS, tr("Distance graph"));
    KeyboardAccess::name(chkGraphU, tr("Velocity graph"));
    KeyboardAccess::name(chkGraphF, tr("Force graph"));
    KeyboardAccess::name(chkShowVelocities, tr("Velocity vectors"));
    KeyboardAccess::name(chkShowForces, tr("Force vectors"));
    KeyboardAccess::name(chkShowMomenta, tr("Momentum vectors"));
}
