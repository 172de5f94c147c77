#include "frmMacroView.h"

#include "MovieFrameWidget.h"
#include "MovieLayout.h"
#include "MoviePlayer.h"

#include "core/ProgramFiles.h"
#include "core/Twips.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"
#include "widgets/suppl.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int DesignWidth = 6105;
constexpr int DesignHeight = 4455;

QString& movieFolderOverride()
{
    static QString folder;
    return folder;
}

} // namespace

frmMacroView::frmMacroView(MoviePlayer& player) : m_player(player)
{
    setObjectName("frmMacroView");
    setWindowTitle(tr("Macroscopic View"));
    buildControls();
    resize(sizeHint());
    Form_Load();
}

frmMacroView::~frmMacroView()
{
    handBackFilm();
}

void frmMacroView::closeEvent(QCloseEvent* event)
{
    handBackFilm();
    QWidget::closeEvent(event);
}

void frmMacroView::handBackFilm()
{
    if (m_filmHandedBack)
        return;
    m_filmHandedBack = true;
    disconnect(&m_player, nullptr, this, nullptr);
    disconnect(&m_player, nullptr, oleMovie, nullptr);
    m_player.stop();
}

QSize frmMacroView::sizeHint() const
{
    return QSize(Twips::toPixels(DesignWidth), Twips::toPixels(DesignHeight));
}

void frmMacroView::buildControls()
{
    buildMovieFrame();
    buildButtons();
    connectPlayer();
}

void frmMacroView::buildMovieFrame()
{
    picMovie = new QFrame(this);
    picMovie->setObjectName("picMovie");
    picMovie->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picMovie->setStyleSheet("QFrame#picMovie { background: black; }");
    FormLayout::place(picMovie, 600, 240, 4815, 3375);
    auto* inside = new QVBoxLayout(picMovie);
    inside->setContentsMargins(2, 2, 2, 2);
    oleMovie = new MovieFrameWidget(picMovie);
    oleMovie->setObjectName("oleMovie");
    inside->addWidget(oleMovie);
    lblMovieMessage = new QLabel(picMovie);
    lblMovieMessage->setObjectName("lblMovieMessage");
    lblMovieMessage->setAlignment(Qt::AlignCenter);
    lblMovieMessage->setWordWrap(true);
    lblMovieMessage->setStyleSheet("color: white; background: black; padding: 12px;");
    lblMovieMessage->hide();
    inside->addWidget(lblMovieMessage);
    StatusHints::install(picMovie, tr("A Floatrixon rising into the evening sky"));
}

void frmMacroView::buildButtons()
{
    const QString captions[] = {tr("Exit"), tr("Play")};
    for (int i = 0; i < 2; ++i) {
        cmdCommand[i] = new QPushButton(captions[i], this);
        cmdCommand[i]->setObjectName(QString("cmdCommand(%1)").arg(i));
        connect(cmdCommand[i], &QPushButton::clicked, this, [this, i] { cmdCommand_Click(i); });
    }
    FormLayout::place(cmdCommand[PlayButton], 2760, 3840, 1095, 375);
    FormLayout::place(cmdCommand[ExitButton], 4200, 3840, 1095, 375);
    StatusHints::install(cmdCommand[PlayButton], tr("Play the film from where it stands"));
    StatusHints::install(cmdCommand[ExitButton], tr("Close the macroscopic view"));
}

void frmMacroView::connectPlayer()
{
    oleMovie->setFrame(m_player.currentFrame());
    connect(&m_player, &MoviePlayer::frameChanged, oleMovie, &MovieFrameWidget::setFrame);
    connect(&m_player, &MoviePlayer::failed, this, &frmMacroView::showPlayerError);
}

void frmMacroView::Form_Load()
{
    const QString path = filmPath();
    if (!QFileInfo(path).isReadable()) {
        showMovieMessage(tr("The film cannot be shown.\n\n\"floatrixo.avi\" is missing from the "
                            "program's folder:\n%1")
                             .arg(QFileInfo(path).absolutePath()));
        return;
    }
    // A film the player cannot play is reported through its failed signal, to which
    // the window is already connected.
    m_player.load(path);
}

void frmMacroView::showPlayerError(const QString& error)
{
    showMovieMessage(tr("The film cannot be shown.\n\n\"floatrixo.avi\" could not be played:\n%1").arg(error));
}

QString frmMacroView::filmPath()
{
    const QString& folder = movieFolderOverride();
    return MoviePath(folder.isEmpty() ? ProgramFiles::folder("floatrixo.avi") : folder);
}

QString frmMacroView::MoviePath(const QString& folder)
{
    return folder.endsWith('/') ? folder + "floatrixo.avi" : folder + "/floatrixo.avi";
}

void frmMacroView::setMovieFolder(const QString& folder)
{
    movieFolderOverride() = folder;
}

MoviePlayer* frmMacroView::player() const
{
    return &m_player;
}

QImage frmMacroView::shownFrame() const
{
    return oleMovie->frame();
}

QString frmMacroView::movieMessage() const
{
    return lblMovieMessage->isHidden() ? QString() : lblMovieMessage->text();
}

void frmMacroView::showMovieMessage(const QString& text)
{
    oleMovie->hide();
    lblMovieMessage->setText(text);
    lblMovieMessage->show();
    cmdCommand[PlayButton]->setEnabled(false);
}

void frmMacroView::cmdCommand_Click(int Index)
{
    RunGuarded([this, Index] {
        switch (Index) {
        case ExitButton:
            CloseAndRelease(this);
            break;
        case PlayButton:
            m_player.play();
            break;
        default:
            break;
        }
    });
}

void frmMacroView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    RunGuarded([this] { Form_Resize(); });
}

void frmMacroView::Form_Resize()
{
    CentreForm(this);
    // The layout follows the outer size: the child-window frame when there is one.
    auto* frame = qobject_cast<QMdiSubWindow*>(parentWidget());
    const QSize outer = frame ? frame->size() : frameGeometry().size();
    const MovieLayout layout =
        MovieLayout::arrange(Twips::fromPixels(outer.width()), Twips::fromPixels(outer.height()));
    FormLayout::place(picMovie, layout.picMovie);
    FormLayout::place(cmdCommand[ExitButton], layout.exit);
    FormLayout::place(cmdCommand[PlayButton], layout.play);
}
