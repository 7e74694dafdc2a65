// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/AvSupport.h"

#include "generator/media/MediaLog.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavutil/channel_layout.h>
#include <libavutil/frame.h>
#include <libavutil/log.h>
#include <libswresample/swresample.h>
}

#include <array>
#include <mutex>

// AVChannelLayout came with FFmpeg 5.1; before it a layout was a bit mask beside a count.
#define VELMORA_HAS_AV_CHANNEL_LAYOUT                                                              \
    (LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(59, 37, 100) &&                                      \
     LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(57, 28, 100))

namespace velmora
{

namespace
{

void logLine(void *context, int level, const char *format, va_list arguments)
{
    if (level > AV_LOG_FATAL)
        return;
    std::array<char, 1024> line;
    int printPrefix = 1;
    av_log_format_line2(context, level, format, arguments, line.data(),
                        static_cast<int>(line.size()), &printPrefix);
    qCWarning(mediaLog).noquote() << QString::fromUtf8(line.data()).trimmed();
}

} // namespace

void AvSupport::installLog()
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(logLine); });
}

QString AvSupport::errorText(int code)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text = {};
    av_strerror(code, text.data(), text.size());
    return QString::fromUtf8(text.data());
}

#if VELMORA_HAS_AV_CHANNEL_LAYOUT

namespace
{

/// The layout itself where it is known, else the usual one of as many channels.
AVChannelLayout knownLayout(const AVChannelLayout &layout)
{
    AVChannelLayout known = {};
    if (layout.order == AV_CHANNEL_ORDER_NATIVE)
        av_channel_layout_copy(&known, &layout);
    else
        av_channel_layout_default(&known, layout.nb_channels);
    return known;
}

} // namespace

int AvSupport::channelCount(const AVCodecParameters &parameters)
{
    return parameters.ch_layout.nb_channels;
}

int AvSupport::channelCount(const AVFrame &frame)
{
    return frame.ch_layout.nb_channels;
}

QString AvSupport::channelLayout(const AVCodecParameters &parameters)
{
    if (parameters.ch_layout.nb_channels <= 0)
        return {};
    AVChannelLayout layout = knownLayout(parameters.ch_layout);
    std::array<char, 128> text = {};
    av_channel_layout_describe(&layout, text.data(), text.size());
    av_channel_layout_uninit(&layout);
    return QString::fromUtf8(text.data());
}

bool AvSupport::sameLayout(const AVFrame &a, const AVFrame &b)
{
    return av_channel_layout_compare(&a.ch_layout, &b.ch_layout) == 0;
}

SwrContext *AvSupport::openStereoResampler(const AVFrame &frame, int sampleRate)
{
    AVChannelLayout from = knownLayout(frame.ch_layout);
    AVChannelLayout to = {};
    av_channel_layout_default(&to, 2);
    SwrContext *resampler = nullptr;
    const int result = swr_alloc_set_opts2(&resampler, &to, AV_SAMPLE_FMT_S16, sampleRate, &from,
                                           static_cast<AVSampleFormat>(frame.format),
                                           frame.sample_rate, 0, nullptr);
    av_channel_layout_uninit(&from);
    if (result < 0 || swr_init(resampler) < 0)
        swr_free(&resampler);
    return resampler;
}

#else

namespace
{

uint64_t knownLayout(uint64_t layout, int channels)
{
    if (av_get_channel_layout_nb_channels(layout) == channels)
        return layout;
    return static_cast<uint64_t>(av_get_default_channel_layout(channels));
}

} // namespace

int AvSupport::channelCount(const AVCodecParameters &parameters)
{
    return parameters.channels;
}

int AvSupport::channelCount(const AVFrame &frame)
{
    return frame.channels;
}

QString AvSupport::channelLayout(const AVCodecParameters &parameters)
{
    if (parameters.channels <= 0)
        return {};
    std::array<char, 128> text = {};
    av_get_channel_layout_string(text.data(), static_cast<int>(text.size()), parameters.channels,
                                 knownLayout(parameters.channel_layout, parameters.channels));
    return QString::fromUtf8(text.data());
}

bool AvSupport::sameLayout(const AVFrame &a, const AVFrame &b)
{
    return a.channels == b.channels && a.channel_layout == b.channel_layout;
}

SwrContext *AvSupport::openStereoResampler(const AVFrame &frame, int sampleRate)
{
    const uint64_t from = knownLayout(frame.channel_layout, frame.channels);
    SwrContext *resampler = swr_alloc_set_opts(
        nullptr, AV_CH_LAYOUT_STEREO, AV_SAMPLE_FMT_S16, sampleRate, static_cast<int64_t>(from),
        static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0, nullptr);
    if (resampler == nullptr || swr_init(resampler) < 0)
        swr_free(&resampler);
    return resampler;
}

#endif

} // namespace velmora
