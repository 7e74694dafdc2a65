// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/MediaInput.h"

#include "generator/media/AvSupport.h"
#include "generator/media/MediaLog.h"

#include <QFileInfo>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace velmora
{

namespace
{

constexpr int kBufferSize = 64 * 1024;

int readFile(void *opaque, uint8_t *buffer, int size)
{
    const qint64 count = static_cast<QFile *>(opaque)->read(reinterpret_cast<char *>(buffer), size);
    if (count < 0)
        return AVERROR(EIO);
    return count == 0 ? AVERROR_EOF : static_cast<int>(count);
}

int64_t seekFile(void *opaque, int64_t offset, int whence)
{
    auto *file = static_cast<QFile *>(opaque);
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return file->size();
    case SEEK_CUR:
        offset += file->pos();
        break;
    case SEEK_END:
        offset += file->size();
        break;
    default:
        break;
    }
    if (offset < 0 || !file->seek(offset))
        return AVERROR(EINVAL);
    return offset;
}

/// Music from strangers must not make the program read other files or ask servers.
int refuseFurtherFile(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EPERM);
}

} // namespace

MediaInput::~MediaInput()
{
    close();
}

void MediaInput::close()
{
    avformat_close_input(&m_context);
    if (m_io != nullptr) {
        av_freep(&m_io->buffer);
        avio_context_free(&m_io);
    }
    m_file.close();
}

bool MediaInput::open(const QString &path)
{
    AvSupport::installLog();
    close();
    m_errorText.clear();
    qCDebug(mediaLog).noquote() << "SOURCE FILE:" << path;
    if (!openFile(path))
        return false;
    bool opened = openAs(nullptr);
    const bool named = path.endsWith(QLatin1String(".mp3"), Qt::CaseInsensitive);
    if ((!opened || audioStream() == nullptr) && named) {
        // Damaged beginnings hide the format, or look like another one.
        MediaInput second;
        if (second.openFile(path) && second.openAs(av_find_input_format("mp3")) &&
            second.audioStream() != nullptr) {
            close();
            opened = openFile(path) && openAs(av_find_input_format("mp3"));
        }
    }
    if (opened) {
        m_errorText.clear();
        qCDebug(mediaLog) << "FORMAT CONTEXT:" << m_context->iformat->name
                          << "streams:" << m_context->nb_streams;
    }
    return opened;
}

bool MediaInput::openFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return fail(tr("The file does not exist."));
    if (!info.isFile())
        return fail(tr("It is not a file."));
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(m_file.errorString());
    if (m_file.size() == 0)
        return fail(tr("The file is empty."));
    return true;
}

bool MediaInput::openAs(const AVInputFormat *format)
{
    auto *buffer = static_cast<unsigned char *>(av_malloc(kBufferSize));
    m_io = avio_alloc_context(buffer, kBufferSize, 0, &m_file, readFile, nullptr, seekFile);
    m_context = avformat_alloc_context();
    m_context->pb = m_io;
    // Some formats open further files by themselves, some through the context.
    m_context->io_open = refuseFurtherFile;
    m_context->protocol_whitelist = av_strdup("none");
    // Only the name's ending matters to the library here, the bytes come through m_io.
    const QByteArray name = m_file.fileName().toUtf8();
    // Older libraries take a pointer to a format that is not const, and do not change it either.
    int result = avformat_open_input(&m_context, name.constData(),
                                     const_cast<AVInputFormat *>(format), nullptr);
    qCDebug(mediaLog).noquote() << (result >= 0 ? "OPEN INPUT:[OK]" : "OPEN INPUT:[FAILED]");
    if (result < 0)
        return failWithCode(result);
    result = avformat_find_stream_info(m_context, nullptr);
    qCDebug(mediaLog).noquote() << (result >= 0 ? "FIND STREAM INFO:[OK]"
                                                : "FIND STREAM INFO:[FAILED]");
    if (result < 0)
        return failWithCode(result);
    return true;
}

bool MediaInput::fail(const QString &reason)
{
    close();
    m_errorText = reason;
    return false;
}

bool MediaInput::failWithCode(int code)
{
    if (code == AVERROR_INVALIDDATA || code == AVERROR(EINVAL) || code == AVERROR_EOF)
        return fail(tr("It is damaged, or not a media file."));
    if (code == AVERROR(EPERM))
        return fail(tr("It is a play list, not a media file."));
    return fail(AvSupport::errorText(code));
}

AVStream *MediaInput::audioStream() const
{
    for (unsigned int i = 0; m_context != nullptr && i < m_context->nb_streams; ++i) {
        AVStream *stream = m_context->streams[i];
        const AVCodecParameters &parameters = *stream->codecpar;
        if (parameters.codec_type == AVMEDIA_TYPE_AUDIO && parameters.sample_rate > 0 &&
            AvSupport::channelCount(parameters) > 0)
            return stream;
    }
    return nullptr;
}

AVStream *MediaInput::videoStream() const
{
    for (unsigned int i = 0; m_context != nullptr && i < m_context->nb_streams; ++i) {
        AVStream *stream = m_context->streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
            (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0)
            return stream;
    }
    return nullptr;
}

} // namespace velmora
