#include "frmCollisionOptions.h"

#include "widgets/TypingLimit.h"
#include "widgets/OptionsWidgets.h"

#include "core/EntryFilter.h"
#include "core/Numeric.h"
#include "model/CollisionSetup.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/StatusLine.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"
#include "widgets/suppl.h"

#include <QCheckBox>
#include <QEvent>
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
    {"txtm", "lblm", "m=", "kgr", 9, 999, true},
    {"txtR", "lblR", "R=", "m", 9, 100, true},
    {"txtx", "lblx", "x=", "m", 10, 999, false},
    {"txty", "lbly", "y=", "m", 10, 999, false},
    {"txtux", "lblux", "υx=", "m/sec", 10, 100, false},
    {"txtuy", "lbluy", "υy=", "m/sec", 10, 100, false},
}};

constexpr int ColumnLeft[2] = {600, 2400};
constexpr int RowTop[KindCount] = {540, 900, 1260, 1620, 1980, 2340};

constexpr int32_t DisabledTextColor = 0x6E6E6E; // RGB(110, 110, 110)

const QString MinimisedHint = QStringLiteral("Μελέτης της υδροστατικής άνωσης με μέθοδο Monte Carlo");

QString decimalText(float value)
{
    return QString::number(double(value), 'g', 7);
}

} // namespace

frmCollisionOptions::frmCollisionOptions(CollisionSetup& setup, int32_t pictureBackground)
    : m_setup(setup), m_pictureBackground(pictureBackground)
{
    setObjectName("frmCollisionOptions");
    setWindowTitle(QStringLiteral("Παράμετροι Ελαστικής Κρούσης"));
    setModal(true);
    FormLayout::fixSize(this, 7215, 5010);
    createBodyFrame();
    createGraphFrame();
    createVectorFrame();
    createModelFrame();
    createColorFrame();
    createCommandButtons();
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
    fraCollisionData = createFrame("fraCollisionData", QStringLiteral("Parameters of Bodies"), 0, 120, 3855, 2895);
    const QStringList titles = {QStringLiteral("First body:"), QStringLiteral("Second Body:")};
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
        QLabel* label = new QLabel(QString::fromUtf8(kindInfo.caption), fraCollisionData);
        label->setObjectName(indexedName(kindInfo.label, i));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        FormLayout::place(label, ColumnLeft[i] - 480, RowTop[kind], 450, 285);
        StatusHints::install(label, labelHint(kind, i + 1));
        (*labels[kind])[i] = label;

        QLineEdit* box = new QLineEdit(fraCollisionData);
        box->setObjectName(indexedName(kindInfo.box, i));
        // Three characters may be typed; a stored value is shown whole.
        m_typingLimit[kind][i] = new TypingLimit(box, 3);
        FormLayout::place(box, ColumnLeft[i], RowTop[kind], 495, 285);
        StatusHints::install(box, fieldHint(kind, i + 1, kindInfo.max));
        connect(box, &QLineEdit::textEdited, this, [this, kind, i] { RunGuarded([=, this] { Field_Change(kind, i); }); });
        field(kind, i) = box;

        const int unitIndex = i * KindCount + kind;
        QLabel* unit = new QLabel(QString::fromLatin1(kindInfo.unit), fraCollisionData);
        unit->setObjectName(indexedName("lblUnits", unitIndex));
        FormLayout::place(unit, ColumnLeft[i] + 540, RowTop[kind], 780, 285);
        StatusHints::install(unit, unitHint(unitIndex));
        lblUnits[unitIndex] = unit;
    }
}

void frmCollisionOptions::createGraphFrame()
{
    fraGraphs = createFrame("fraGraphs", QStringLiteral("Graphs selection"), 0, 3120, 3855, 1335);
    chkGraphS = createCheck(fraGraphs, "chkGraphS", QStringLiteral("Distance"), 240, 360, 1095);
    chkGraphU = createCheck(fraGraphs, "chkGraphU", QStringLiteral("Velocity"), 1440, 360, 1095);
    chkGraphF = createCheck(fraGraphs, "chkGraphF", QStringLiteral("Force"), 2640, 360, 1095);
    chkProportional = createCheck(fraGraphs, "chkProportional", QStringLiteral("Proportional Graphs"), 240, 840, 2535);

    // The collision types of the view from above lie over the graph switches.
    const QStringList typeCaptions[2] = {{QStringLiteral("Central"), QStringLiteral("Πλάγια")},
        {QStringLiteral("Elastic"), QStringLiteral("Plastic")}};
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
        createFrame("fraVisualisationOption", QStringLiteral("View vectors"), 4080, 120, 3015, 1095);
    chkShowVelocities = createCheck(fraVisualisationOption, "chkShowVelocities", QStringLiteral("Velocity"), 240, 300, 1215);
    chkShowForces = createCheck(fraVisualisationOption, "chkShowForces", QStringLiteral("Force"), 1560, 300, 1215);
    chkShowMomenta = createCheck(fraVisualisationOption, "chkShowMomenta", QStringLiteral("Momentum"), 240, 690, 1815);
    StatusHints::install(chkShowMomenta, tr("Έλεγχος απεικόνισης ορμών"));
}

void frmCollisionOptions::createModelFrame()
{
    fraModel = createFrame("fraModel", QStringLiteral("Mathematical Model"), 4080, 1320, 3015, 1455);
    const QStringList captions = {QStringLiteral("Linear Model"), QStringLiteral("u=f(t), continuous"),
        QStringLiteral("u=f(t), F=f(t), continuous")};
    for (int i = 0; i < 3; ++i) {
        optModel[i] = new QRadioButton(captions[i], fraModel);
        optModel[i]->setObjectName(indexedName("optModel", i));
        FormLayout::place(optModel[i], 240, 300 + i * 360, 2655, 255);
        StatusHints::install(optModel[i], controlHint(QStringLiteral("optModel"), i));
    }
}

void frmCollisionOptions::createColorFrame()
{
    fraColors = createFrame("fraColors", QStringLiteral("Color Selection"), 4080, 2880, 3015, 1575);
    const QStringList captions = {QStringLiteral("Body 1:"), QStringLiteral("Body 2:"), QStringLiteral("velocities:"),
        QStringLiteral("Forces:"), tr("Momenta:")};
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

        const QString choose = controlHint(QStringLiteral("lblColorSelection"), i);
        const bool momenta = i == MomentumSwatch;
        StatusHints::install(lblColorSelection[i], momenta ? tr("Επιλογή χρώματος διανυσμάτων ορμής") : choose);
        StatusHints::install(cmdColorSelection[i], momenta ? tr("Επιλογή χρώματος διανυσμάτων ορμής") : choose);
        StatusHints::install(lblCurrentColor[i],
            momenta ? tr("Τρέχον χρώμα διανυσμάτων ορμής") : controlHint(QStringLiteral("lblCurrentColor"), i));
        auto handler = [this, i] { RunGuarded([this, i] { cmdColorSelection_Click(i); }); };
        connect(cmdColorSelection[i], &QPushButton::clicked, this, handler);
        onClick(lblColorSelection[i], handler);
        onClick(lblCurrentColor[i], handler);
    }
}

void frmCollisionOptions::createCommandButtons()
{
    const QStringList captions = {QStringLiteral("Ok"), QStringLiteral("Cancel"), QStringLiteral("Default values")};
    const int left[3] = {5400, 3480, 120};
    const int width[3] = {1695, 1695, 3135};
    for (int i = 0; i < 3; ++i) {
        cmdCommand[i] = new QPushButton(captions[i], this);
        cmdCommand[i]->setObjectName(indexedName("cmdCommand", i));
        cmdCommand[i]->setAutoDefault(false);
        FormLayout::place(cmdCommand[i], left[i], 4560, width[i], 375);
        connect(cmdCommand[i], &QPushButton::clicked, this, [this, i] { RunGuarded([this, i] { cmdCommand_Click(i); }); });
        onMouseMove(cmdCommand[i], [i] { ShowOptionsButtonHint(int16_t(i)); });
    }
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

void frmCollisionOptions::ShowCurrentValues()
{
    const CollisionSetup& setup = m_setup;
    for (int i = 0; i < 2; ++i) {
        const int body = i + 1;
        writeField(Mass, i, QString::number(setup.Mass[body]));
        writeField(Radius, i, decimalText(setup.Radius[body]));
        writeField(PositionX, i, decimalText(setup.X[body]));
        writeField(PositionY, i, decimalText(setup.Y[body]));
        writeField(VelocityX, i, decimalText(setup.Ux[body]));
        writeField(VelocityY, i, decimalText(setup.Uy[body]));
    }
    chkGraphS->setChecked(setup.GraphDistance == 1);
    chkGraphU->setChecked(setup.GraphVelocity == 1);
    chkGraphF->setChecked(setup.GraphForce == 1);
    chkProportional->setChecked(setup.ProportionalGraphs == 1);
    chkShowVelocities->setChecked(setup.ShowVelocities == 1);
    chkShowForces->setChecked(setup.ShowForces == 1);
    if (setup.ForceModel >= 0 && setup.ForceModel < int16_t(optModel.size()))
        optModel[setup.ForceModel]->setChecked(true);
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
    if (page == 1) {
        for (QCheckBox* box : {chkGraphS, chkGraphU, chkGraphF, chkProportional})
            box->hide();
        fraGraphs->setTitle(QStringLiteral("Κατηγοριοποίηση Κρούσεων"));
    } else if (page == 2) {
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
    if (Valid)
        InvalidFields.erase({kind, Index});
    else
        InvalidFields.insert({kind, Index});
    cmdCommand[0]->setEnabled(InvalidFields.empty());
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
    const std::array<std::array<const char*, 2>, KindCount> defaults = {{
        {"10", "15"}, {"10", "10"}, {"0", "100"}, {"0", "0"}, {"100", "50"}, {"0", "0"},
    }};
    for (int kind = 0; kind < KindCount; ++kind)
        for (int i = 0; i < 2; ++i)
            writeField(kind, i, QString::fromLatin1(defaults[kind][i]));
    for (QCheckBox* box : {chkShowVelocities, chkShowForces, chkGraphS, chkGraphU, chkGraphF})
        box->setChecked(true);
    chkProportional->setChecked(false);
    optModel[0]->setChecked(true);
    const CollisionSetup& setup = m_setup;
    showColors({setup.DefaultBodyColor[1], setup.DefaultBodyColor[2], setup.DefaultVelocityColor,
        setup.DefaultForceColor, setup.DefaultMomentumColor});
    showCollisionKind(0, CollisionSetup::Direction::Central, CollisionSetup::Elasticity::Elastic);
}

void frmCollisionOptions::cmdCommand_Click(int Index)
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

void frmCollisionOptions::reject()
{
    QDialog::reject();
    CloseAndRelease(this);
}

void frmCollisionOptions::cmdColorSelection_Click(int Index)
{
    setSwatchColor(lblCurrentColor[Index], CMDcolors.ShowColor(this));
}

void frmCollisionOptions::Form_Resize()
{
    if (isMinimized())
        SetStatusLine(MinimisedHint);
    else
        CentreForm(this);
}

void frmCollisionOptions::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    RunGuarded([this] { Form_Resize(); });
}

void frmCollisionOptions::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        RunGuarded([this] { Form_Resize(); });
}
