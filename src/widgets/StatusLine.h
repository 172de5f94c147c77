#pragma once

#include <QString>

#include <functional>

// The main frame's status line as the windows see it. The application says where
// the texts go; a window only writes, so no window depends on the frame.
namespace StatusLine {

// Where the texts go; an empty target drops them.
using Target = std::function<void(const QString&)>;

// Called once by the application with the writer of its main frame's status line.
void setTarget(Target target);

} // namespace StatusLine

// Writes a hint into the status line, replacing what was there.
void SetStatusLine(const QString& text);
