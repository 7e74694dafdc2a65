// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct AVCodecParameters;
struct AVFrame;
struct SwrContext;

namespace velmora
{

/// What FFmpeg's libraries need around them, and the one place where their versions differ.
/// Thread-safe.
namespace AvSupport
{

/// Routes the libraries' messages into the log: fatal ones as warnings, the rest is dropped, since
/// a damaged file can yield thousands of them. Once per process; later calls do nothing.
void installLog();

/// The library's own words for an error code.
QString errorText(int code);

int channelCount(const AVCodecParameters &parameters);
int channelCount(const AVFrame &frame);
/// As FFmpeg writes it: "mono", "stereo", "5.1"; the usual layout of that many channels when the
/// file names none; empty without channels.
QString channelLayout(const AVCodecParameters &parameters);
/// True when a resampler opened for @p a fits @p b.
bool sameLayout(const AVFrame &a, const AVFrame &b);
/// An initialised resampler from the format of @p frame to stereo, 16 bit, @p sampleRate Hz; null
/// when the format cannot be converted. Release with swr_free().
SwrContext *openStereoResampler(const AVFrame &frame, int sampleRate);

} // namespace AvSupport

} // namespace velmora
