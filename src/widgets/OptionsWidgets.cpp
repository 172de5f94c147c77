#include "OptionsWidgets.h"

#include "canvas/Rgb.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

namespace OptionsWidgets {

namespace {

// Calls a handler on one kind of event of the control it watches; lives as the
// control's child, so it goes with it.
class EventRelay : public QObject
{
public:
    EventRelay(QWidget* control, std::function<bool(QEvent*)> wanted, std::function<void()> handler)
        : QObject(control), m_wanted(std::move(wanted)), m_handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (m_wanted(event))
            m_handler();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<bool(QEvent*)> m_wanted;
    std::function<void()> m_handler;
};

} // namespace

void setTextColor(QLineEdit* box, int32_t color)
{
    QPalette palette = box->palette();
    palette.setColor(QPalette::Text, Rgb::toQColor(color));
    box->setPalette(palette);
}

int32_t textColor(const QLineEdit* box)
{
    return Rgb::fromQColor(box->palette().color(QPalette::Text));
}

void showValidity(QLineEdit* box, bool valid)
{
    setTextColor(box, valid ? ValidTextColor : InvalidTextColor);
}

void setSwatchColor(QLabel* swatch, int32_t color)
{
    QPalette palette = swatch->palette();
    palette.setColor(QPalette::Window, Rgb::toQColor(color));
    swatch->setAutoFillBackground(true);
    swatch->setPalette(palette);
}

int32_t swatchColor(const QLabel* swatch)
{
    return Rgb::fromQColor(swatch->palette().color(QPalette::Window));
}

void onClick(QWidget* control, std::function<void()> handler)
{
    new EventRelay(
        control,
        [](QEvent* event) {
            return event->type() == QEvent::MouseButtonRelease
                && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        },
        std::move(handler));
}

void onMouseMove(QWidget* control, std::function<void()> handler)
{
    control->setMouseTracking(true);
    new EventRelay(
        control,
        [](QEvent* event) { return event->type() == QEvent::MouseMove || event->type() == QEvent::Enter; },
        std::move(handler));
}

QString indexedName(const char* name, int index)
{
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

} // namespace OptionsWidgets
