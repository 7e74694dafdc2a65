// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FirstRun.h"

#include "app/AppLog.h"

#include <QSettings>

namespace velmora
{

FirstRun FirstRun::take(const QStringList &arguments, QSettings &store)
{
    const QString firstRunKey = QStringLiteral("first_run");
    const QString againKey = QStringLiteral("frun");
    const QString languageKey = QStringLiteral("lang");

    FirstRun run;
    run.fromInstaller =
        arguments.contains(QLatin1String("--inst")) || arguments.contains(QLatin1String("-inst"));
    run.firstRun = store.value(firstRunKey, true).toBool() || store.value(againKey, false).toBool();
    run.language = store.value(languageKey).toString();
    qCInfo(lcApp).noquote() << QStringLiteral("Run from insaller:%1").arg(run.fromInstaller);
    qCInfo(lcApp).noquote() << QStringLiteral("is frun:%1").arg(run.firstRun);

    if (run.fromInstaller)
        store.setValue(QStringLiteral("rinst"), true);
    if (run.firstRun) {
        store.setValue(firstRunKey, false);
        store.remove(againKey);
        if (!run.language.isEmpty()) {
            store.setValue(QStringLiteral("locale"), run.language);
            store.remove(languageKey);
        }
    }
    return run;
}

} // namespace velmora
