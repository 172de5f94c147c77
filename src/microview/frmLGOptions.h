#pragma once

#include "shell/ColorChooserControl.h"

#include <QDialog>

#include <array>
#include <cstdint>
#include <set>

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
    // Loads the shared fluid values into the controls and arranges the buttons for
    // the page the introduction handed over.
    frmLGOptions();

    // The handlers of the controls.
    void cmdCommand_Click(int Index);
    void cmdColorSelection_Click(int Index);
    void txtNoOfRows_Change();
    void txtNoOfColumns_Change();

public slots:
    // Escape and the close box cancel, as "Cancel" does.
    void reject() override;

private:
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
    ColorChooserControl CMDColors{QStringLiteral("CMDColors")};

    std::set<int> InvalidFields;
};
