#include "TypingLimit.h"

#include <QLineEdit>

#include <algorithm>

TypingLimit::TypingLimit(QLineEdit* box, int limit) : QValidator(box), m_box(box), m_limit(limit), m_allowed(limit)
{
    box->setValidator(this);
}

void TypingLimit::setText(const QString& text)
{
    m_allowed = std::max(m_limit, int(text.size()));
    m_box->setText(text);
}

QValidator::State TypingLimit::validate(QString& input, int&) const
{
    if (input.size() > m_allowed)
        return Invalid;
    // A text shortened below its length from code keeps its own allowance, and
    // never less than the limit.
    m_allowed = std::max(m_limit, int(input.size()));
    return Acceptable;
}
