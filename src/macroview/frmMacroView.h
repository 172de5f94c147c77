#pragma once

#include <QString>
#include <QWidget>

#include <array>

class MovieFrameWidget;
class MoviePlayer;
class QFrame;
class QLabel;
class QPushButton;

// The "Macroscopic View" child window of the main frame: the film of a balloon
// rising ("floatrixo.avi" from the program's folder) in its frame, with "Play" and
// "Exit". A missing or unreadable film leaves a message in the frame instead.
class frmMacroView : public QWidget
{
    Q_OBJECT

public:
    // Loads the window and shows the film through the program's one player, which
    // outlives the window.
    explicit frmMacroView(MoviePlayer& player);
    // Ends the film's playing unless closing did.
    ~frmMacroView() override;

    // The buttons, by their index.
    enum Command { ExitButton = 0, PlayButton = 1 };

    // 0 "Exit" unloads the window; 1 "Play" plays the film from where it stands.
    void cmdCommand_Click(int Index);

    // The path of the film in a folder, with exactly one separator between them.
    static QString MoviePath(const QString& folder);

    // The folder the film is taken from at the next load; empty means the
    // program's own folder. Lets a test show the window without its film.
    static void setMovieFolder(const QString& folder);

    // The player of the embedded film, the same at every opening.
    MoviePlayer* player() const;

    // The frame shown in the window; null while none came.
    QImage shownFrame() const;

    // The message shown in the frame in place of the film; empty while the film
    // can be shown.
    QString movieMessage() const;

    // The designed size of the window.
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildControls();
    void buildMovieFrame();
    void buildButtons();
    void connectPlayer();
    static QString filmPath();
    void handBackFilm();
    void Form_Load();
    void Form_Resize();
    void showMovieMessage(const QString& text);
    void showPlayerError(const QString& error);

    QFrame* picMovie = nullptr;
    MovieFrameWidget* oleMovie = nullptr;
    QLabel* lblMovieMessage = nullptr;
    MoviePlayer& m_player;
    // Whether this view has handed the film back; a closed view awaiting release
    // must not stop the film a newer opening plays.
    bool m_filmHandedBack = false;
    std::array<QPushButton*, 2> cmdCommand{};
};
