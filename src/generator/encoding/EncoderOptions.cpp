// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/EncoderOptions.h"

#include <array>
#include <initializer_list>
#include <limits>

namespace velmora
{

namespace
{

struct BitRateRow {
    int maximumHeight; // px
    const char *value;
    const char *doubled; // the rate-control buffer: two seconds of it
};

constexpr std::array<BitRateRow, 7> kBitRates{{
    {360, "1M", "2M"},
    {480, "2.5M", "5M"},
    {720, "6.5M", "13M"},
    {1080, "10M", "20M"},
    {1440, "20M", "40M"},
    {2160, "44M", "88M"},
    {std::numeric_limits<int>::max(), "56M", "112M"},
}};

constexpr BitRateRow kFallbackBitRate{0, "10M", "20M"};

using Arguments = std::initializer_list<const char *>;

// Stand for the values of a bit rate row.
constexpr char kRate[] = "%rate";
constexpr char kBuffer[] = "%buffer";

struct FormatRow {
    Arguments extensions; // none: every other extension
    Arguments video;
    Arguments motionless; // added where nothing moves: stills and fades
    Arguments sound;
    Arguments container;
    const char *pixels; // filters before the frame rate is fixed
};

// Two channels at 44.1 kHz suit every sound codec of the table, whatever the sound track has.
// The pixel conversions are spelt out so that a still is converted once and not once a frame.
constexpr Arguments kWebm{"webm"};
constexpr Arguments kWebmVideo{"-acodec",  "vorbis", "-strict",   "-2",       "-vcodec",   "vp8",
                               "-ar",      "44100",  "-b:v",      kRate,      "-qmin",     "0",
                               "-qmax",    "50",     "-crf",      "0",        "-speed",    "16",
                               "-threads", "8",      "-deadline", "realtime", "-cpu-used", "15"};
constexpr Arguments kWebmSound{"-acodec", "vorbis", "-strict", "-2", "-ac", "2", "-ar", "44100"};
constexpr Arguments kH264{"mp4", "mov"};
constexpr Arguments kAvi{"avi"};
constexpr Arguments kH264Video{"-b:v",    kRate,  "-crf",     "0", "-acodec",   "libmp3lame",
                               "-vcodec", "h264", "-threads", "4", "-cpu-used", "4"};
constexpr Arguments kMp3Sound{"-acodec", "libmp3lame", "-ac", "2", "-ar", "44100"};
constexpr Arguments kWmv{"wmv"};
constexpr Arguments kWmvVideo{"-b:v",    kRate,  "-crf",     "0", "-acodec",   "wmav2",
                              "-vcodec", "wmv2", "-threads", "4", "-cpu-used", "4"};
constexpr Arguments kWmvSound{"-acodec", "wmav2", "-ac", "2", "-ar", "44100"};
constexpr Arguments kOtherVideo{"-b:v", kRate, "-crf", "0"};
constexpr Arguments kOtherSound{"-ac", "2", "-ar", "44100"};
// MP3 sound begins just before 0. Shifting everything for it would put an empty frame, which is all
// that AVI has for time, after the first one.
constexpr Arguments kAviContainer{"-avoid_negative_ts", "disabled"};
constexpr Arguments kNothing{};

constexpr Arguments kEverywhere{"mp4", "mov"};
constexpr Arguments kEverywhereVideo{
    "-acodec",          "aac",   "-vcodec",    "libx264", "-preset",      "fast",
    "-profile:v",       "high",  "-pix_fmt",   "yuv420p", "-crf",         "20",
    "-maxrate",         kRate,   "-bufsize",   kBuffer,   "-colorspace",  "bt709",
    "-color_primaries", "bt709", "-color_trc", "bt709",   "-color_range", "tv"};
// Without a fine search the encoder drops its psycho-visual part, and with it two steps of the
// chroma quantizer, which stand in the headers that all segments share.
constexpr Arguments kEverywhereMotionless{"-subq", "1", "-me_method", "dia", "-chromaoffset", "-2"};
constexpr Arguments kAacSound{"-acodec", "aac", "-b:a", "192k", "-ac", "2", "-ar", "44100"};
constexpr Arguments kFastStart{"-movflags", "+faststart"};
// JPEG frames are full-range BT.601; the primaries are named only because the filter insists.
constexpr char kToBt709[] = "colorspace=ispace=bt470bg:space=bt709:iprimaries=bt709:primaries="
                            "bt709:itrc=bt709:trc=bt709:irange=pc:range=tv:format=yuv420p,";

const std::array<FormatRow, 5> kOriginalRows{{
    {kWebm, kWebmVideo, kNothing, kWebmSound, kNothing, "format=yuv420p,"},
    {kH264, kH264Video, kNothing, kMp3Sound, kNothing, ""},
    {kAvi, kH264Video, kNothing, kMp3Sound, kAviContainer, ""},
    {kWmv, kWmvVideo, kNothing, kWmvSound, kNothing, "format=yuv420p,"},
    {kNothing, kOtherVideo, kNothing, kOtherSound, kNothing, ""},
}};

const FormatRow kEverywhereRow{kEverywhere, kEverywhereVideo, kEverywhereMotionless,
                               kAacSound,   kFastStart,       kToBt709};

bool serves(const FormatRow &row, const QString &extension)
{
    for (const char *candidate : row.extensions) {
        if (extension.compare(QLatin1String(candidate), Qt::CaseInsensitive) == 0)
            return true;
    }
    return row.extensions.size() == 0;
}

const FormatRow &rowOf(const QString &extension, OutputProfile profile)
{
    if (profile == OutputProfile::PlaysEverywhere && serves(kEverywhereRow, extension))
        return kEverywhereRow;
    for (const FormatRow &row : kOriginalRows) {
        if (serves(row, extension))
            return row;
    }
    return kOriginalRows.back();
}

const BitRateRow &bitRateRow(int height)
{
    if (height <= 0)
        return kFallbackBitRate;
    for (const BitRateRow &row : kBitRates) {
        if (height <= row.maximumHeight)
            return row;
    }
    return kBitRates.back();
}

QStringList toList(const Arguments &arguments)
{
    QStringList list;
    for (const char *argument : arguments)
        list.append(QLatin1String(argument));
    return list;
}

} // namespace

OutputProfile outputProfileFromKey(const QString &key)
{
    return key == QLatin1String("everywhere") ? OutputProfile::PlaysEverywhere
                                              : OutputProfile::OriginalQuality;
}

QString outputProfileKey(OutputProfile profile)
{
    return profile == OutputProfile::PlaysEverywhere ? QStringLiteral("everywhere")
                                                     : QStringLiteral("original");
}

QString EncoderOptions::bitRate(int height)
{
    return QLatin1String(bitRateRow(height).value);
}

QSize EncoderOptions::evenSize(const QSize &size)
{
    return {size.width() + size.width() % 2, size.height() + size.height() % 2};
}

int EncoderOptions::frameCount(qint64 duration)
{
    return static_cast<int>((duration * kFramesPerSecond + 500) / 1000);
}

QString EncoderOptions::seconds(qint64 milliseconds)
{
    return QStringLiteral("%1.%2")
        .arg(milliseconds / 1000)
        .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'));
}

QString EncoderOptions::videoFilter(const QString &extension, OutputProfile profile)
{
    return QStringLiteral("%1fps=%2")
        .arg(QLatin1String(rowOf(extension, profile).pixels))
        .arg(kFramesPerSecond);
}

QStringList EncoderOptions::videoOptions(const QString &extension, int height,
                                         OutputProfile profile)
{
    const BitRateRow &rates = bitRateRow(height);
    return toList(rowOf(extension, profile).video)
        .replaceInStrings(QLatin1String(kRate), QLatin1String(rates.value))
        .replaceInStrings(QLatin1String(kBuffer), QLatin1String(rates.doubled));
}

QStringList EncoderOptions::motionlessOptions(const QString &extension, OutputProfile profile)
{
    return toList(rowOf(extension, profile).motionless);
}

QStringList EncoderOptions::soundOptions(const QString &extension, OutputProfile profile)
{
    return toList(rowOf(extension, profile).sound);
}

QStringList EncoderOptions::containerOptions(const QString &extension, OutputProfile profile)
{
    return toList(rowOf(extension, profile).container);
}

} // namespace velmora
