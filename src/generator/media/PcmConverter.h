// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

struct AVFrame;
struct SwrContext;

namespace velmora
{

/// The one form of sound that everything is brought to where forms differ.
namespace PcmFormat
{
constexpr int kSampleRate = 44100; ///< Hz
constexpr int kChannels = 2;
constexpr int kBytesPerFrame = kChannels * 2; ///< 16 bit, little endian.
} // namespace PcmFormat

/// Turns decoded sound of any and even of changing form into PcmFormat. One thread.
class PcmConverter
{
public:
    PcmConverter() = default;
    ~PcmConverter();
    PcmConverter(const PcmConverter &) = delete;
    PcmConverter &operator=(const PcmConverter &) = delete;

    /// Empty for a piece that is held back, or whose form cannot be converted.
    QByteArray convert(const AVFrame &frame);
    /// What is held back, at the end of the sound.
    QByteArray flush();

private:
    bool prepareFor(const AVFrame &frame);
    QByteArray run(const AVFrame *frame);

    SwrContext *m_resampler = nullptr;
    AVFrame *m_form = nullptr; ///< Carries the form that the resampler was opened for.
};

} // namespace velmora
