#pragma once

#include <QGroupBox>

#include <array>
#include <cstdint>

class CollisionBalance;
class QLabel;
class QPushButton;

// The collision experiment's results beside the picture: momentum (x and y from
// above, x in the side view) and kinetic energy of each body and of the system,
// before and after the contact, with the change; and the buttons that save the
// picture and the run's data. On a liquid page it counts instead the molecules
// of each colour in the two halves of the vessel.
class ResultsPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit ResultsPanel(QWidget* parent);

    // The figures of a finished run on a page (1 from above, 2 side view).
    void ShowFigures(const CollisionBalance& balance, int page);
    // No run yet: a line that says how to get the figures.
    void ClearFigures();

    // The liquid page's counts: counts[group][side], group 0 and 1, side 0 left and
    // 1 right, with the groups' colours (whole RGB numbers). Hides the save buttons.
    void ShowCounts(const std::array<std::array<int, 2>, 2>& counts, const std::array<int32_t, 2>& colours);

    // The collision pages' panel with its save buttons.
    void ShowCollisionPanel();

    // The text shown, for the views that look into it.
    QString FiguresText() const;

    QPushButton* SavePictureButton() const { return cmdSavePicture; }
    QPushButton* SaveDataButton() const { return cmdSaveData; }

    // The panel's size in twips.
    static constexpr int Width = 4095;
    static constexpr int Height = 5295;

private:
    QLabel* lblFigures = nullptr;
    QPushButton* cmdSavePicture = nullptr;
    QPushButton* cmdSaveData = nullptr;
};
