#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

// The program's run-time error: an arithmetic fault (16-bit overflow, a division by
// zero, an index out of range) or a missing object, that ends the handler in which
// it happened. The model throws it and never catches it; the windows' handler guard
// shows it.
class RunTimeError : public std::runtime_error
{
public:
    // The error numbers a learner may see in the message box.
    enum Number : int32_t {
        InvalidProcedureCall = 5,
        Overflow = 6,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        ObjectNotSet = 91,
    };

    RunTimeError(int32_t number, const std::string& message);

    // The standard error for a number above, with its usual message.
    static RunTimeError overflow();
    static RunTimeError divisionByZero();
    static RunTimeError subscriptOutOfRange();
    static RunTimeError invalidProcedureCall();
    static RunTimeError objectNotSet();

    // The error number.
    int32_t number() const { return m_number; }

private:
    int32_t m_number;
};
