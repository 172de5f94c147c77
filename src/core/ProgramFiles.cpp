#include "ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

// The installed files, relative to the folder of the installed executable.
constexpr auto SharedFolder = "../share/floatrix";
// The installed helper programs, relative to the same folder.
constexpr auto HelperFolder = "../libexec/floatrix";

// The finest drawing kept beside a picture.
constexpr int FinestFactor = 3;

} // namespace

QString ProgramFiles::folder(const QString& name)
{
    return folderFrom(QCoreApplication::applicationDirPath(), name);
}

QString ProgramFiles::path(const QString& name)
{
    return QDir(folder(name)).filePath(name);
}

QString ProgramFiles::folderFrom(const QString& programFolder, const QString& name)
{
    if (QFileInfo::exists(QDir(programFolder).filePath(name)))
        return programFolder;
    const QString shared = QDir::cleanPath(QDir(programFolder).filePath(QString::fromLatin1(SharedFolder)));
    return QFileInfo(shared).isDir() ? shared : programFolder;
}

QString ProgramFiles::helperProgram(const QString& name)
{
    return helperProgramFrom(QCoreApplication::applicationDirPath(), name);
}

QString ProgramFiles::helperProgramFrom(const QString& programFolder, const QString& name)
{
    const QString beside = QDir(programFolder).filePath(name);
    const QString installed =
        QDir::cleanPath(QDir(programFolder).filePath(QString::fromLatin1(HelperFolder) + '/' + name));
    return !QFileInfo::exists(beside) && QFileInfo::exists(installed) ? installed : beside;
}

ProgramFiles::SharperPicture ProgramFiles::sharperPicture(const QString& path, double pixelRatio)
{
    if (pixelRatio <= 1.01)
        return {};
    const QFileInfo plain(path);
    const auto drawn = [&plain](int factor) {
        const QString name = QStringLiteral("%1@%2x.png").arg(plain.completeBaseName()).arg(factor);
        const QString candidate = plain.dir().filePath(name);
        return QFileInfo::exists(candidate) ? SharperPicture{candidate, factor} : SharperPicture{};
    };
    const int wanted = std::clamp(int(std::ceil(pixelRatio - 0.01)), 2, FinestFactor);
    for (int factor = wanted; factor <= FinestFactor; ++factor)
        if (SharperPicture found = drawn(factor); !found.path.isEmpty())
            return found;
    for (int factor = wanted - 1; factor >= 2; --factor)
        if (SharperPicture found = drawn(factor); !found.path.isEmpty())
            return found;
    return {};
}
