#pragma once

#include "widgets/ColorChooser.h"
#include "widgets/ParameterDialog.h"

#include <array>
#include <cstdint>

struct FluidParameters;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
class TypingLimit;

// "Parameters of Gas Molecules": the modal dialog in which the learner sets the
// rows, columns and two group colours of the liquid pages' molecules. It edits a
// working copy in its controls; the shared fluid values change only on "Ok".
class frmLGOptions : public ParameterDialog
{
    Q_OBJECT

public:
    // Loads fluid values into the controls and arranges the buttons for the liquid
    // page (6 or 8) it is opened from. The values outlive the dialog and change only
    // on "Ok".
    frmLGOptions(FluidParameters& fluid, int16_t page);

    // The handlers of the entry fields.
    void txtNoOfRows_Change();
    void txtNoOfColumns_Change();

    // The entry fields, by their index in InvalidFields.
    enum Field
    {
        FieldRows = 0,
        FieldColumns = 1
    };

private:
    FluidParameters& m_fluid;
    const int16_t m_page;

    void createControls();
    void createColorRow(int index, const QString& caption, int top);
    void placeCommandButtons(int lift);
    void installHints();
    // The names a screen reader announces for the fields and colour buttons.
    void nameControls();
    void ArrangeForPage();

    void ShowCurrentValues() override;
    void AcceptValues() override;
    void ShowDefaultValues() override;
    void showValues(const FluidParameters& fluid, const std::array<float, 3>& colors);

    QGroupBox* fraOptions = nullptr;
    std::array<QLabel*, 2> lblTitle{};
    QLineEdit* txtNoOfRows = nullptr;
    QLineEdit* txtNoOfColumns = nullptr;
    TypingLimit* m_rowsLimit = nullptr;
    TypingLimit* m_columnsLimit = nullptr;
    std::array<QLabel*, 2> lblColorSelection{};
    std::array<QLabel*, 2> lblCurrentColor{};
    std::array<QPushButton*, 2> cmdColorSelection{};
    QWidget* chk3DLiquidSurface = nullptr;
    ColorChooser CMDColors{QStringLiteral("CMDColors")};
};
