// SPDX-License-Identifier: GPL-3.0-or-later
#include "Synth.h"

#include <algorithm>
#include <cmath>

namespace velmora::samples
{

namespace
{

constexpr double kTurn = 2 * M_PI;

/// A feedback delay whose echoes lose treble, as walls do.
std::vector<double> comb(const std::vector<double> &input, int delay, double feedback)
{
    const auto length = static_cast<std::size_t>(delay);
    std::vector<double> line(length, 0);
    std::vector<double> output(input.size());
    double damped = 0;
    for (std::size_t i = 0; i < input.size(); ++i) {
        const double echo = line[i % length];
        damped = mix(echo, damped, 0.35);
        line[i % length] = input[i] + damped * feedback;
        output[i] = echo;
    }
    return output;
}

void allPass(std::vector<double> &signal, int delay)
{
    const auto length = static_cast<std::size_t>(delay);
    std::vector<double> line(length, 0);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double echo = line[i % length];
        const double sum = signal[i] + echo * 0.5;
        line[i % length] = sum;
        signal[i] = echo - sum * 0.5;
    }
}

std::vector<double> hall(const std::vector<double> &input, int spread)
{
    std::vector<double> result(input.size(), 0);
    for (const int delay : {1557, 1617, 1491, 1422, 1277, 1356}) {
        const std::vector<double> echoes = comb(input, delay + spread, 0.85);
        for (std::size_t i = 0; i < result.size(); ++i)
            result[i] += echoes[i] / 6;
    }
    for (const int delay : {556, 441, 341, 225})
        allPass(result, delay + spread);
    return result;
}

} // namespace

double noteFrequency(int note)
{
    return 440 * std::pow(2, (note - 69) / 12.0);
}

Mix::Mix(double seconds)
    : m_left(static_cast<std::size_t>(seconds * kSampleRate)), m_right(m_left.size())
{
}

template <typename Voice> void Mix::add(double start, double length, double pan, Voice voice)
{
    const auto first = static_cast<std::size_t>(start * kSampleRate);
    const auto count = static_cast<std::size_t>(length * kSampleRate);
    const double left = std::cos((pan + 1) * M_PI / 4);
    const double right = std::sin((pan + 1) * M_PI / 4);
    for (std::size_t i = 0; i < count && first + i < m_left.size(); ++i) {
        const double value = voice(static_cast<double>(i) / kSampleRate);
        m_left[first + i] += value * left;
        m_right[first + i] += value * right;
    }
}

void Mix::pluck(double start, int note, double strength, double pan)
{
    const double period = kSampleRate / noteFrequency(note) - 0.5;
    std::vector<double> string(static_cast<std::size_t>(period));
    double smooth = 0;
    for (double &sample : string) { // A soft fingertip: little treble in the first shape.
        smooth = mix(smooth, m_random.range(-1, 1), 0.35);
        sample = smooth;
    }
    const double tuning = period - static_cast<double>(string.size());
    const double loss = std::pow(0.001, 1 / (noteFrequency(note) * 4.2)); // Gone after 4.2 s.
    std::size_t place = 0;
    double last = 0;
    double tuned = 0;
    add(start, 4.0, pan, [&](double time) {
        const double current = string[place];
        const double blended = 0.5 * (current + last);
        last = current;
        const double passed = mix(blended, tuned, tuning);
        tuned = blended;
        string[place] = passed * loss;
        place = (place + 1) % string.size();
        return strength * current * smoothStep(0, 0.002, time) * smoothStep(4.0, 3.2, time);
    });
}

void Mix::pad(double start, double length, int note, double strength, double pan)
{
    const double frequency = noteFrequency(note);
    const double total = length + 1.2;
    add(start, total, pan, [=](double time) {
        const double swell = smoothStep(0, 0.9, time) * smoothStep(total, length - 0.3, time);
        double sum = 0;
        for (const double detune : {-0.0028, 0.0, 0.0031}) {
            const double phase = kTurn * frequency * (1 + detune) * time;
            for (int harmonic = 1; harmonic <= 6; ++harmonic)
                sum +=
                    std::sin(harmonic * phase + harmonic * detune * 900) / std::pow(harmonic, 1.9);
        }
        return strength * sum / 3 * swell * (1 + 0.12 * std::sin(kTurn * 0.31 * time + pan));
    });
}

void Mix::flute(double start, double length, int note, double strength)
{
    const double frequency = noteFrequency(note);
    const double total = length + 0.18;
    double breath = 0;
    double phase = 0;
    add(start, total, 0.12, [&](double time) {
        const double vibrato = 0.0055 * smoothStep(0.25, 0.8, time) * std::sin(kTurn * 5.1 * time);
        phase += kTurn * frequency * (1 + vibrato) / kSampleRate;
        breath = mix(breath, m_random.range(-1, 1), 0.25);
        const double shape = smoothStep(0, 0.07, time) * smoothStep(total, length - 0.05, time) *
                             (0.82 + 0.18 * std::exp(-time * 3));
        const double tone = std::sin(phase) + 0.34 * std::sin(2 * phase) +
                            0.10 * std::sin(3 * phase) + 0.05 * std::sin(4 * phase);
        return strength * shape * (tone + 0.05 * breath);
    });
}

void Mix::bass(double start, double length, int note, double strength)
{
    const double frequency = noteFrequency(note);
    add(start, length + 0.2, 0, [=](double time) {
        const double phase = kTurn * frequency * time;
        const double shape = smoothStep(0, 0.02, time) * std::exp(-time * 0.7) *
                             smoothStep(length + 0.2, length - 0.1, time);
        return strength * shape *
               (std::sin(phase) + 0.45 * std::sin(2 * phase) + 0.18 * std::sin(3 * phase));
    });
}

void Mix::reverberate(double amount)
{
    const std::vector<double> left = hall(m_left, 0);
    const std::vector<double> right = hall(m_right, 23);
    for (std::size_t i = 0; i < m_left.size(); ++i) {
        m_left[i] += amount * (left[i] + 0.3 * right[i]);
        m_right[i] += amount * (right[i] + 0.3 * left[i]);
    }
}

void Mix::finish(double fadeSeconds, double peak)
{
    double loudest = 1e-9;
    for (std::size_t i = 0; i < m_left.size(); ++i) {
        const double rest = static_cast<double>(m_left.size() - i) / kSampleRate;
        const double gain = smoothStep(0, fadeSeconds, rest);
        // Gently rounded peaks let the quiet parts be heard.
        for (double *sample : {&m_left[i], &m_right[i]}) {
            *sample = std::tanh(*sample * gain * 1.3);
            loudest = std::max(loudest, std::abs(*sample));
        }
    }
    for (std::vector<double> *channel : {&m_left, &m_right}) {
        for (double &sample : *channel)
            sample *= peak / loudest;
    }
}

} // namespace velmora::samples
