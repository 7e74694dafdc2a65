// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/worker/WorkerMain.h"

#include "generator/GeneratorLog.h"
#include "generator/worker/ProtocolPrinter.h"
#include "generator/worker/WorkerProtocol.h"
#include "generator/worker/WorkerRun.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <optional>

namespace velmora
{

namespace
{

struct WorkerArguments {
    QString sessionId;
    QString cacheFolder;
    QString requestFile;
};

/// @p logged is the reason in English.
int refuse(const QString &reason, const QString &logged)
{
    qCCritical(generatorLog).noquote() << logged;
    ProtocolPrinter::failed({RenderErrorCode::kRequest, reason});
    return kExitBadArguments;
}

std::optional<WorkerArguments> parse(const QStringList &arguments, QString *error)
{
    const QCommandLineOption session(QStringLiteral("session_id"), QString(), QStringLiteral("id"));
    const QCommandLineOption cache(QStringLiteral("cache"), QString(), QStringLiteral("folder"));
    const QCommandLineOption request(QStringLiteral("request"), QString(), QStringLiteral("file"));
    QCommandLineParser parser;
    parser.addOptions({session, cache, request});
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return {};
    }
    WorkerArguments values{parser.value(session), QDir::fromNativeSeparators(parser.value(cache)),
                           QDir::fromNativeSeparators(parser.value(request))};
    const bool complete = !values.sessionId.isEmpty() && !values.cacheFolder.isEmpty() &&
                          !values.requestFile.isEmpty();
    if (complete && parser.positionalArguments().isEmpty())
        return values;
    *error = QCoreApplication::translate(
        "velmora::WorkerMain",
        "A render worker needs --session_id, --cache and --request, and nothing else.");
    return {};
}

} // namespace

int runWorker(const QStringList &arguments, const AppSettings &settings)
{
    QString error;
    const std::optional<WorkerArguments> values = parse(arguments, &error);
    if (!values)
        return refuse(error, QStringLiteral("Bad arguments"));
    RenderRequest request;
    if (!request.load(values->requestFile, settings, &error))
        return refuse(QCoreApplication::translate("velmora::WorkerMain",
                                                  "The request \"%1\" cannot be used: %2")
                          .arg(values->requestFile, error),
                      QStringLiteral("Unusable request: %1").arg(values->requestFile));
    WorkerRun run(std::move(request), settings, values->sessionId, values->cacheFolder);
    return run.exec();
}

} // namespace velmora
