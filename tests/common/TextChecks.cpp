#include "TextChecks.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

QString BracketingTranslator::translate(const char*, const char* sourceText, const char*, int) const
{
    return QStringLiteral("[") + QString::fromUtf8(sourceText) + QStringLiteral("]");
}

bool isBracketed(const QString& text)
{
    return text.isEmpty() || (text.startsWith('[') && text.endsWith(']'));
}

QStringList shownTexts(QWidget& window, const std::function<QString(QWidget*)>& hintOf)
{
    QStringList texts = {window.windowTitle(), hintOf(&window)};
    for (auto* control : window.findChildren<QWidget*>())
        texts << control->toolTip() << hintOf(control);
    for (auto* button : window.findChildren<QAbstractButton*>())
        texts << button->text();
    for (auto* label : window.findChildren<QLabel*>())
        texts << label->text();
    for (auto* frame : window.findChildren<QGroupBox*>())
        texts << frame->title();
    for (auto* pane : window.findChildren<QPlainTextEdit*>())
        texts << pane->toPlainText();
    return texts;
}

QStringList unbracketedTexts(QWidget& window, const std::function<QString(QWidget*)>& hintOf)
{
    QStringList unbracketed;
    for (const QString& text : shownTexts(window, hintOf))
        if (!isBracketed(text))
            unbracketed << text;
    return unbracketed;
}
