// SPDX-License-Identifier: GPL-3.0-or-later
#include "Canvas.h"
#include "Scenes.h"

#include <cmath>

namespace velmora::samples
{

namespace
{

struct Vector {
    double x;
    double y; ///< Up.
    double z; ///< Away from the viewer.
};

Vector normalized(const Vector &v)
{
    const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    return {v.x / length, v.y / length, v.z / length};
}

/// One train of dunes: a long windward slope, a sharp crest and a short lee.
double duneTrain(double x, double z, double turn, double width, uint32_t seed)
{
    const double bend = 0.55 * gradientNoise(x / width * 0.35, z / width * 0.35, seed) +
                        0.18 * gradientNoise(x / width * 0.9, z / width * 0.9, seed + 1);
    const double along = (x * std::cos(turn) + z * std::sin(turn)) / width + bend;
    const double phase = along - std::floor(along);
    constexpr double crest = 0.68;
    const double profile = phase < crest
                               ? smoothStep(0, 1, phase / crest * 0.9) / smoothStep(0, 1, 0.9)
                               : 1 - smoothStep(0, 1, (phase - crest) / (1 - crest));
    const double cell = std::floor(along);
    const double size =
        0.75 + 0.4 * gradientNoise(cell * 3.3,
                                   (z * std::cos(turn) - x * std::sin(turn)) / width * 0.4,
                                   seed + 2);
    return profile * size;
}

double duneHeight(double x, double z)
{
    return 2.3 * duneTrain(x, z, 0.5, 11.0, 3) + 0.9 * duneTrain(x + 3, z, 0.15, 5.2, 9) +
           1.4 * gradientNoise(x * 0.06, z * 0.06, 17);
}

constexpr double kSunHeight = 0.27;

Light sky(const Vector &ray, const Vector &sun)
{
    static const Ramp ramp{0xffdcae, 0xf6cfae, 0xcdc0c4, 0x8fa9cc, 0x5b87bf, 0x3b69a8};
    const double towards = ray.x * sun.x + ray.y * sun.y + ray.z * sun.z;
    Light color = ramp.at(std::pow(clamp01(ray.y * 1.9), 0.75));
    color += light(0xffc080) * (0.3 * std::pow(clamp01(towards), 10));
    const double far = 1 / (ray.y + 0.06);
    const double warp = fractalNoise(ray.x * far * 0.4, far * 0.4, 3, 71);
    const double cloud = fractalNoise(ray.x * far * 0.6 + warp, far * 1.3 + warp, 6, 73);
    return mix(color, light(0xfff0e0),
               0.7 * smoothStep(0.05, 0.5, cloud) * smoothStep(0.02, 0.2, ray.y));
}

bool inShadow(double x, double height, double z, const Vector &sun)
{
    for (double way = 0.15; way < 16; way *= 1.22) {
        if (duneHeight(x + sun.x * way, z + sun.z * way) > height + sun.y * way + 0.01)
            return true;
    }
    return false;
}

Light sand(const Vector &eye, const Vector &ray, double distance, const Vector &sun)
{
    const double x = eye.x + ray.x * distance;
    const double z = eye.z + ray.z * distance;
    const double height = duneHeight(x, z);
    const double step = 0.004 + distance * 0.0012;
    double slopeX = (duneHeight(x + step, z) - height) / step;
    double slopeZ = (duneHeight(x, z + step) - height) / step;
    // Wind ripples, which follow the ground and vanish in the distance.
    const double ripplePhase =
        34 * (x * 0.75 + z * 0.55) + 5 * gradientNoise(x * 0.7, z * 0.7, 5) + height * 7;
    const double ripples =
        0.20 * std::exp(-distance * 0.12) * std::cos(ripplePhase + std::sin(ripplePhase) * 0.5);
    slopeX += ripples * 0.75;
    slopeZ += ripples * 0.55;
    const Vector normal = normalized({-slopeX, 1, -slopeZ});
    double sunlight = normal.x * sun.x + normal.y * sun.y + normal.z * sun.z;
    if (sunlight > 0 && inShadow(x, height, z, sun))
        sunlight *= 0.06;
    const double patch =
        1 + 0.10 * fractalNoise(x * 0.5, z * 0.5, 4, 19) +
        0.10 * (hashNoise(static_cast<int>(x * 260), static_cast<int>(z * 260), 3) - 0.5) *
            std::exp(-distance * 0.1);
    const Light albedo = mix(light(0xe3a264), light(0xd98b52), clamp01(0.5 + slopeX)) * patch;
    const Light lit = light(0xffd2a0) * (1.75 * smoothStep(0.0, 0.9, sunlight + 0.06));
    const Light ambient =
        light(0x9fb0ff) * (0.44 * (0.55 + 0.45 * normal.y)) + light(0xd09060) * 0.06;
    const Light color = albedo * (lit + ambient);
    return mix(color, light(0xf3cfae), 1 - std::exp(-std::pow(distance * 0.014, 1.4)));
}

/// The way to the ground, or a negative number if the ray never meets it.
double meetGround(const Vector &eye, const Vector &ray)
{
    double before = 0;
    for (double way = 0.4; way < 170; way += 0.05 + way * 0.012) {
        if (eye.y + ray.y * way < duneHeight(eye.x + ray.x * way, eye.z + ray.z * way)) {
            double low = before;
            double high = way;
            for (int i = 0; i < 12; ++i) {
                const double middle = (low + high) / 2;
                const bool below = eye.y + ray.y * middle <
                                   duneHeight(eye.x + ray.x * middle, eye.z + ray.z * middle);
                (below ? high : low) = middle;
            }
            return high;
        }
        before = way;
    }
    return -1;
}

} // namespace

QImage paintDunes(const QSize &size)
{
    Canvas canvas(size.width(), size.height());
    const Vector sun = normalized({-0.86, kSunHeight, 0.36});
    const Vector eye{0, duneHeight(0, 0) + 2.6, 0};
    canvas.shade([&](int x, int y, const Light &) {
        Light sum;
        for (int sample = 0; sample < 2; ++sample) {
            const double u = (x + 0.25 + 0.5 * sample - size.width() / 2.0) / size.height();
            const double v = (y + 0.75 - 0.5 * sample) / size.height() - 0.40;
            const Vector ray = normalized({u, -v, 1.25});
            const double distance = meetGround(eye, ray);
            sum += distance < 0 ? sky(ray, sun) : sand(eye, ray, distance, sun);
        }
        return sum * 0.5;
    });
    canvas.bloom(0.85, 24, 0.25);
    return canvas.develop(1.02, 0.22, 0.02);
}

} // namespace velmora::samples
