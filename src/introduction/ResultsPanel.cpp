#include "ResultsPanel.h"

#include "canvas/Rgb.h"
#include "model/CollisionBalance.h"
#include "widgets/FormLayout.h"

#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace {

// One decimal, '.' as its point, and no "-0.0" for what rounds to nothing.
QString figure(double value)
{
    const double rounded = std::round(value * 10) / 10;
    return QString::number(rounded == 0 ? 0.0 : rounded, 'f', 1);
}

QString row(const QString& name, double before, double after)
{
    return QStringLiteral("<tr><td>%1</td><td align=right>%2</td><td align=right>%3</td><td align=right>%4</td></tr>")
        .arg(name, figure(before), figure(after), figure(after - before));
}

} // namespace

ResultsPanel::ResultsPanel(QWidget* parent) : QGroupBox(tr("Momentum and energy"), parent)
{
    setObjectName("fraResults");
    lblFigures = new QLabel(this);
    lblFigures->setObjectName("lblResults");
    lblFigures->setTextFormat(Qt::RichText);
    lblFigures->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblFigures->setWordWrap(true);
    lblFigures->setTextInteractionFlags(Qt::TextSelectableByMouse);
    FormLayout::place(lblFigures, 120, 300, Width - 240, Height - 1020);
    cmdSavePicture = new QPushButton(tr("Save picture..."), this);
    cmdSavePicture->setObjectName("cmdSavePicture");
    cmdSavePicture->setToolTip(tr("Save the picture as a PNG file (Ctrl+Shift+S)"));
    FormLayout::place(cmdSavePicture, 120, Height - 600, 1875, 375);
    cmdSaveData = new QPushButton(tr("Save data..."), this);
    cmdSaveData->setObjectName("cmdSaveData");
    cmdSaveData->setToolTip(tr("Save every step of the last run as a CSV file (Ctrl+S)"));
    FormLayout::place(cmdSaveData, 2100, Height - 600, 1875, 375);
    ClearFigures();
}

void ResultsPanel::ShowFigures(const CollisionBalance& balance, int page)
{
    QString html = QStringLiteral("<table cellspacing=0 cellpadding=2>"
                                  "<tr><th></th><th align=right>%1</th><th align=right>%2</th><th align=right>%3</th></tr>")
                       .arg(tr("before"), tr("after"), tr("change"));
    const QString names[3] = {tr("Body 1"), tr("Body 2"), tr("System")};
    for (int i = 1; i <= CollisionBalance::System; ++i) {
        const CollisionBalance::Figures& b = balance.Before[i];
        const CollisionBalance::Figures& a = balance.After[i];
        html += QStringLiteral("<tr><td colspan=4><b>%1</b></td></tr>").arg(names[i - 1]);
        html += row(page == 1 ? tr("px (kg·m/sec)") : tr("p (kg·m/sec)"), b.Px, a.Px);
        if (page == 1)
            html += row(tr("py (kg·m/sec)"), b.Py, a.Py);
        html += row(tr("E (J)"), b.Energy, a.Energy);
    }
    lblFigures->setText(html + QStringLiteral("</table>"));
}

void ResultsPanel::ClearFigures()
{
    lblFigures->setText(tr("Run the experiment: the momentum and kinetic energy of the bodies before and after "
                           "the collision appear here."));
}

QString ResultsPanel::FiguresText() const
{
    return lblFigures->text();
}

void ResultsPanel::ShowCounts(const std::array<std::array<int, 2>, 2>& counts, const std::array<int32_t, 2>& colours)
{
    setTitle(tr("Molecules in each half"));
    cmdSavePicture->hide();
    cmdSaveData->hide();
    QString html = QStringLiteral("<table cellspacing=0 cellpadding=3><tr><th></th><th align=right>%1</th>"
                                  "<th align=right>%2</th></tr>")
                       .arg(tr("left"), tr("right"));
    for (size_t group = 0; group < 2; ++group)
        html += QStringLiteral("<tr><td><font color=\"%1\">&#9632;</font> %2</td><td align=right>%3</td>"
                               "<td align=right>%4</td></tr>")
                    .arg(Rgb::toQColor(colours[group]).name(), tr("group %1").arg(group + 1))
                    .arg(counts[group][0])
                    .arg(counts[group][1]);
    lblFigures->setText(html + QStringLiteral("</table>"));
}

void ResultsPanel::ShowCollisionPanel()
{
    setTitle(tr("Momentum and energy"));
    cmdSavePicture->show();
    cmdSaveData->show();
}
