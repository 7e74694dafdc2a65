// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/AudioDecoder.h"

#include "generator/media/AvSupport.h"
#include "generator/media/MediaInput.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace velmora
{

namespace
{

/// So many failures without one good piece between them, and the rest of the file is given up.
constexpr int kDamageLimit = 20000;

bool isUsable(const AVFrame &frame)
{
    return frame.nb_samples > 0 && frame.sample_rate > 0 && AvSupport::channelCount(frame) > 0;
}

} // namespace

AudioDecoder::AudioDecoder(MediaInput &input) : m_input(input) {}

AudioDecoder::~AudioDecoder()
{
    av_packet_free(&m_packet);
    av_frame_free(&m_frame);
    avcodec_free_context(&m_codec);
}

bool AudioDecoder::open()
{
    const AVStream *stream = m_input.audioStream();
    if (stream == nullptr) {
        m_errorText = tr("There is no sound in it.");
        return false;
    }
    const AVCodec *codec = avcodec_find_decoder(stream->codecpar->codec_id);
    m_codec = avcodec_alloc_context3(codec);
    m_frame = av_frame_alloc();
    m_packet = av_packet_alloc();
    if (codec == nullptr || avcodec_parameters_to_context(m_codec, stream->codecpar) < 0) {
        m_errorText = tr("The sound format \"%1\" is not supported.")
                          .arg(QString::fromUtf8(avcodec_get_name(stream->codecpar->codec_id)));
        return false;
    }
    m_codec->pkt_timebase = stream->time_base;
    const int result = avcodec_open2(m_codec, codec, nullptr);
    if (result < 0) {
        m_errorText = AvSupport::errorText(result);
        return false;
    }
    m_stream = stream->index;
    AVFormatContext *context = m_input.context();
    for (unsigned int i = 0; i < context->nb_streams; ++i) {
        if (context->streams[i] != stream)
            context->streams[i]->discard = AVDISCARD_ALL;
    }
    return true;
}

const AVFrame *AudioDecoder::nextFrame()
{
    for (;;) {
        const int result = avcodec_receive_frame(m_codec, m_frame);
        if (result >= 0) {
            if (isUsable(*m_frame)) {
                m_damagedInARow = 0;
                return m_frame;
            }
        } else if (result == AVERROR_EOF) {
            return nullptr;
        } else if (result != AVERROR(EAGAIN) && !noteDamage()) {
            return nullptr;
        } else if (m_draining && result == AVERROR(EAGAIN)) {
            return nullptr;
        } else if (!m_draining) {
            feed();
        }
    }
}

/// Counts a failure; false when there were too many in a row.
bool AudioDecoder::noteDamage()
{
    ++m_damaged;
    return ++m_damagedInARow < kDamageLimit;
}

void AudioDecoder::feed()
{
    const int result = av_read_frame(m_input.context(), m_packet);
    if (result >= 0) {
        if (m_packet->stream_index == m_stream && avcodec_send_packet(m_codec, m_packet) < 0 &&
            !noteDamage())
            m_draining = true;
        av_packet_unref(m_packet);
    } else if (result == AVERROR_EOF || result == AVERROR(EIO) || !noteDamage()) {
        m_draining = true;
    }
    if (m_draining)
        avcodec_send_packet(m_codec, nullptr);
}

} // namespace velmora
