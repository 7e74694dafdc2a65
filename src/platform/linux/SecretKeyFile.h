// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace velmora
{

/// A random key in a file that only its owner may read. Any thread and process: of several that
/// make the file at once, one wins and all use its key.
class SecretKeyFile
{
public:
    SecretKeyFile(const QString &path, int keySize) : m_path(path), m_keySize(keySize) {}

    bool exists() const;
    /// Empty when there is no usable key, with a log line if there is a file; lastError() is then
    /// set. A file that others may read is closed to them first.
    QByteArray read();
    /// Writes @p key unless a usable file exists; the key that counts from now on, empty on
    /// failure.
    QByteArray create(const QByteArray &key);
    int lastError() const { return m_error; } ///< An errno value.

private:
    QByteArray readFrom(int descriptor);
    bool writeTo(int descriptor, const QByteArray &key);

    const QString m_path;
    const int m_keySize;
    int m_error = 0;
};

} // namespace velmora
