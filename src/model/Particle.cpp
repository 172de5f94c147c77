#include "Particle.h"

#include "canvas/Canvas.h"
#include "core/Numeric.h"
#include "core/RunTimeError.h"
#include "core/SharedRandom.h"

#include <cmath>
#include <utility>

namespace {

// A root of a negative number is an invalid operation, as everywhere in the program.
double checkedRoot(double value)
{
    if (value < 0)
        throw RunTimeError::invalidProcedureCall();
    return std::sqrt(value);
}

float signOfRandomHalf()
{
    return Numeric::sign(SharedRandom::next() - 0.5);
}

} // namespace

Particle::Particle()
{
    SharedRandom::reseedFromClock();
}

Canvas& Particle::canvas() const
{
    if (m_Canvas == nullptr)
        throw RunTimeError::objectNotSet();
    return *m_Canvas;
}

void Particle::setWallCoord(float value)
{
    m_WallCoord = Numeric::toInt16(value);
}

void Particle::setXcoord(float value)
{
    m_Xcoord = value;
    if (m_Xo != 0)
        CalculateVx();
}

void Particle::setYcoord(float value)
{
    m_Ycoord = value;
    if (m_Yo != 0)
        CalculateVy();
}

void Particle::EraseYourself(bool LineFlag)
{
    DrawYourself(LineFlag);
    if (!m_LeaveTrail)
        return;
    Canvas& surface = canvas();
    surface.setDrawMode(Canvas::CopyPen);
    surface.PSet(m_Xcoord, m_Ycoord, m_color);
    surface.setDrawMode(Canvas::XorPen);
}

void Particle::DrawYourself(bool LineFlag)
{
    Canvas& surface = canvas();
    if (LineFlag)
        surface.Line(m_Xcoord, m_Ycoord, m_XCenter, m_YCenter, m_DrawColor);
    surface.setFillStyle(m_FillStyle);
    surface.setFillColor(m_DrawColor);
    surface.Circle(m_Xcoord, m_Ycoord, m_radius, m_DrawColor);
}

void Particle::setVx(float value)
{
    m_Vx = value;
    m_DirectionX = Numeric::sign(value);
}

void Particle::setVy(float value)
{
    m_Vy = value;
    m_DirectionY = Numeric::sign(value);
}

void Particle::setColor(int32_t value)
{
    m_color = value;
    m_DrawColor = value ^ canvas().BackColor();
}

void Particle::setMass(float value)
{
    m_mass = value;
    CalculateOmegas();
}

void Particle::setXo(float value)
{
    m_Xo = value;
    CalculateVxo();
}

void Particle::setYo(float value)
{
    m_Yo = value;
    CalculateVyo();
}

void Particle::setKapaX(float value)
{
    m_KapaX = value;
    if (m_Xo != 0)
        CalculateVx();
}

void Particle::setKapaY(float value)
{
    m_KapaY = value;
    if (m_Yo != 0)
        CalculateVy();
}

void Particle::CalculateVxo()
{
    m_Vxo = m_OmegaX != 0 ? m_Xo * m_OmegaX : m_Vxmax;
}

void Particle::CalculateVyo()
{
    m_Vyo = m_OmegaY != 0 ? m_Yo * m_OmegaY : m_Vymax;
}

void Particle::setVxmax(float value)
{
    m_Vxmax = value;
    if (m_KapaX == 0)
        RegulateVx(false);
}

void Particle::setVymax(float value)
{
    m_Vymax = value;
    if (m_KapaY == 0)
        RegulateVy(false);
}

void Particle::ExchangeWith(Particle& other)
{
    std::swap(m_KapaX, other.m_KapaX);
    std::swap(m_KapaY, other.m_KapaY);
    std::swap(m_Xo, other.m_Xo);
    std::swap(m_Yo, other.m_Yo);
    std::swap(m_Vxmax, other.m_Vxmax);
    std::swap(m_Vymax, other.m_Vymax);
    std::swap(m_Vxo, other.m_Vxo);
    std::swap(m_Vyo, other.m_Vyo);
    std::swap(m_radius, other.m_radius);
    std::swap(m_mass, other.m_mass);
    std::swap(m_OriginalXCenter, other.m_OriginalXCenter);
    std::swap(m_OriginalYCenter, other.m_OriginalYCenter);
    std::swap(m_XCenter, other.m_XCenter);
    std::swap(m_YCenter, other.m_YCenter);
    std::swap(m_dXCenter, other.m_dXCenter);
    std::swap(m_dYCenter, other.m_dYCenter);
    std::swap(m_Vx, other.m_Vx);
    std::swap(m_Vy, other.m_Vy);
    std::swap(m_FluxProbability, other.m_FluxProbability);
    std::swap(m_CollisionInProgress, other.m_CollisionInProgress);
    std::swap(m_LatticeKapaX, other.m_LatticeKapaX);
    std::swap(m_LatticeKapaY, other.m_LatticeKapaY);
    std::swap(m_Row, other.m_Row);
    std::swap(m_Column, other.m_Column);
}

void Particle::CalculateOmegas()
{
    if (m_mass == 0)
        return;
    m_OmegaX = static_cast<float>(checkedRoot(m_KapaX / m_mass));
    CalculateXo();
    CalculateVxo();
    m_OmegaY = static_cast<float>(checkedRoot(m_KapaY / m_mass));
    CalculateYo();
    CalculateVyo();
}

void Particle::CalculateXo()
{
    m_Xo = m_OmegaX == 0 ? 2 * canvas().ScaleWidth() : m_Vxo / m_OmegaX;
}

void Particle::CalculateYo()
{
    m_Yo = m_OmegaY == 0 ? 2 * canvas().ScaleHeight() : m_Vyo / m_OmegaY;
}

// A speed for the current displacement in a random direction. A bound molecule
// exactly at its amplitude has no speed left; it keeps 0 rather than drawing
// directions for ever.
void Particle::CalculateVy()
{
    if (m_OmegaY != 0) {
        const double root = std::sqrt(std::fabs(m_Yo - (m_Ycoord - m_YCenter)));
        float s = 0;
        do {
            s = signOfRandomHalf();
        } while (s == 0 && root != 0);
        m_Vy = Numeric::toFloat(s * m_OmegaY * root);
        return;
    }
    const float r1 = SharedRandom::next();
    const float s = signOfRandomHalf();
    m_Vy = s * r1 * m_Vyo;
}

void Particle::CalculateVx()
{
    if (m_OmegaX != 0) {
        const double root = std::sqrt(std::fabs(m_Xo - (m_Xcoord - m_XCenter)));
        float s = 0;
        do {
            s = signOfRandomHalf();
        } while (s == 0 && root != 0);
        m_Vx = Numeric::toFloat(s * m_OmegaX * root);
        return;
    }
    const float r1 = SharedRandom::next();
    const float s = signOfRandomHalf();
    m_Vx = s * r1 * m_Vxo;
}

float Particle::RandomFactor(bool Perturbation)
{
    if (!Perturbation)
        return 1;
    const float s = signOfRandomHalf();
    const float r2 = SharedRandom::next();
    return 1 + s * r2 / 5;
}

void Particle::RegulateVy(bool Perturbation)
{
    const float a = std::fabs(m_Vy);
    if (static_cast<float>(m_Vymax * 1.2) < a)
        m_Vy = Numeric::toFloat(m_Vy * 0.9);
    else if (static_cast<float>(m_Vymax * 0.8) > a)
        m_Vy = Numeric::toFloat(m_Vy * 1.1);
    else
        m_Vy = Numeric::sign(m_Vy) * RandomFactor(Perturbation) * m_Vymax;
}

void Particle::RegulateVx(bool Perturbation)
{
    const float a = std::fabs(m_Vx);
    if (static_cast<float>(m_Vxmax * 1.2) < a)
        m_Vx = Numeric::toFloat(m_Vx * 0.9);
    else if (static_cast<float>(m_Vxmax * 0.8) > a)
        m_Vx = Numeric::toFloat(m_Vx * 1.1);
    else
        m_Vx = Numeric::sign(m_Vx) * RandomFactor(Perturbation) * m_Vxmax;
}

float Particle::RandomPerturbation(bool Perturbation)
{
    if (!Perturbation)
        return 0;
    const float r1 = SharedRandom::next();
    const float s = signOfRandomHalf();
    return s * r1;
}

void Particle::Move(float dt, float Fx, float Fy, bool Perturbation, int16_t Temperature,
                    int16_t EquilibriumTemperature, float& ImpulseX, float& ImpulseY)
{
    MoveX(dt, Fx, Perturbation, ImpulseX);
    MoveY(dt, Fy, Perturbation, Temperature, EquilibriumTemperature, ImpulseY);
}

void Particle::MoveX(float dt, float Fx, bool Perturbation, float& ImpulseX)
{
    // The site moves one unit towards the balance of the external force and the
    // lattice's pull back to where it was laid out.
    if (Fx != 0) {
        const float f = Fx - (m_XCenter - m_OriginalXCenter) * m_LatticeKapaX;
        m_XCenter = m_XCenter + Numeric::sign(f);
    }
    m_Xcoord = m_Xcoord + m_Vx * dt;

    if (m_KapaX != 0) {
        const float d = m_Xcoord - m_XCenter;
        if ((d >= m_Xo && m_DirectionX > 0) || (d <= -m_Xo && m_DirectionX < 0)) {
            m_DirectionX = -m_DirectionX;
            m_Vxo = m_Vxmax * RandomFactor(Perturbation);
            CalculateXo();
            CalculateVx();
        }
    }

    // A bound molecule's speed follows from the energy of its oscillation.
    const float p = RandomPerturbation(Perturbation);
    if (m_OmegaX != 0) {
        const double displacement = std::fabs(double(m_Xcoord) - m_XCenter);
        const double root = std::sqrt(std::fabs(double(m_Xo) * m_Xo - displacement * displacement));
        m_Vx = Numeric::toFloat((m_OmegaX * root + p) * m_DirectionX);
    } else {
        m_Vx = m_Vx + p;
    }

    MeetSidesX(Perturbation, ImpulseX);
}

void Particle::MeetSidesX(bool Perturbation, float& ImpulseX)
{
    const float r = m_radius;
    const float WC = m_WallCoord;
    const Canvas& surface = canvas();
    const float right = surface.ScaleLeft() + surface.ScaleWidth();
    switch (m_Wall) {
    case 0:
        if (m_Xcoord - r < WC && m_Vx < 0) {
            ImpulseX = 2 * m_Vx;
            ReboundX(Perturbation);
        } else if (m_Xcoord - r > right && m_Vx > 0) {
            ReenterX(Perturbation, 0, surface.ScaleHeight());
        }
        break;
    case 1:
        if (m_Xcoord + r < surface.ScaleLeft() && m_Vx < 0) {
            ReenterX(Perturbation, 0, surface.ScaleHeight());
        } else if (m_Xcoord + r > WC && m_Vx > 0) {
            ImpulseX = 2 * m_Vx;
            ReboundX(Perturbation);
        }
        break;
    case 2:
        if ((m_Xcoord + r < surface.ScaleLeft() && m_Vx < 0) || (m_Xcoord - r > right && m_Vx > 0))
            ReenterX(Perturbation, WC, surface.ScaleHeight() - WC);
        break;
    default:
        break;
    }
}

void Particle::MoveY(float dt, float Fy, bool Perturbation, int16_t Temperature,
                     int16_t EquilibriumTemperature, float& ImpulseY)
{
    // The external force in y grows with the row: the lower rows carry the ones above.
    if (Fy != 0) {
        const float f = m_Row * Fy - (m_YCenter - m_OriginalYCenter) * m_LatticeKapaY;
        m_YCenter = m_YCenter + Numeric::sign(f);
    }
    m_Ycoord = m_Ycoord + m_Vy * dt;

    if (m_KapaY != 0) {
        const float d = m_Ycoord - m_YCenter;
        if ((d >= m_Yo && m_DirectionY > 0) || (d <= -m_Yo && m_DirectionY < 0)) {
            m_DirectionY = -m_DirectionY;
            m_Vyo = m_Vymax * RandomFactor(Perturbation);
            CalculateYo();
            CalculateVy();
        }
    }

    const float p = RandomPerturbation(Perturbation);
    if (m_OmegaY != 0) {
        const double displacement = std::fabs(double(m_Ycoord) - m_YCenter);
        const double root = std::sqrt(std::fabs(double(m_Yo) * m_Yo - displacement * displacement));
        m_Vy = Numeric::toFloat((m_OmegaY * root + p) * m_DirectionY);
    } else {
        m_Vy = m_Vy + p;
    }

    MeetSidesY(Perturbation, Temperature, EquilibriumTemperature, ImpulseY);
}

void Particle::MeetSidesY(bool Perturbation, int16_t Temperature, int16_t EquilibriumTemperature,
                          float& ImpulseY)
{
    const float r = m_radius;
    const float WC = m_WallCoord;
    const Canvas& surface = canvas();
    const float bottom = surface.ScaleTop() + surface.ScaleHeight();
    if (m_Wall == 2) {
        // The top wall gives molecules back cooled to the equilibrium temperature;
        // the open far side lets them in again at the sample's temperature.
        const auto ratio = [&] {
            return static_cast<float>(Numeric::divide(Temperature, EquilibriumTemperature));
        };
        if (m_Ycoord - r < WC && m_Vy < 0) {
            ImpulseY = 2 * m_Vy;
            m_Vy = Numeric::toFloat(Numeric::divide(-m_Vy, ratio()));
            m_DirectionY = -m_DirectionY;
            if (m_KapaY == 0)
                RegulateVy(Perturbation);
        } else if (m_Ycoord - r > bottom && m_Vy > 0) {
            m_Vy = -ratio() * m_Vy;
            m_Xcoord = SharedRandom::next() * surface.ScaleWidth();
            m_DirectionY = -m_DirectionY;
            if (m_KapaY == 0)
                RegulateVy(Perturbation);
        }
        return;
    }
    if ((m_Ycoord + r < surface.ScaleTop() && m_Vy < 0) || (m_Ycoord - r > bottom && m_Vy > 0)) {
        if (m_Wall == 0)
            ReenterY(Perturbation, WC, surface.ScaleWidth() - WC);
        else
            ReenterY(Perturbation, 0, WC);
    }
}

// A molecule that left through an open side is reflected in place and brought back
// at a random place along that side.
void Particle::ReenterX(bool Perturbation, float yFrom, float yExtent)
{
    m_Ycoord = SharedRandom::next() * yExtent + yFrom;
    ReboundX(Perturbation);
}

void Particle::ReboundX(bool Perturbation)
{
    m_Vx = -m_Vx;
    m_DirectionX = -m_DirectionX;
    if (m_KapaX == 0)
        RegulateVx(Perturbation);
}

void Particle::ReenterY(bool Perturbation, float xFrom, float xExtent)
{
    m_Vy = -m_Vy;
    m_Xcoord = SharedRandom::next() * xExtent + xFrom;
    m_DirectionY = -m_DirectionY;
    if (m_KapaY == 0)
        RegulateVy(Perturbation);
}
