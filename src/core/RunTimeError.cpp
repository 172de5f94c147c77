#include "RunTimeError.h"

#include <QtGlobal>

RunTimeError::RunTimeError(int32_t number, const std::string& message)
    : std::runtime_error(message), m_number(number)
{
}

RunTimeError RunTimeError::overflow()
{
    return RunTimeError(Overflow, QT_TRANSLATE_NOOP("RunTimeError", "Overflow"));
}

RunTimeError RunTimeError::divisionByZero()
{
    return RunTimeError(DivisionByZero, QT_TRANSLATE_NOOP("RunTimeError", "Division by zero"));
}

RunTimeError RunTimeError::subscriptOutOfRange()
{
    return RunTimeError(SubscriptOutOfRange, QT_TRANSLATE_NOOP("RunTimeError", "Subscript out of range"));
}

RunTimeError RunTimeError::invalidProcedureCall()
{
    return RunTimeError(InvalidProcedureCall, QT_TRANSLATE_NOOP("RunTimeError", "Invalid procedure call or argument"));
}

RunTimeError RunTimeError::objectNotSet()
{
    return RunTimeError(ObjectNotSet, QT_TRANSLATE_NOOP("RunTimeError", "Object variable or With block variable not set"));
}
