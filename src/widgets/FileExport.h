#pragma once

#include <QCoreApplication>
#include <QString>

class CsvTable;
class QImage;
class QWidget;

// Saves what a window shows for use elsewhere: its picture as PNG, its data as
// comma-separated values. Each asks for the file in the platform's save dialog,
// writes only that file, and says in a message box when the writing fails; a
// cancelled dialog does nothing.
class FileExport
{
    Q_DECLARE_TR_FUNCTIONS(FileExport)

public:
    // The picture as a PNG file, suggested under the given name. True when written.
    static bool SavePicture(QWidget* parent, const QImage& picture, const QString& suggestedName);

    // The table as a CSV file, suggested under the given name. True when written.
    static bool SaveTable(QWidget* parent, const CsvTable& table, const QString& suggestedName);

    // The writing alone, without the dialog; false after the failure message.
    static bool WritePicture(const QImage& picture, const QString& path);
    static bool WriteTable(const CsvTable& table, const QString& path);

private:
    static QString askFile(QWidget* parent, const QString& title, const QString& suggestedName,
                           const QString& filter);
    static void reportFailure(const QString& path, const QString& reason);
};
