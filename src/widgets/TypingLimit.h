#pragma once

#include <QValidator>

class QLineEdit;

// A limit on the characters a learner may type into an entry box, which unlike
// QLineEdit's maxLength leaves a longer text written from code whole: a stored
// value such as "0.25" or "-0.5" is shown in full and kept when nothing is typed.
// Typing may not make the text longer than the limit, nor longer than a text
// written from code; deleting is always allowed.
class TypingLimit : public QValidator
{
    Q_OBJECT

public:
    // Limits typing into box to limit characters; box owns the validator.
    TypingLimit(QLineEdit* box, int limit);

    // Writes a text from code, whatever its length.
    void setText(const QString& text);

    // Refuses a typed text beyond the allowance; any other text is acceptable (the
    // window checks its value itself).
    State validate(QString& input, int& pos) const override;

private:
    QLineEdit* m_box;
    int m_limit;
    // The longest text a change may leave: the limit, or the length of the text
    // written from code while the learner has only shortened it.
    mutable int m_allowed;
};
