#include "HandlerGuard.h"

#include "MsgBox.h"

#include "core/RunTimeError.h"

#include <QCoreApplication>
#include <QString>

#include <exception>

namespace {

void report(const std::function<void()>& onFault, const QString& message)
{
    if (onFault)
        onFault();
    MsgBox(message, MsgBoxStyle::Critical, QCoreApplication::translate("HandlerGuard", "Floatrix"));
}

} // namespace

bool RunGuarded(const std::function<void()>& handler, const std::function<void()>& onFault)
{
    try {
        handler();
        return true;
    } catch (const RunTimeError& error) {
        // The run-time error's message is marked for translation where it is made.
        report(onFault, QCoreApplication::translate("RunTimeError", error.what()));
    } catch (const std::exception& error) {
        report(onFault, QString::fromStdString(error.what()));
    }
    return false;
}
