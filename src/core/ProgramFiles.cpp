#include "ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

// The installed files, relative to the folder of the installed executable.
constexpr auto SharedFolder = "../share/floatrix";

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
