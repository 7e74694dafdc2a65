// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/editor/OutputCheck.h"

#include "chrome/MessageDialog.h"
#include "project/documents/ProjectName.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace velmora
{

bool OutputCheck::isNameUsable(QWidget *window, const QString &name)
{
    const bool empty = name.trimmed().isEmpty();
    if (!empty && ProjectName::isAllowed(name))
        return true;
    MessageDialog::inform(window, tr("Filename"),
                          empty ? tr("The video needs a file name.")
                                : ProjectName::forbiddenMessage());
    return false;
}

OutputCheck::Finding OutputCheck::look(const QString &folder, const QString &output)
{
    const QString shown = QDir::toNativeSeparators(folder);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return {tr("The folder %1 does not exist and cannot be made.").arg(shown)};
    // Permissions do not tell everything: a disc may be read-only, or full.
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".velmora-XXXXXX")));
    if (!probe.open())
        return {tr("The folder %1 cannot be written to: %2").arg(shown, probe.errorString())};
    return {QString(), QFileInfo::exists(output)};
}

bool OutputCheck::mayWrite(QWidget *window, const QString &output, const Finding &finding)
{
    if (!finding.problem.isEmpty()) {
        MessageDialog::inform(window, tr("The video cannot be saved"),
                              finding.problem + QLatin1Char('\n') +
                                  tr("Please choose another folder in the settings."));
        return false;
    }
    if (!finding.exists)
        return true;
    MessageDialog::Message message;
    message.kind = MessageDialog::Kind::Question;
    message.title = tr("Replace the video");
    message.text = tr("The file %1 exists already. Do you want to replace it?")
                       .arg(QDir::toNativeSeparators(output));
    message.buttons = QStringList{tr("CANCEL"), tr("REPLACE")};
    message.defaultButton = 1;
    message.cancelButton = 0;
    message.dangerous = true;
    return MessageDialog::ask(window, message).button == 1;
}

} // namespace velmora
