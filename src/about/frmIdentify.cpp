#include "frmIdentify.h"

#include "MemoryStatus.h"
#include "ProgramImages.h"

#include "core/Twips.h"
#include "widgets/FormLayout.h"
#include "widgets/WindowRelease.h"
#include "widgets/StatusLine.h"
#include "widgets/HandlerGuard.h"
#include "widgets/StatusHints.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int RestTop = 50;
constexpr int DesignTop = 120;
constexpr int SlideStep = 25;
constexpr int SlideInterval = 50;
constexpr int RestInterval = 1000;

struct TitleLine
{
    int index;
    int top;
    int height;
    int pixelSize;
    bool bold;
    QRgb colour;
    const char* text;
};

// The maker's texts over the banner, from top to bottom.
constexpr TitleLine TitleLines[] = {
    {0, 120, 480, 22, true, 0x8c1c1c, QT_TRANSLATE_NOOP("frmIdentify", "LUDOPHYS")},
    {1, 600, 360, 13, false, 0x3c3c50, QT_TRANSLATE_NOOP("frmIdentify", "Physics in Traditional Games")},
    {6, 960, 360, 19, true, 0x14205a, QT_TRANSLATE_NOOP("frmIdentify", "Floatrixon (Floatrix)")},
    {2, 1320, 240, 13, false, 0x14205a, QT_TRANSLATE_NOOP("frmIdentify", "Simulation Program")},
    {12, 1560, 360, 11, false, 0x5a5a64, QT_TRANSLATE_NOOP("frmIdentify", "Version 1.0")},
    {3, 1920, 240, 11, false, 0x3c3c46, QT_TRANSLATE_NOOP("frmIdentify", "\u00a9 2026 The Floatrix Team")},
    {4, 2160, 240, 11, false, 0x3c3c46, QT_TRANSLATE_NOOP("frmIdentify", "Physics Education Software")},
    {5, 2400, 240, 11, false, 0x3c3c46, QT_TRANSLATE_NOOP("frmIdentify", "Free for schools and learners everywhere")},
};

} // namespace

frmIdentify::frmIdentify()
{
    setObjectName("frmIdentify");
    setWindowTitle(tr("About..."));
    setWindowIcon(ProgramImages::icon());
    FormLayout::fixSize(this, 6240, 4335);
    buildTitlePanel();
    buildTitleLabels();
    buildFooter();

    m_EffectTimer.setTimerType(Qt::PreciseTimer);
    setPhase(SplashPhase::Slide);
    connect(&m_EffectTimer, &QTimer::timeout, this, &frmIdentify::EffectTimer_Timer);
    watch(this);
    Form_Load();
}

void frmIdentify::buildTitlePanel()
{
    FraIdentify = new QGroupBox(this);
    FraIdentify->setObjectName("FraIdentify");
    FormLayout::place(FraIdentify, 120, DesignTop, 6015, 3255);
    m_FraIdentifyTop = DesignTop;
    picAuxiliary = new QWidget(FraIdentify);
    picAuxiliary->setObjectName("picAuxiliary");
    FormLayout::place(picAuxiliary, 120, 240, 5775, 2895);
    Picture2 = new QLabel(picAuxiliary);
    Picture2->setObjectName("Picture2");
    FormLayout::place(Picture2, 0, 0, 5775, 2895);
    Picture2->setPixmap(ProgramImages::banner());
    Picture2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Picture2->setAutoFillBackground(true);
    QPalette paper = Picture2->palette();
    paper.setColor(QPalette::Window, QColor(252, 250, 244));
    Picture2->setPalette(paper);
    for (QWidget* control : {static_cast<QWidget*>(FraIdentify), picAuxiliary, static_cast<QWidget*>(Picture2)})
        watch(control);
}

void frmIdentify::buildTitleLabels()
{
    for (const TitleLine& line : TitleLines) {
        auto* label = new QLabel(tr(line.text), Picture2);
        label->setObjectName(QString("lblID(%1)").arg(line.index));
        FormLayout::place(label, 1080, line.top, 4575, line.height);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        QFont font = label->font();
        font.setPixelSize(line.pixelSize);
        font.setBold(line.bold);
        if (line.index == 0)
            font.setLetterSpacing(QFont::AbsoluteSpacing, 4);
        label->setFont(font);
        QPalette ink = label->palette();
        ink.setColor(QPalette::WindowText, QColor::fromRgb(line.colour));
        label->setPalette(ink);
        lblID[std::size_t(line.index)] = label;
        watch(label);
    }
}

void frmIdentify::buildFooter()
{
    picLogo = new QLabel(this);
    picLogo->setObjectName("picLogo");
    FormLayout::place(picLogo, 120, 3600, 480, 480);
    picLogo->setPixmap(windowIcon().pixmap(32, 32));
    picLogo->setAlignment(Qt::AlignCenter);
    setLogoBorderStyle(0);
    lblInfo = new QLabel(this);
    lblInfo->setObjectName("lblInfo");
    FormLayout::place(lblInfo, 840, 3600, 3855, 615);
    lblInfo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    cmdClose = new QPushButton(tr("&OK"), this);
    cmdClose->setObjectName("cmdClose");
    FormLayout::place(cmdClose, 5040, 3720, 975, 375);
    cmdClose->setDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, [this] { RunGuarded([this] { cmdClose_Click(); }); });
    for (QWidget* control : {static_cast<QWidget*>(picLogo), static_cast<QWidget*>(lblInfo),
             static_cast<QWidget*>(cmdClose)})
        watch(control);
}

void frmIdentify::Form_Load()
{
    // The label shows the lone carriage return of the memory line as a line break.
    QString caption = MemoryStatus::current().InfoCaption();
    lblInfo->setText(caption.replace(QChar(13), QChar('\n')));
}

void frmIdentify::watch(QWidget* control)
{
    control->setMouseTracking(true);
    control->installEventFilter(this);
}

void frmIdentify::ShowAbout()
{
    setWindowFlag(Qt::FramelessWindowHint, false);
    installHints();
    // "&OK" releases the window itself, and the release may already have run when
    // exec returns; a box closed any other way is released here.
    const QPointer<frmIdentify> self(this);
    exec();
    if (self && !IsReleased(self))
        CloseAndRelease(self);
}

void frmIdentify::installHints()
{
    StatusHints::install(Picture2, tr("Floatrixon (Floatrix), a simulation program of the Ludophys series"));
    StatusHints::install(picLogo, tr("Floatrix"));
    StatusHints::install(lblInfo, tr("Physical memory of this computer"));
    StatusHints::install(cmdClose, tr("Close the About box"));
}

void frmIdentify::AbortIntroduction()
{
    // Only a change of phase restarts the timer's count: clicks that follow one
    // another during the last second must not put the hand-over off for good.
    if (m_Phase != SplashPhase::Rest)
        setPhase(SplashPhase::Rest);
}

void frmIdentify::setPhase(SplashPhase phase)
{
    m_Phase = phase;
    m_EffectTimer.setInterval(phase == SplashPhase::Slide ? SlideInterval : RestInterval);
}

void frmIdentify::EffectTimer_Timer()
{
    RunGuarded(
        [this] {
            if (m_Phase == SplashPhase::Slide) {
                int top = m_FraIdentifyTop - SlideStep;
                if (top <= RestTop) {
                    top = RestTop;
                    setPhase(SplashPhase::Rest);
                }
                setFraIdentifyTop(top);
            } else {
                m_EffectTimer.stop();
                emit splashFinished();
            }
        },
        [this] { m_EffectTimer.stop(); });
}

void frmIdentify::cmdClose_Click()
{
    // During the splash the button lies in the cut-off part of the window, yet Enter
    // (it is the default button) and Space still reach it. There they do what a
    // click does, so that the splash always ends in the main frame.
    if (IsSplash()) {
        AbortIntroduction();
        return;
    }
    CloseAndRelease(this);
}

void frmIdentify::keyPressEvent(QKeyEvent* event)
{
    // Space on the window itself (Enter goes to the default button).
    if (IsSplash() && event->key() == Qt::Key_Space) {
        AbortIntroduction();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmIdentify::reject()
{
    if (IsSplash())
        AbortIntroduction();
    else
        QDialog::reject();
}

void frmIdentify::setFraIdentifyTop(int twips)
{
    m_FraIdentifyTop = twips;
    FraIdentify->move(Twips::toPixels(120), Twips::toPixels(twips));
}

int frmIdentify::ScaleHeight() const
{
    return Twips::fromPixels(height());
}

void frmIdentify::setOuterHeight(int twips)
{
    const int decoration = frameGeometry().height() - height();
    setFixedHeight(Twips::toPixels(twips) - decoration);
}

void frmIdentify::setLogoBorderStyle(int style)
{
    picLogo->setFrameShape(style == 1 ? QFrame::Box : QFrame::NoFrame);
    picLogo->setLineWidth(1);
}

void frmIdentify::closeEvent(QCloseEvent* event)
{
    // The splash hands over to the main frame only from its timer, which stops
    // first. Closed any other way it would leave the program with no window at all
    // and nothing left to open one, so the application ends the program instead.
    const bool splashClosed = IsSplash();
    m_EffectTimer.stop();
    QDialog::closeEvent(event);
    if (splashClosed)
        emit splashClosedByUser();
}

bool frmIdentify::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        RunGuarded([&] { setLogoBorderStyle(watched == picLogo ? 1 : 0); });
        // The icon keeps its moves: passed on to the window behind it they would
        // take the border away again at once.
        if (watched == picLogo)
            return true;
    }
    if (watched != cmdClose && handleClick(watched, event))
        return true;
    return QDialog::eventFilter(watched, event);
}

bool frmIdentify::handleClick(QObject* watched, QEvent* event)
{
    // Each control keeps its own presses, so that its release comes back to it as
    // a click and goes no further; only the panel's picture areas, its labels and
    // the window itself shorten the splash.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        return true;
    if (event->type() != QEvent::MouseButtonRelease)
        return false;
    auto* release = static_cast<QMouseEvent*>(event);
    auto* control = static_cast<QWidget*>(watched);
    const bool shortens = watched == this || watched == picAuxiliary || watched == Picture2
        || std::find(lblID.begin(), lblID.end(), watched) != lblID.end();
    if (shortens && release->button() == Qt::LeftButton && control->rect().contains(release->position().toPoint()))
        RunGuarded([this] { AbortIntroduction(); });
    return true;
}
