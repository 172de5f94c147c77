#include "RunTimeError.h"

RunTimeError::RunTimeError(int32_t number, const std::string& message)
    : std::runtime_error(message), m_number(number)
{
}

RunTimeError RunTimeError::overflow()
{
    return RunTimeError(Overflow, "Overflow");
}

RunTimeError RunTimeError::divisionByZero()
{
    return RunTimeError(DivisionByZero, "Division by zero");
}

RunTimeError RunTimeError::subscriptOutOfRange()
{
    return RunTimeError(SubscriptOutOfRange, "Subscript out of range");
}

RunTimeError RunTimeError::invalidProcedureCall()
{
    return RunTimeError(InvalidProcedureCall, "Invalid procedure call or argument");
}

RunTimeError RunTimeError::objectNotSet()
{
    return RunTimeError(ObjectNotSet, "Object variable or With block variable not set");
}
