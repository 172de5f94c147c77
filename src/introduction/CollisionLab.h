#pragma once

#include <QObject>

class CanvasWidget;
struct FluidParameters;
class LiquidMolecules;
class ExperimentView;
class QPushButton;
class QWidget;
class ResultsPanel;

// What the collision pages offer beyond the experiment itself: the "Results"
// button that opens a panel beside the picture with the momentum and energy of the
// last run, and saving the picture (PNG) and the run's data (CSV) from that panel
// or from the keyboard (Ctrl+Shift+S, Ctrl+S). The window grows to the right while
// the panel is open. On the liquid pages the same button ("Counts") opens the
// panel with the molecules of each colour in either half, updated every tick.
// Nothing of it shows on the other pages.
class CollisionLab : public QObject
{
    Q_OBJECT

public:
    // Adds the button and the panel to a form of the given client size in twips,
    // beside its picture.
    CollisionLab(QWidget* form, CanvasWidget* picture, ExperimentView& experiment, int clientWidth,
                 int clientHeight);

    // A page has been shown: the button serves collision and liquid pages, the
    // shortcuts collision pages only; the figures of an earlier run are gone.
    void PageShown(bool collisionPage, bool liquidPage);
    // The liquid page's molecules have moved (or been laid out).
    void LiquidChanged(const LiquidMolecules& molecules, const FluidParameters& fluid);
    // A run starts or has ended.
    void RunStarted();
    void RunFinished();

    // Opens or closes the panel.
    void ShowResults(bool open);

    // The two exports, each through the platform's save dialog.
    void SavePicture();
    void SaveData();

private:
    void fitForm(bool open);

    QWidget* m_form;
    CanvasWidget* m_picture;
    ExperimentView& m_experiment;
    const int m_clientWidth;
    const int m_clientHeight;
    QPushButton* cmdResults = nullptr;
    ResultsPanel* m_panel = nullptr;
    bool m_collisionPage = false;
    bool m_liquidPage = false;
    bool m_runShown = false;
};
