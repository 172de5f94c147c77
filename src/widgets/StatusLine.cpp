#include "StatusLine.h"

namespace {

StatusLine::Target& target()
{
    static StatusLine::Target registered;
    return registered;
}

} // namespace

void StatusLine::setTarget(Target writer)
{
    target() = std::move(writer);
}

void SetStatusLine(const QString& text)
{
    if (target())
        target()(text);
}
