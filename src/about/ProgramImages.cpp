#include "ProgramImages.h"

#include <QCoreApplication>
#include <QDir>

QString ProgramImages::programFile(const QString& name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

QIcon ProgramImages::icon()
{
    return QIcon(programFile(QStringLiteral("floatrix.png")));
}

QPixmap ProgramImages::banner()
{
    return QPixmap(programFile(QStringLiteral("floatrix_banner.png")));
}
