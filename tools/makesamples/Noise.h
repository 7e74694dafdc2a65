// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace velmora::samples
{

/// A reproducible pseudo-random number in 0 to 1 for a place.
double hashNoise(int x, int y, uint32_t seed);

/// Smooth gradient noise, about -1 to 1.
double gradientNoise(double x, double y, uint32_t seed);

/// @p octaves of gradient noise, each twice as fine and half as strong; about -1 to 1.
double fractalNoise(double x, double y, int octaves, uint32_t seed);

/// Noise with sharp crests, 0 to 1: mountains, dunes, light on water.
double ridgedNoise(double x, double y, int octaves, uint32_t seed);

/// A small generator for scattering things; the same on every machine.
class Random
{
public:
    explicit Random(uint32_t seed) : m_state(seed * 2654435761U + 12345U) {}
    double unit(); ///< 0 to 1
    double range(double low, double high);
    double normal(); ///< Mean 0, deviation about 1.

private:
    uint32_t m_state;
};

double clamp01(double value);
double mix(double a, double b, double t);
/// 0 below @p low, 1 above @p high, smooth between; also for low > high.
double smoothStep(double low, double high, double value);

} // namespace velmora::samples
