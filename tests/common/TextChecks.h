#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <functional>

class QWidget;

// A catalogue that translates every text it is asked for by bracketing it, so that
// a text shown unbracketed never went through the translation.
class BracketingTranslator : public QTranslator
{
public:
    QString translate(
        const char* context, const char* sourceText, const char* disambiguation = nullptr, int n = -1) const override;
    bool isEmpty() const override { return false; }
};

// Whether a text came through the bracketing catalogue (an empty text has nothing
// to translate).
bool isBracketed(const QString& text);

// Every text a window shows: its caption and hint, and the captions, titles, texts,
// tool tips and hints of its controls. hintOf returns the status-line hint a control
// writes when the mouse comes over it. Typed numbers are the learner's, not the
// program's.
QStringList shownTexts(QWidget& window, const std::function<QString(QWidget*)>& hintOf);

// The texts a window shows that did not come through the bracketing catalogue: its
// caption and hint, and the captions, titles, texts, tool tips and hints of its
// controls. hintOf returns the status-line hint a control writes when the mouse
// comes over it. Typed numbers are the learner's, not the program's.
QStringList unbracketedTexts(QWidget& window, const std::function<QString(QWidget*)>& hintOf);
