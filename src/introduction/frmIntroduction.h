#pragma once

#include "ExperimentView.h"
#include "IntroductionBook.h"
#include "LiquidPage.h"

#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>

class CanvasWidget;
class CollisionLab;
class CollisionSetup;
struct FluidParameters;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QScrollBar;
class RunControl;

// "Introduction": the book of 5 units and 21 pages, read page by page with the
// arrow buttons or by typed unit and page numbers and "Go To". Unit 3 pages 1 and 2
// carry the collision experiment, unit 2 pages 6 and 8 a vessel of liquid; both run
// under the run control and set their parameters in a modal dialog ("Options").
class frmIntroduction : public QWidget
{
    Q_OBJECT

public:
    // Loads the window: the book, its first page, the default parameters of both
    // experiments and the collision experiment's first set-up. The collision set-up
    // and the fluid values are the ones its pages and dialogs work on; they outlive
    // the window.
    frmIntroduction(CollisionSetup& setup, FluidParameters& fluid);
    ~frmIntroduction() override;

    // The buttons of cmdCommand, by index.
    enum Command {
        ExitButton = 0,
        PreviousUnitButton = 1,
        PreviousPageButton = 2,
        NextPageButton = 3,
        NextUnitButton = 4,
        SimulationButton = 5,
        GoToButton = 6,
        OptionsButton = 7,
        PauseButton = 8,
        StepButton = 9,
    };

    // The handlers of the controls.
    void cmdCommand_Click(int Index);
    void txtUnit_Change();
    void txtPage_Change();
    void picIntroduction_Paint();
    void picIntroduction_MouseUp(int16_t Button, int16_t Shift, float X, float Y);

    // The background colour of the picture, against which the experiment's colours
    // are made.
    int32_t PictureBackColor() const;

    // The page shown (or about to be shown, as typed).
    int16_t CurrentUnit() const { return m_CurrentUnit; }
    int16_t CurrentPage() const { return m_CurrentPage; }
    // False only while the page picture is being replaced.
    bool PageReady() const { return m_PageReady; }

    // The parts behind the window, for the views that look into it.
    const IntroductionBook& Book() const { return m_book; }
    ExperimentView& Experiment() { return *m_experiment; }
    LiquidPage& Liquid() { return *m_liquid; }
    RunControl& Run() { return *m_run; }
    CollisionLab& Lab() { return *m_lab; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createControls();
    void createNavigation();
    void createRunControls();
    void installHints();
    QPushButton* createButton(int index, const QString& caption, int left, int top, int width, int height);

    void GoToFirstPage();
    void GoTo();
    void ShowPage();
    void ShowCollisionPage();
    void CheckCollision();
    void StartSimulation();
    void TickPage();
    void ShowOptions();
    void Form_Resize();

    void Navigate(int Index);
    bool NextPosition(int Index, int16_t& unit, int16_t& page) const;
    void MoveTo(int16_t unit, int16_t page, bool writeUnit);
    void writeUnitText(int16_t unit);
    void writePageText(int16_t page);
    bool typedNumberValid(const QLineEdit* box, int16_t max) const;
    // Marks a typed unit or page number valid or refused; a valid one becomes the
    // position, a refused one disables "Go To". True when it was valid.
    bool takeTypedNumber(QLineEdit* box, int16_t max, int16_t& position);

    // What the status line shows when the window is minimised or closed.
    static QString ClosingHint();

    bool onCollisionPage() const;
    bool onLiquidPage() const;

    QGroupBox* fraDraw = nullptr;
    CanvasWidget* picIntroduction = nullptr;
    QPlainTextEdit* txtIntro = nullptr;
    std::array<QPushButton*, 10> cmdCommand{};
    QLabel* lblUnit = nullptr;
    QLineEdit* txtUnit = nullptr;
    QLabel* lblPage = nullptr;
    QLineEdit* txtPage = nullptr;
    QLabel* Label1 = nullptr;
    QScrollBar* HScrSimulationDelay = nullptr;

    CollisionSetup& m_setup;
    FluidParameters& m_fluid;
    IntroductionBook m_book;
    std::unique_ptr<ExperimentView> m_experiment;
    std::unique_ptr<LiquidPage> m_liquid;
    RunControl* m_run = nullptr;
    CollisionLab* m_lab = nullptr;
    QWidget* m_watchedFrame = nullptr;

    int16_t m_CurrentUnit = 1;
    int16_t m_CurrentPage = 1;
    bool m_PageReady = true;
};
