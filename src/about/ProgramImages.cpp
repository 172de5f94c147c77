#include "ProgramImages.h"

#include "core/ProgramFiles.h"

#include <QGuiApplication>

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
    const QString path = programFile(QStringLiteral("floatrix_banner.png"));
    const QPixmap plain(path);
    // On a high-density screen the finer drawing shows in the same place, sharp.
    const ProgramFiles::SharperPicture sharper = ProgramFiles::sharperPicture(path, qGuiApp->devicePixelRatio());
    QPixmap finer(sharper.path);
    if (plain.isNull() || finer.isNull() || finer.size() != plain.size() * sharper.factor)
        return plain;
    finer.setDevicePixelRatio(sharper.factor);
    return finer;
}
