#include "ColorChooser.h"

#include "canvas/Rgb.h"

#include <QColorDialog>
#include <QCoreApplication>

int32_t ColorChooser::ShowColor(QWidget* parent)
{
    QColorDialog dialog(parent);
    dialog.setObjectName(m_name);
    dialog.setWindowTitle(QCoreApplication::translate("ColorChooser", "ABC Color Selection"));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    dialog.setCurrentColor(Rgb::toQColor(m_Color));
    if (dialog.exec() == QDialog::Accepted)
        m_Color = Rgb::fromQColor(dialog.selectedColor());
    return m_Color;
}
