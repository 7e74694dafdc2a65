// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

namespace velmora
{

/// A file as the body of one request. Qt repeats a request by itself when the connection breaks,
/// which would begin an upload of gigabytes anew, and store a file twice if only the answer was
/// lost. It cannot when the body does not go back to its start.
class OneTimeFile : public QFile
{
    Q_OBJECT
public:
    using QFile::QFile;

    bool seek(qint64 offset) override { return !m_used && QFile::seek(offset); }
    bool reset() override { return seek(0); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        m_used = true;
        return QFile::readData(data, maxSize);
    }

private:
    bool m_used = false;
};

} // namespace velmora
