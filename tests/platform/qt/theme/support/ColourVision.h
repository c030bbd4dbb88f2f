#pragma once

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace lexiform::qt {

/// A colour as red, green and blue light between 0 and 1, and one as L*, a* and b*.
using Light = std::array<double, 3>;
using Lab = std::array<double, 3>;

/// What an eye does to light: a matrix, row by row.
struct Vision {
    const char* name;
    std::array<double, 9> matrix;
};

/// The usual eye, and those without the long, the middle and the short cones, by the matrices for severity
/// 1.0 of Machado, Oliveira and Fernandes, "A Physiologically-based Model for Simulation of Color Vision
/// Deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (6), 2009.
inline constexpr std::array<Vision, 4> visions = {
    {{"all cones", {1, 0, 0, 0, 1, 0, 0, 0, 1}},
     {"protanopia",
      {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998}},
     {"deuteranopia",
      {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881}},
     {"tritanopia",
      {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900}}}};

inline double linear(double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

inline Light lightOf(const QColor& colour) {
    return {linear(colour.redF()), linear(colour.greenF()), linear(colour.blueF())};
}

inline double luminance(const Light& light) {
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

/// The contrast of two colours as WCAG 2 counts it, from 1 to 21.
inline double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(lightOf(a)), luminance(lightOf(b))});
    return (lighter + 0.05) / (darker + 0.05);
}

inline Light seen(const Light& light, const Vision& vision) {
    Light result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result.at(row) += vision.matrix.at(3 * row + column) * light.at(column);
        result.at(row) = std::clamp(result.at(row), 0.0, 1.0);
    }
    return result;
}

inline double labCurve(double value) {
    return value > 216.0 / 24389 ? std::cbrt(value) : (24389.0 / 27 * value + 16) / 116;
}

/// Under the white of sRGB.
inline Lab labOf(const Light& light) {
    const double x = labCurve((0.4124 * light[0] + 0.3576 * light[1] + 0.1805 * light[2]) / 0.95047);
    const double y = labCurve(luminance(light));
    const double z = labCurve((0.0193 * light[0] + 0.1192 * light[1] + 0.9505 * light[2]) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

inline double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

inline double hueAngle(double a, double b) {
    const double degrees = a == 0 && b == 0 ? 0 : std::atan2(b, a) * 180 / std::numbers::pi;
    return degrees < 0 ? degrees + 360 : degrees;
}

inline double seventhRoot(double chroma) {
    const double power = std::pow(chroma, 7);
    return std::sqrt(power / (power + std::pow(25.0, 7)));
}

/// The difference of two colours by CIEDE2000: 1 can just be seen side by side.
inline double difference(const Lab& first, const Lab& second) {
    const double stretch =
        1.5 - 0.5 * seventhRoot((std::hypot(first[1], first[2]) + std::hypot(second[1], second[2])) / 2);
    const double a1 = stretch * first[1];
    const double a2 = stretch * second[1];
    const double c1 = std::hypot(a1, first[2]);
    const double c2 = std::hypot(a2, second[2]);
    const double h1 = hueAngle(a1, first[2]);
    const double h2 = hueAngle(a2, second[2]);
    const bool hasHues = c1 * c2 != 0;
    double turn = hasHues ? h2 - h1 : 0;
    if (turn > 180) turn -= 360;
    if (turn < -180) turn += 360;
    double hue = hasHues ? (h1 + h2) / 2 : h1 + h2;
    if (hasHues && std::abs(h1 - h2) > 180) hue += h1 + h2 < 360 ? 180 : -180;

    const double lightness = std::pow((first[0] + second[0]) / 2 - 50, 2);
    const double chroma = (c1 + c2) / 2;
    const double weight = 1 - 0.17 * std::cos(radians(hue - 30)) + 0.24 * std::cos(radians(2 * hue)) +
                          0.32 * std::cos(radians(3 * hue + 6)) - 0.20 * std::cos(radians(4 * hue - 63));
    const double l = (second[0] - first[0]) / (1 + 0.015 * lightness / std::sqrt(20 + lightness));
    const double c = (c2 - c1) / (1 + 0.045 * chroma);
    const double h = 2 * std::sqrt(c1 * c2) * std::sin(radians(turn) / 2) / (1 + 0.015 * chroma * weight);
    const double blue = 30 * std::exp(-std::pow((hue - 275) / 25, 2));
    const double rotation = -std::sin(radians(2 * blue)) * 2 * seventhRoot(chroma);
    return std::sqrt(std::max(0.0, l * l + c * c + h * h + rotation * c * h));
}

} // namespace lexiform::qt
