// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseUploader.h"

namespace velmora
{

/// Stands for every service where the program was built without what a sign-in needs: each upload
/// fails with uploadHindrance().
class UnavailableUploader : public BaseUploader
{
    Q_OBJECT
public:
    using BaseUploader::BaseUploader;

public slots:
    void startUpload(QString fileName, QString title) override;
    void abort() override;

private:
    void end(const QString &error);

    bool m_ended = false;
};

} // namespace velmora
