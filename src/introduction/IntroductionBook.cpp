#include "IntroductionBook.h"

#include "model/CollisionSetup.h"
#include "model/FluidParameters.h"

#include <QStringList>

IntroductionBook::IntroductionBook()
{
    // Odd units have 3 pages and even units 4, except the two that carry the
    // experiments.
    for (int16_t unit = 1; unit <= UnitCount; ++unit)
        m_PagesInUnit[unit] = int16_t((unit % 2) * 3 + ((unit - 1) % 2) * 4);
    m_PagesInUnit[LiquidUnit] = 8;
    m_PagesInUnit[CollisionUnit] = 3;
    for (int16_t unit = 1; unit <= UnitCount; ++unit)
        for (int16_t page = 1; page <= m_PagesInUnit[unit]; ++page)
            m_PageTitle[unit][page] = tr("Unit:%1 , Page:%2").arg(unit).arg(page);
}

int16_t IntroductionBook::PagesInUnit(int16_t unit) const
{
    return unit >= 1 && unit <= UnitCount ? m_PagesInUnit[unit] : int16_t(0);
}

QString IntroductionBook::PageTitle(int16_t unit, int16_t page) const
{
    if (unit < 1 || unit > UnitCount || page < 1 || page > MaxPages)
        return QString();
    return m_PageTitle[unit][page];
}

QString IntroductionBook::PageText(int16_t unit, int16_t page) const
{
    if (unit == CollisionUnit && page == CollisionSetup::AboveView)
        return TextA();
    if (unit == CollisionUnit && page == CollisionSetup::SideView)
        return TextB();
    return PageTitle(unit, page);
}

QString IntroductionBook::FrameCaption(int16_t unit, int16_t page)
{
    if (unit == CollisionUnit && page == CollisionSetup::AboveView)
        return tr("Collision Forms (view from above)");
    if (unit == CollisionUnit && page == CollisionSetup::SideView)
        return tr("Experiment (Side view) / Graphs");
    return QString();
}

bool IntroductionBook::IsCollisionPage(int16_t unit, int16_t page)
{
    return unit == CollisionUnit && (page == CollisionSetup::AboveView || page == CollisionSetup::SideView);
}

bool IntroductionBook::IsLiquidPage(int16_t unit, int16_t page)
{
    return unit == LiquidUnit
        && (page == FluidParameters::FirstLiquidPage || page == FluidParameters::SecondLiquidPage);
}

QString IntroductionBook::TextA()
{
    const QString a1 = tr(
        "Collisions are observed frequently in nature in every scale of observation. A collision can only "
        "macroscopically be described as a contact of bodies. In reality, repulsive forces cause a "
        "decrease/increase in veloctities of colliding bodies  and change their trajectories.");
    const QString a2 = tr(
        "In every collision the momentum is conserved, since this phenomenon is governed by internal forces. "
        "If, additionaly, kinetic energy is also conserved, then we have an elastic collision. If, after "
        "colliding, bodies stick together then we refer to a plastic collision. In this case kinetic energy "
        "is NOT conserved.");
    const QString a3 = tr(
        "Of course there is the semi-elastic (or semi-plastic) collision, during which the bodies do not stick "
        "together, but the system's kinetic energy is not conserved.");
    return a1 + QStringLiteral("\r\n") + a2 + a3;
}

QString IntroductionBook::TextB()
{
    const QStringList lines = {
        tr("In what follows we will experiment with the elastic collision, during which both the "
           "momentum and the kinetic energy of the system are conserved. By using these two "
           "principles we may derive appropriate equations in order to calculate the velocities "
           "after the collision. Specifically, these equations are:"),
        tr("V1=(m2υ2+υ1(m1-m2))/mtot and"),
        tr("V2=(m1υ1+υ2(m2-m1))/mtot"),
        tr("where mtot=m1+m2"),
    };
    return lines.join(QStringLiteral("\r\n"));
}
