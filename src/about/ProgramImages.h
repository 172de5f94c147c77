#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

// The program's own pictures, kept with its other files (see ProgramFiles): the icon
// of its windows and the banner of the title panel. A missing file gives an empty
// picture.
class ProgramImages
{
public:
    // The program icon, the window icon of the main frame and the About box.
    static QIcon icon();

    // The banner at the left of the splash's title panel, 103 x 189 pixels (drawn
    // finer on a high-density screen).
    static QPixmap banner();

private:
    static QString programFile(const QString& name);
};
