#pragma once

#include <QString>

#include <cstdint>
#include <utility>

class QWidget;

// The colour chooser of a parameter dialog: the platform's colour dialog, modal,
// titled "ABC Color Selection", opening on the colour it last returned. Like the
// chooser control it stands for, it lives as long as its dialog and starts on black.
class ColorChooser
{
public:
    // The chooser's dialog carries the name its parameter dialog gives it.
    explicit ColorChooser(QString name) : m_name(std::move(name)) {}

    // Shows the chooser over the parent and returns the colour it holds when it
    // closes: the chosen one, or after a cancel the one it held before.
    int32_t ShowColor(QWidget* parent);

    // The colour the chooser holds, as a whole RGB number.
    int32_t Color() const { return m_Color; }

private:
    QString m_name;
    int32_t m_Color = 0;
};
