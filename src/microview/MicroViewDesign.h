#pragma once

#include <QCoreApplication>

#include <array>

class CanvasWidget;
class DecorShape;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QScrollBar;
class QWidget;

// The controls of the microscopic view as designed: frames, sample pictures, force
// labels, the balloon panel with its indicators and decorations, the parameter
// bars with their labels, the drawing options and the buttons, each placed in twips
// and named as the window's handlers and tests know it, with its hint as tool tip.
class MicroViewDesign
{
    // Its texts are the window's, translated in the window's context.
    Q_DECLARE_TR_FUNCTIONS(frmMicroView)

protected:
    // Creates every control on the form, at its design value.
    void buildControls(QWidget* form);

    std::array<QGroupBox*, 3> fraDraw{};
    std::array<CanvasWidget*, 3> picDraw{};
    std::array<QGroupBox*, 4> fraCalculations{};
    std::array<QLabel*, 2> lblCurrentFx{};
    std::array<QLabel*, 2> lblMeanFx{};
    QLabel* lblCurrentFy = nullptr;
    QLabel* lblMeanFy = nullptr;
    QLabel* lblFxMeanTotal = nullptr;
    QLabel* lblFyMeanTotal = nullptr;

    QGroupBox* fraMacroView = nullptr;
    CanvasWidget* picMacroView = nullptr;
    CanvasWidget* picForceXIndicator = nullptr;
    CanvasWidget* picForceYIndicator = nullptr;
    DecorShape* Floatrix = nullptr;
    std::array<DecorShape*, 4> Magnifier{};
    std::array<DecorShape*, 4> Handle{};
    std::array<DecorShape*, 4> mirror{};

    std::array<QScrollBar*, 2> HScrNoOfMolecules{};
    std::array<QLabel*, 2> lblNoOfMolecules{};
    QScrollBar* HScrMass = nullptr;
    QLabel* lblMass = nullptr;
    QScrollBar* HScrRadius = nullptr;
    QLabel* lblRadius = nullptr;
    QScrollBar* HScrdt = nullptr;
    QLabel* lbldt = nullptr;
    QScrollBar* HScrTemp = nullptr;
    QLabel* lblTemp = nullptr;

    QCheckBox* chkDrawGrid = nullptr;
    QCheckBox* chkDrawCenterLine = nullptr;
    QCheckBox* ChkRandomDrawColor = nullptr;
    QCheckBox* chkFilledMolecules = nullptr;
    QCheckBox* ChkLeaveTrail = nullptr;
    QCheckBox* ChkObserveSingleMolecule = nullptr;
    QCheckBox* ChkPerturbation = nullptr;

    std::array<QPushButton*, 3> cmdCommand{};

private:
    void buildSamplePictures(QWidget* form);
    void buildCalculations(QWidget* form);
    void buildMacroView(QWidget* form);
    void buildBalloon();
    void buildBars(QWidget* form);
    void buildCheckBoxes(QWidget* form);
    void buildButtons(QWidget* form);
    // Focus, arrow keys and names of the bars, descriptions of the pictures, Tab order.
    void buildKeyboardAccess();
};
