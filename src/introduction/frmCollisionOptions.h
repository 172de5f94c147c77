#pragma once

#include "BodyParameterHints.h"
#include "model/CollisionSetup.h"
#include "widgets/ColorChooser.h"
#include "widgets/ParameterDialog.h"

#include <array>
#include <cstdint>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;
class TypingLimit;

// "Παράμετροι Ελαστικής Κρούσης": the modal dialog in which the learner sets the two
// bodies of the collision experiment (mass, radius, initial position and velocity),
// the vectors and graphs drawn, the model of the contact force and the colours. It
// edits a working copy in its controls; the experiment's parameters change only on
// "Ok", which is enabled only while all twelve typed numbers are valid.
class frmCollisionOptions : public ParameterDialog
{
    Q_OBJECT

public:
    // Loads the parameters of a set-up into the controls and arranges the dialog for
    // the set-up's page (1 view from above, 2 side view). The colours are shown and
    // stored against the background of the picture they are drawn on. The set-up
    // outlives the dialog and changes only on "Ok".
    frmCollisionOptions(CollisionSetup& setup, int32_t pictureBackground);

    // The check of a typed number of one kind (BodyParameterHints::Kind) and body
    // index 0 or 1: txtm_Change, txtR_Change and their sister handlers.
    void Field_Change(int kind, int Index);
    void txtm_Change(int Index) { Field_Change(BodyParameterHints::Mass, Index); }
    void txtR_Change(int Index) { Field_Change(BodyParameterHints::Radius, Index); }
    void txtx_Change(int Index) { Field_Change(BodyParameterHints::PositionX, Index); }
    void txty_Change(int Index) { Field_Change(BodyParameterHints::PositionY, Index); }
    void txtux_Change(int Index) { Field_Change(BodyParameterHints::VelocityX, Index); }
    void txtuy_Change(int Index) { Field_Change(BodyParameterHints::VelocityY, Index); }

private:
    CollisionSetup& m_setup;
    const int32_t m_pictureBackground;

    using FieldArray = std::array<QLineEdit*, 2>;

    void createBodyFrame();
    void createBodyRow(int kind);
    void createGraphFrame();
    void createVectorFrame();
    void createModelFrame();
    void createColorFrame();
    void placeCommandButtons();
    // The names a screen reader announces for the fields, switches and colour buttons.
    void nameControls();
    QGroupBox* createFrame(const char* name, const QString& caption, int left, int top, int width, int height);
    QCheckBox* createCheck(QWidget* parent, const char* name, const QString& caption, int left, int top, int width);

    void ShowCurrentValues() override;
    void AcceptValues() override;
    void ShowDefaultValues() override;
    void showBodies(const CollisionSetup& setup);
    void showSwitches(const CollisionSetup& setup);
    void ArrangeForPage();
    using ParameterDialog::MarkFieldValidity;
    void MarkFieldValidity(int kind, int Index, bool Valid);
    void writeField(int kind, int Index, const QString& text);

    // The experiment keeps its colours as drawing colours, combined by exclusive-or
    // with the picture's background; the swatches show the colours as seen. The five
    // swatches are body 1, body 2, velocities, forces and momenta.
    void showColors(const std::array<float, 5>& stored);
    static constexpr int MomentumSwatch = 4;
    // The momentum switch and the two collision types.
    void showCollisionKind(int16_t momenta, CollisionSetup::Direction direction,
        CollisionSetup::Elasticity elasticity);
    float storedColor(int Index, int32_t background) const;

    QLineEdit*& field(int kind, int Index);
    int32_t pictureBackground() const { return m_pictureBackground; }

    QGroupBox* fraCollisionData = nullptr;
    std::array<QLabel*, 2> lblTitle{};
    FieldArray txtm{}, txtR{}, txtx{}, txty{}, txtux{}, txtuy{};
    std::array<QLabel*, 2> lblm{}, lblR{}, lblx{}, lbly{}, lblux{}, lbluy{};
    std::array<QLabel*, 12> lblUnits{};

    QGroupBox* fraGraphs = nullptr;
    QCheckBox* chkGraphS = nullptr;
    QCheckBox* chkGraphU = nullptr;
    QCheckBox* chkGraphF = nullptr;
    QCheckBox* chkProportional = nullptr;
    QWidget* picCollType1 = nullptr;
    QWidget* picCollType2 = nullptr;
    std::array<QRadioButton*, 2> OptType1{};
    std::array<QRadioButton*, 2> OptType2{};
    QCheckBox* chkPlastic = nullptr;

    QGroupBox* fraVisualisationOption = nullptr;
    QCheckBox* chkShowVelocities = nullptr;
    QCheckBox* chkShowForces = nullptr;
    QCheckBox* chkShowMomenta = nullptr;

    QGroupBox* fraModel = nullptr;
    std::array<QRadioButton*, 3> optModel{};

    QGroupBox* fraColors = nullptr;
    std::array<QLabel*, 5> lblColorSelection{};
    std::array<QPushButton*, 5> cmdColorSelection{};
    std::array<QLabel*, 5> lblCurrentColor{};

    ColorChooser CMDcolors{QStringLiteral("CMDcolors")};

    // The typing limit of each box, by kind and body index.
    std::array<std::array<TypingLimit*, 2>, BodyParameterHints::KindCount> m_typingLimit{};
};
