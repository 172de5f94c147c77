#pragma once

// Window and control geometry is designed in twips; 15 twips make one logical pixel.
namespace Twips {

constexpr int PerPixel = 15;

// Twips to logical pixels, rounded to the nearest pixel.
constexpr int toPixels(double twips)
{
    const double pixels = twips / PerPixel;
    return static_cast<int>(pixels >= 0 ? pixels + 0.5 : pixels - 0.5);
}

// Logical pixels to twips.
constexpr int fromPixels(int pixels)
{
    return pixels * PerPixel;
}

} // namespace Twips
