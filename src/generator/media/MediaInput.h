// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QString>

struct AVFormatContext;
struct AVInputFormat;
struct AVIOContext;
struct AVStream;

namespace velmora
{

/// A media file opened with libavformat. The bytes come from a QFile, so that every name that Qt
/// can open works on every system; files that refer to further files (play lists) get none of
/// them. One thread at a time; opening reads the file.
class MediaInput
{
    Q_DECLARE_TR_FUNCTIONS(velmora::MediaInput)
public:
    MediaInput() = default;
    ~MediaInput();
    MediaInput(const MediaInput &) = delete;
    MediaInput &operator=(const MediaInput &) = delete;

    /// Opens @p path and reads what its streams are, logging each step. False with errorText().
    bool open(const QString &path);
    void close();
    const QString &errorText() const { return m_errorText; }

    /// Null unless open() succeeded.
    AVFormatContext *context() const { return m_context; }
    /// The first sound stream with a sample rate and channels; null without one.
    AVStream *audioStream() const;
    /// The first stream of moving pictures, which a cover is not; null without one.
    AVStream *videoStream() const;

private:
    bool openAs(const AVInputFormat *format);
    bool openFile(const QString &path);
    bool fail(const QString &reason);
    bool failWithCode(int code);

    QFile m_file;
    AVIOContext *m_io = nullptr;
    AVFormatContext *m_context = nullptr;
    QString m_errorText;
};

} // namespace velmora
