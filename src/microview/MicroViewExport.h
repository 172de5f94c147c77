#pragma once

#include <QObject>

class ForceStatistics;
class QPushButton;
class QWidget;

// Saving from the microscopic view: the window's picture as PNG ("Save picture...",
// Ctrl+Shift+S) and the wall forces of every tick since the last reset as CSV
// ("Save data...", Ctrl+S), each through the platform's save dialog. The two
// buttons sit in the free strips under the top calculation frames.
class MicroViewExport : public QObject
{
    Q_OBJECT

public:
    // Adds the buttons and keys to the view, whose statistics outlive this.
    MicroViewExport(QWidget* view, const ForceStatistics& statistics);

    void SavePicture();
    void SaveData();

private:
    QWidget* m_view;
    const ForceStatistics& m_statistics;
};
