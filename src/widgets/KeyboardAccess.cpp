#include "KeyboardAccess.h"

#include "FocusMark.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>

namespace KeyboardAccess {

namespace {

bool isFree(QChar letter, const QString& used)
{
    return letter.isLetter() && !used.contains(letter.toLower());
}

QString markAt(const QString& text, qsizetype at, QString& used)
{
    used += text.at(at).toLower();
    QString marked = text;
    marked.insert(at, QLatin1Char('&'));
    return marked;
}

// Marks a mnemonic in each action's text, unique among the actions given.
void markActions(const QList<QAction*>& actions)
{
    QString used;
    for (QAction* action : actions)
        if (action->text().contains(QLatin1Char('&')))
            used += action->text().at(action->text().indexOf(QLatin1Char('&')) + 1).toLower();
    for (QAction* action : actions)
        if (!action->isSeparator())
            action->setText(withMnemonic(action->text(), used));
}

} // namespace

void name(QWidget* control, const QString& name)
{
    control->setAccessibleName(name);
}

void focusableBar(QScrollBar* bar, const QString& name)
{
    bar->setFocusPolicy(Qt::StrongFocus);
    // Left lowers the value and Right raises it, as the thumb moves.
    bar->setInvertedControls(false);
    bar->setAccessibleName(name);
    // The style draws no focus mark on a scroll bar: a frame round the bar shows
    // which one the arrow keys move.
    new FocusMark(bar);
}

void describePicture(QWidget* picture, const QString& description)
{
    picture->setAccessibleDescription(description);
}

QString withMnemonic(const QString& text, QString& used)
{
    if (text.contains(QLatin1Char('&')))
        return text;
    for (qsizetype i = 0; i < text.size(); ++i)
        if ((i == 0 || text.at(i - 1).isSpace()) && isFree(text.at(i), used))
            return markAt(text, i, used);
    for (qsizetype i = 0; i < text.size(); ++i)
        if (isFree(text.at(i), used))
            return markAt(text, i, used);
    return text;
}

void addMnemonics(QMenuBar* bar)
{
    markActions(bar->actions());
    for (QAction* item : bar->actions())
        if (item->menu())
            markActions(item->menu()->actions());
}

} // namespace KeyboardAccess
