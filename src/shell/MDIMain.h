#pragma once

#include <QMainWindow>

#include <array>

class QAction;
class QLabel;
class QMdiArea;
class QMenu;

// The main frame: the menus that open the three views as child windows, the status
// line along the bottom in which the other windows show their hints, and the exit
// question.
class MDIMain : public QMainWindow
{
    Q_OBJECT

public:
    // Builds the frame with its menus, an empty child area and an empty status line.
    MDIMain();

    // Shows a form as a child window of the frame, or brings it forward if it is
    // one already.
    void ShowChild(QWidget* form);

    // The status line's text.
    QString statusLine() const;
    void setStatusLine(const QString& text);

    // The area that holds the child windows.
    QMdiArea* mdiArea() const { return m_mdiArea; }

    // The items of the Contents and Help menus, by their index.
    enum ContentsItem
    {
        IntroductionItem = 0,
        MacroViewItem = 1,
        MicroViewItem = 2,
        ExitItem = 4
    };
    enum HelpItem
    {
        HelpContentsItem = 0,
        SearchItem = 1,
        AboutItem = 3
    };

    // The menu handlers.
    void mnuContentsItem_Click(int Index);
    void mnuHelpItem_Click(int Index);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenus();
    // Mnemonics, shortcuts and names for keyboard and screen-reader use.
    void buildKeyboard();
    void buildStatusLine(QWidget* parent);
    QAction* addItem(QMenu* menu, const QString& name, int index, const QString& caption);
    bool closeChildWindows();
    void picStatusLine_Resize();

    QMdiArea* m_mdiArea = nullptr;
    QMenu* mnuContents = nullptr;
    QMenu* mnuOptions = nullptr;
    QMenu* mnuHelp = nullptr;
    std::array<QAction*, 5> mnuContentsItem{};
    std::array<QAction*, 4> mnuHelpItem{};
    QWidget* picStatusLine = nullptr;
    QLabel* lblStatusLine = nullptr;
    // Whether the frame was fitted to its screen with the desktop's frame round it.
    bool m_framedFit = false;
};
