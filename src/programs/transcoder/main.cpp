// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/media/TranscoderExit.h"
#include "generator/media/WavTranscoder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTextStream>

namespace
{

const char usage[] =
    "Usage: transcoder FROM TO\n"
    "Decodes the sound of the file FROM, for example an MP3 file, into the WAV file TO\n"
    "(44.1 kHz, stereo, 16 bit).\n"
    "Exit codes: 0 done, 1 FROM cannot be read or TO cannot be written, 2 bad arguments,\n"
    "4 the disk is full.\n";

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    // Standard error is for the caller: one plain reason.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    QTextStream error(stderr);
    if (arguments == QStringList{QStringLiteral("--help")}) {
        QTextStream(stdout) << usage;
        return velmora::TranscoderExit::Done;
    }
    if (arguments.size() != 2) {
        error << usage;
        return velmora::TranscoderExit::BadArguments;
    }
    const QString target = QFileInfo(arguments.at(1)).canonicalFilePath();
    if (!target.isEmpty() && target == QFileInfo(arguments.at(0)).canonicalFilePath()) {
        error << "FROM and TO are the same file.\n";
        return velmora::TranscoderExit::BadArguments;
    }
    velmora::WavTranscoder transcoder;
    if (!transcoder.transcode(arguments.at(0), arguments.at(1))) {
        error << transcoder.errorText() << '\n';
        return transcoder.isDiskFull() ? velmora::TranscoderExit::DiskFull
                                       : velmora::TranscoderExit::Failed;
    }
    if (transcoder.damagedCount() > 0)
        error << "Damaged pieces left out: " << transcoder.damagedCount() << '\n';
    return velmora::TranscoderExit::Done;
}
