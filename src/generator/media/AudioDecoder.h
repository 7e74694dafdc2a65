// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

struct AVCodecContext;
struct AVFrame;
struct AVPacket;

namespace velmora
{

class MediaInput;

/// Decodes the first sound stream of an opened file, piece by piece. Damage inside the stream is
/// stepped over; what stands before and after it is delivered. One thread; memory use does not
/// depend on the file's length.
class AudioDecoder
{
    Q_DECLARE_TR_FUNCTIONS(velmora::AudioDecoder)
public:
    /// @p input outlives the decoder.
    explicit AudioDecoder(MediaInput &input);
    ~AudioDecoder();
    AudioDecoder(const AudioDecoder &) = delete;
    AudioDecoder &operator=(const AudioDecoder &) = delete;

    /// False with errorText() when the file has no sound that can be decoded.
    bool open();
    /// The next piece, valid until the next call; null at the end of what can be decoded.
    const AVFrame *nextFrame();
    /// How many pieces of the stream were damaged so far.
    int damagedCount() const { return m_damaged; }
    const QString &errorText() const { return m_errorText; }

private:
    void feed();
    bool noteDamage();

    MediaInput &m_input;
    AVCodecContext *m_codec = nullptr;
    AVFrame *m_frame = nullptr;
    AVPacket *m_packet = nullptr;
    int m_stream = -1;
    int m_damaged = 0;
    int m_damagedInARow = 0;
    bool m_draining = false;
    QString m_errorText;
};

} // namespace velmora
