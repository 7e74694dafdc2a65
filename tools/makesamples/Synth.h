// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Noise.h"

#include <vector>

namespace velmora::samples
{

constexpr int kSampleRate = 44100;

/// The frequency in Hz of a MIDI note.
double noteFrequency(int note);

/// Two channels of sound to which instruments add their notes. Times in seconds.
class Mix
{
public:
    explicit Mix(double seconds);

    /// A plucked string (a delay line that loses its treble). @p pan: -1 left to 1 right.
    void pluck(double start, int note, double strength, double pan);
    /// A soft chord tone of slightly detuned voices that swells and fades.
    void pad(double start, double length, int note, double strength, double pan);
    /// A breathy lead voice with a vibrato.
    void flute(double start, double length, int note, double strength);
    void bass(double start, double length, int note, double strength);

    /// Adds a hall: parallel combs and all-passes, different for each side.
    void reverberate(double amount);
    /// Fades the end out and brings the loudest sample to @p peak.
    void finish(double fadeSeconds, double peak);

    const std::vector<double> &left() const { return m_left; }
    const std::vector<double> &right() const { return m_right; }

private:
    template <typename Voice> void add(double start, double length, double pan, Voice voice);

    std::vector<double> m_left;
    std::vector<double> m_right;
    Random m_random{31};
};

} // namespace velmora::samples
