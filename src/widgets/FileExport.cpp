#include "FileExport.h"

#include "MsgBox.h"

#include "core/CsvTable.h"

#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QImageWriter>

namespace {

constexpr int StopStyle = 16;

} // namespace

QString FileExport::askFile(QWidget* parent, const QString& title, const QString& suggestedName,
                            const QString& filter)
{
    return QFileDialog::getSaveFileName(parent, title, QDir::current().filePath(suggestedName), filter);
}

void FileExport::reportFailure(const QString& path, const QString& reason)
{
    MsgBox(tr("The file \"%1\" could not be written: %2").arg(QDir::toNativeSeparators(path), reason), StopStyle,
           QStringLiteral("Floatrix"));
}

bool FileExport::SavePicture(QWidget* parent, const QImage& picture, const QString& suggestedName)
{
    const QString path = askFile(parent, tr("Save picture"), suggestedName, tr("PNG pictures (*.png)"));
    return !path.isEmpty() && WritePicture(picture, path);
}

bool FileExport::SaveTable(QWidget* parent, const CsvTable& table, const QString& suggestedName)
{
    const QString path = askFile(parent, tr("Save data"), suggestedName, tr("Comma-separated values (*.csv)"));
    return !path.isEmpty() && WriteTable(table, path);
}

bool FileExport::WritePicture(const QImage& picture, const QString& path)
{
    QImageWriter writer(path, "png");
    if (writer.write(picture))
        return true;
    reportFailure(path, writer.errorString());
    return false;
}

bool FileExport::WriteTable(const CsvTable& table, const QString& path)
{
    std::string error;
    if (table.Write(QFile::encodeName(path).toStdString(), error))
        return true;
    reportFailure(path, QString::fromLocal8Bit(error.c_str()));
    return false;
}
