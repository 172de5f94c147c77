#pragma once

#include "widgets/ColorChooser.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <set>

struct FluidParameters;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

// "Parameters of Gas Molecules": the modal dialog in which the learner sets the
// rows, columns and two group colours of the liquid pages' molecules. It edits a
// working copy in its controls; the shared fluid values change only on "Ok".
class frmLGOptions : public QDialog
{
    Q_OBJECT

public:
    // Loads fluid values into the controls and arranges the buttons for the liquid
    // page (6 or 8) it is opened from. The values outlive the dialog and change only
    // on "Ok".
    frmLGOptions(FluidParameters& fluid, int16_t page);

    // The handlers of the controls.
    void cmdCommand_Click(int Index);
    void cmdColorSelection_Click(int Index);
    void txtNoOfRows_Change();
    void txtNoOfColumns_Change();

public slots:
    // Escape and the close box cancel, as "Cancel" does.
    void reject() override;

private:
    FluidParameters& m_fluid;
    const int16_t m_page;

    void createControls();
    void createColorRow(int index, const QString& caption, int top);
    void createCommandButtons();
    void installHints();
    void ArrangeForPage();

    void ShowCurrentValues();
    void AcceptValues();
    void ShowDefaultValues();
    void MarkFieldValidity(int Index, bool Valid);

    QGroupBox* fraOptions = nullptr;
    std::array<QLabel*, 2> lblTitle{};
    QLineEdit* txtNoOfRows = nullptr;
    QLineEdit* txtNoOfColumns = nullptr;
    std::array<QLabel*, 2> lblColorSelection{};
    std::array<QLabel*, 2> lblCurrentColor{};
    std::array<QPushButton*, 2> cmdColorSelection{};
    QWidget* chk3DLiquidSurface = nullptr;
    std::array<QPushButton*, 3> cmdCommand{};
    ColorChooser CMDColors;

    std::set<int> InvalidFields;
};
