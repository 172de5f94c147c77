#include "IntroductionKeys.h"

#include "frmIntroduction.h"

#include "widgets/CanvasWidget.h"
#include "widgets/KeyboardAccess.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include <utility>

namespace IntroductionKeys {

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("frmIntroduction", source);
}

} // namespace

void install(const std::array<QPushButton*, 10>& buttons, QLineEdit* unit, QLineEdit* page, QScrollBar* delay,
    CanvasWidget* picture, QPlainTextEdit* explanation)
{
    using Form = frmIntroduction;
    QPushButton* goTo = buttons[Form::GoToButton];
    for (QLineEdit* box : {unit, page})
        QObject::connect(box, &QLineEdit::returnPressed, goTo, [goTo] {
            if (goTo->isEnabled())
                goTo->click();
        });

    const std::array<std::pair<int, QString>, 4> arrows = {{
        {Form::PreviousUnitButton, text(QT_TRANSLATE_NOOP("frmIntroduction", "Previous unit"))},
        {Form::PreviousPageButton, text(QT_TRANSLATE_NOOP("frmIntroduction", "Previous page"))},
        {Form::NextPageButton, text(QT_TRANSLATE_NOOP("frmIntroduction", "Next page"))},
        {Form::NextUnitButton, text(QT_TRANSLATE_NOOP("frmIntroduction", "Next unit"))},
    }};
    for (const auto& [index, name] : arrows)
        KeyboardAccess::name(buttons[size_t(index)], name);
    KeyboardAccess::name(unit, text(QT_TRANSLATE_NOOP("frmIntroduction", "Unit number")));
    KeyboardAccess::name(page, text(QT_TRANSLATE_NOOP("frmIntroduction", "Page number")));
    KeyboardAccess::name(explanation, text(QT_TRANSLATE_NOOP("frmIntroduction", "Explanation of the page")));
    KeyboardAccess::focusableBar(delay, text(QT_TRANSLATE_NOOP("frmIntroduction", "Delay of the simulation")));
    KeyboardAccess::describePicture(
        picture, text(QT_TRANSLATE_NOOP("frmIntroduction", "The page's picture, with its experiment when it has one")));

    // The delay bar lies between "Options" and "Exit".
    QWidget::setTabOrder(buttons[Form::OptionsButton], delay);
    QWidget::setTabOrder(delay, buttons[Form::ExitButton]);
}

} // namespace IntroductionKeys
