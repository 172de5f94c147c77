#pragma once

#include <QDialog>
#include <QTimer>

#include <array>

class QGroupBox;
class QLabel;
class QPushButton;

// The splash window, which is also the About box. At start-up its title panel
// slides up from below the visible part, rests for a second and hands over to the
// main frame; from the Help menu the same window shows modally with the panel at
// rest, the memory figures and "&OK".
class frmIdentify : public QDialog
{
    Q_OBJECT

public:
    // Loads the window in its design state (caption "About...", the panel at rest,
    // the timer off) with the memory line filled in.
    frmIdentify();

    // Shows the window modally as the About box; returns once it is closed, with
    // the window unloaded.
    void ShowAbout();

    // Shortens the splash: the panel stops and the next tick, a second later, hands
    // over to the main frame. Every click on the panel or the window calls it.
    void AbortIntroduction();

    // The splash's tick: raises the panel a step, or after the rest hands over.
    void EffectTimer_Timer();

    // The "&OK" button: unloads the About box; during the splash it shortens the
    // splash instead.
    void cmdClose_Click();

    // Whether the window is the splash: its timer runs until the hand-over.
    bool IsSplash() const { return m_EffectTimer.isActive(); }

    // Escape: closes the About box; during the splash it shortens the splash.
    void reject() override;

    // The splash's timer, disabled until the start-up routine enables it.
    QTimer& EffectTimer() { return m_EffectTimer; }

    // The splash's phases: the panel slides up a step at each short tick, then
    // rests for one long tick before the hand-over.
    enum class SplashPhase { Slide, Rest };
    SplashPhase Phase() const { return m_Phase; }
    // Enters a phase; the timer's interval follows it (a change restarts its count).
    void setPhase(SplashPhase phase);

    // The title panel's top, in twips.
    int FraIdentifyTop() const { return m_FraIdentifyTop; }
    void setFraIdentifyTop(int twips);

    // The window's inner height, in twips.
    int ScaleHeight() const;

    // Sets the window's outer height (title bar and borders included), in twips;
    // whatever lies below is cut off.
    void setOuterHeight(int twips);

signals:
    // The splash has rested and hands over to the main frame.
    void splashFinished();
    // The splash closed other than by its own hand-over.
    void splashClosedByUser();

protected:
    void closeEvent(QCloseEvent* event) override;
    // During the splash, Space does what a click does.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildTitlePanel();
    void buildTitleLabels();
    void buildFooter();
    void Form_Load();
    void watch(QWidget* control);
    bool handleClick(QObject* watched, QEvent* event);
    void setLogoBorderStyle(int style);
    void installHints();

    QGroupBox* FraIdentify = nullptr;
    QWidget* picAuxiliary = nullptr;
    QLabel* Picture2 = nullptr;
    std::array<QLabel*, 13> lblID{}; // indices 0 to 6 and 12
    QLabel* picLogo = nullptr;
    QLabel* lblInfo = nullptr;
    QPushButton* cmdClose = nullptr;
    QTimer m_EffectTimer;
    SplashPhase m_Phase = SplashPhase::Slide;
    int m_FraIdentifyTop = 0;
};
