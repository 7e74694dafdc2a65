// SPDX-License-Identifier: GPL-3.0-or-later
#include "Noise.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora::samples
{

namespace
{

uint32_t hash(int x, int y, uint32_t seed)
{
    uint32_t h = seed * 0x9E3779B1U;
    h ^= static_cast<uint32_t>(x) * 0x85EBCA6BU;
    h = (h ^ (h >> 13)) * 0xC2B2AE35U;
    h ^= static_cast<uint32_t>(y) * 0x27D4EB2FU;
    h = (h ^ (h >> 15)) * 0x165667B1U;
    return h ^ (h >> 16);
}

double gradient(int cellX, int cellY, uint32_t seed, double dx, double dy)
{
    static const std::array<std::array<double, 2>, 16> directions = [] {
        std::array<std::array<double, 2>, 16> result{};
        for (std::size_t i = 0; i < result.size(); ++i) {
            const double angle = (static_cast<double>(i) + 0.5) * M_PI / 8;
            result[i] = {std::cos(angle), std::sin(angle)};
        }
        return result;
    }();
    const auto &direction = directions[hash(cellX, cellY, seed) & 15U];
    return direction[0] * dx + direction[1] * dy;
}

double fade(double t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

} // namespace

double hashNoise(int x, int y, uint32_t seed)
{
    return hash(x, y, seed) / 4294967295.0;
}

double gradientNoise(double x, double y, uint32_t seed)
{
    const int cellX = static_cast<int>(std::floor(x));
    const int cellY = static_cast<int>(std::floor(y));
    const double dx = x - cellX;
    const double dy = y - cellY;
    const double u = fade(dx);
    const double top =
        mix(gradient(cellX, cellY, seed, dx, dy), gradient(cellX + 1, cellY, seed, dx - 1, dy), u);
    const double bottom = mix(gradient(cellX, cellY + 1, seed, dx, dy - 1),
                              gradient(cellX + 1, cellY + 1, seed, dx - 1, dy - 1), u);
    return 1.5 * mix(top, bottom, fade(dy));
}

double fractalNoise(double x, double y, int octaves, uint32_t seed)
{
    double sum = 0;
    double strength = 0.5;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * gradientNoise(x, y, seed + static_cast<uint32_t>(i) * 101);
        // Turned a little each time, so that the cells of the octaves do not line up.
        const double turnedX = 1.6 * x + 1.2 * y;
        y = 1.6 * y - 1.2 * x;
        x = turnedX;
        strength *= 0.5;
    }
    return sum;
}

double ridgedNoise(double x, double y, int octaves, uint32_t seed)
{
    double sum = 0;
    double strength = 0.5;
    double weight = 1;
    for (int i = 0; i < octaves; ++i) {
        double crest = 1 - std::abs(gradientNoise(x, y, seed + static_cast<uint32_t>(i) * 101));
        crest *= crest;
        sum += strength * crest * weight;
        weight = clamp01(crest * 1.6);
        const double turnedX = 1.6 * x + 1.2 * y;
        y = 1.6 * y - 1.2 * x;
        x = turnedX;
        strength *= 0.5;
    }
    return sum;
}

double Random::unit()
{
    m_state ^= m_state << 13;
    m_state ^= m_state >> 17;
    m_state ^= m_state << 5;
    return m_state / 4294967295.0;
}

double Random::range(double low, double high)
{
    return low + (high - low) * unit();
}

double Random::normal()
{
    return (unit() + unit() + unit() + unit() - 2) * 1.73;
}

double clamp01(double value)
{
    return std::clamp(value, 0.0, 1.0);
}

double mix(double a, double b, double t)
{
    return a + (b - a) * t;
}

double smoothStep(double low, double high, double value)
{
    const double t = clamp01((value - low) / (high - low));
    return t * t * (3 - 2 * t);
}

} // namespace velmora::samples
