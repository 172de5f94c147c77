#include "ProgramImages.h"

#include "core/ProgramFiles.h"

QString ProgramImages::programFile(const QString& name)
{
    return ProgramFiles::path(name);
}

QIcon ProgramImages::icon()
{
    return QIcon(programFile(QStringLiteral("floatrix.png")));
}

QPixmap ProgramImages::banner()
{
    return QPixmap(programFile(QStringLiteral("floatrix_banner.png")));
}
