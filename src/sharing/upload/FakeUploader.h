// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sharing/upload/BaseUploader.h"

#include <QTimer>

namespace velmora
{

/// Uploads nothing and counts to a hundred, for work on the pages that show an upload.
class FakeUploader : public BaseUploader
{
    Q_OBJECT
public:
    explicit FakeUploader(int tickMs = 50, QObject *parent = nullptr);

public slots:
    void startUpload(QString fileName, QString title) override;
    void abort() override;
    void doWork();

private:
    QTimer m_timer;
    int m_counter = 0;
};

} // namespace velmora
