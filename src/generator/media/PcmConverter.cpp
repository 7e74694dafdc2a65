// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/PcmConverter.h"

#include "generator/media/AvSupport.h"

extern "C" {
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
}

namespace velmora
{

PcmConverter::~PcmConverter()
{
    swr_free(&m_resampler);
    av_frame_free(&m_form);
}

QByteArray PcmConverter::convert(const AVFrame &frame)
{
    const bool same = m_resampler != nullptr && m_form->format == frame.format &&
                      m_form->sample_rate == frame.sample_rate &&
                      AvSupport::sameLayout(*m_form, frame);
    if (same)
        return run(&frame);
    const QByteArray rest = flush();
    return prepareFor(frame) ? rest + run(&frame) : rest;
}

QByteArray PcmConverter::flush()
{
    return m_resampler == nullptr ? QByteArray() : run(nullptr);
}

bool PcmConverter::prepareFor(const AVFrame &frame)
{
    swr_free(&m_resampler);
    av_frame_free(&m_form);
    m_resampler = AvSupport::openStereoResampler(frame, PcmFormat::kSampleRate);
    m_form = av_frame_clone(&frame);
    return m_resampler != nullptr && m_form != nullptr;
}

QByteArray PcmConverter::run(const AVFrame *frame)
{
    const int inputCount = frame == nullptr ? 0 : frame->nb_samples;
    const int room = swr_get_out_samples(m_resampler, inputCount);
    if (room <= 0)
        return {};
    QByteArray output(room * PcmFormat::kBytesPerFrame, Qt::Uninitialized);
    auto *target = reinterpret_cast<uint8_t *>(output.data());
    auto **source = frame == nullptr ? nullptr : const_cast<const uint8_t **>(frame->extended_data);
    const int count = swr_convert(m_resampler, &target, room, source, inputCount);
    output.truncate(qMax(count, 0) * PcmFormat::kBytesPerFrame);
    return output;
}

} // namespace velmora
