// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generator/encoding/EncoderOptions.h"
#include "generator/encoding/FadeComposer.h"
#include "generator/encoding/FrameWriter.h"
#include "generator/encoding/ToolRunner.h"
#include "project/documents/AudioItemList.h"
#include "project/slides/TransitionType.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <atomic>
#include <mutex>

namespace velmora
{

/// What one generation has in common: output settings, tools and the shared state of its runs.
/// Outlives every VideoUtil made from it; only the members marked so are written by them.
struct EncodingContext {
    QSize size;        ///< Output size in px, even.
    QString extension; ///< Without a dot.
    OutputProfile profile = OutputProfile::OriginalQuality;
    QString cachePath; ///< The cache folder, with "images/" and "video/" in it.
    QString encoder;   ///< Absolute path of ffmpeg.
    std::atomic_bool cancelled{false};
    std::mutex outputMutex; ///< Guards encoderOutput.
    QString encoderOutput;  ///< Standard error of running encoders, for the progress reader.
};

/// Builds every command line of the encoder and runs it. One object per thread; all share one
/// EncodingContext. Operations return false on failure, log it and keep the reason in failure() and
/// errorText().
class VideoUtil
{
public:
    enum class Failure {
        None,
        DiskFull,  ///< Of the folder that was written into.
        Cancelled, ///< Nothing is wrong.
        Other,
    };

    explicit VideoUtil(EncodingContext &context);

    /// Of the last operation that failed.
    Failure failure() const { return m_failure; }
    /// Plain reason of the last failure, fit for the user: "The disk is full." and the like.
    const QString &errorText() const { return m_errorText; }
    const QString &cachePath() const { return m_context.cachePath; }

    /// Runs the encoder with @p arguments and the output file after them. With @p wait its standard
    /// error is fed to the progress reader. The output is written as partFile() and renamed. True
    /// when the encoder succeeded and the file exists and is not empty.
    bool executeUtility(QStringList arguments, const QString &outputFile, bool wait);
    /// The file beside @p outputFile that executeUtility() writes until it is complete.
    static QString partFile(const QString &outputFile);
    /// Renames @p from, in place of an older @p to.
    bool moveFile(const QString &from, const QString &to);

    // Frames: JPEG files "%1img%2_%3.jpg" in the images folder, numbered from 1.
    QString frameFile(const QString &prefix, int number) const;
    /// @p prefix is "_p", "_t" or "_i" with the slide's index.
    bool saveFrame(const QImage &frame, const QString &prefix, int number);
    /// Renders frame @p number (from 1) of @p count of an effect and saves it.
    bool saveTransitionFrame(TransitionType type, int number, const QImage &from, const QImage &to,
                             const QString &prefix, int count);
    void removeFrames(const QString &prefix, int count) const;

    // Pictures. Durations in ms.
    /// Encodes frames 1 to @p frameCount, or the one still, into exactly 25 frames per second of
    /// @p duration.
    bool encodeSegment(const QString &prefix, int frameCount, qint64 duration,
                       const QString &outputFile, Motion motion = Motion::Any);
    /// Copies @p files one after another; @p listFile is the concat list that is written for it.
    bool join(const QStringList &files, const QString &listFile, const QString &outputFile);
    /// Copies the picture and encodes the sound, both to end with the picture at @p length ms.
    bool multiplex(const QString &videoFile, const QString &soundFile, qint64 length,
                   const QString &outputFile);
    /// Makes the picture alone the output: moves it where that is enough, else copies it with the
    /// container options of the output.
    bool finishWithoutSound(const QString &videoFile, const QString &outputFile);

    // Sound, see generator/sound.
    /// Makes the sound track "video/audio_stream.wav" of a video of @p length ms; offset and fade
    /// in s, converted music goes to @p folder. Returns its path, empty on failure.
    QString prepareAudio(const AudioItemList &list, const QString &folder, int offset, int fade,
                         int length);
    /// Repeats a @p source that is shorter than @p length ms into @p output; otherwise sets
    /// @p output to @p source. With a @p fade (s) the repeated track fades out where the video
    /// ends, which is in the middle of a repetition.
    bool prepareAudioLoop(const QString &source, int length, QString &output, int fade = 0);
    /// Writes @p source @p count times.
    bool loopAudio(const QString &source, const int count, const QString &output);
    /// With the transcoder program: from any format to 44.1 kHz, stereo, 16 bit.
    bool transcodeMp3ToWav(const QString &from, const QString &to);
    /// With the encoder: keeps sample rate and channels.
    bool transcodeFFmpegToWav(const QString &from, const QString &to);

    /// Logs "[STD OUT]:'%1' [STD ERR]:'%2'".
    static void printDebugInfo(const ToolResult &result);

private:
    /// @p logged is the reason in English.
    bool fail(Failure failure, const QString &reason, const QString &logged);
    bool failCancelled(const QString &file);
    bool failWithFullDisk(const QString &file);
    template <typename Frame> bool store(const Frame &frame, const QString &path);
    bool saveFadeFrame(const Fade &fade, const QImage &from, const QImage &to, const QString &path);
    ToolResult runEncoder(const QStringList &arguments, bool feedProgress) const;
    bool acceptOutput(const ToolResult &result, const QString &temporaryFile,
                      const QString &outputFile);

    EncodingContext &m_context;
    Failure m_failure = Failure::None;
    QString m_errorText;
    QImage m_transitionFrame;
    FadeComposer m_fadeComposer;
    FrameWriter m_frameWriter;
};

} // namespace velmora
