// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/windows/FakeComObject.h"
#include "platform/windows/ImapiFactory.h"

#include <QPair>
#include <QVector>

namespace velmora
{

/// A burning service with drives and a disc, and the record of what is asked of it.
struct FakeDisc : ComRecord {
    QStringList drives = {QStringLiteral("drive0")}; ///< Unique ids.
    bool supported = true;                           ///< The environment.
    bool blank = true;
    LONG status = 2;                        ///< Of the medium: blank.
    LONG mediaType = 10;                    ///< DVD-RW.
    QVector<LONG> supportedTypes = {2, 10}; ///< CD-R too.
    bool erasable = true;
    LONG freeBlocks = 1000; ///< For one more session.
    QStringList files;      ///< In the root folder.
    /// Elapsed and expected, one event each; with a negative first one the event has other
    /// arguments, with a negative second one they do not tell.
    QVector<QPair<LONG, LONG>> seconds;
    bool describesEvents = true; ///< The type library has the event interfaces.

    IDispatch *sink = nullptr; ///< Connected.
    QByteArray streamContent;  ///< Of the video's stream.
    DWORD streamNames = 0;     ///< How many names the file has.
};

/// Takes part of the system for burning; its objects note each call with its arguments.
class FakeImapi : public ImapiFactory
{
public:
    explicit FakeImapi(FakeDisc &disc) : m_disc(disc) {}

    HRESULT createObject(REFCLSID classId, REFIID interfaceId, void **object) override;
    HRESULT loadTypeLibrary(ITypeLib **library) override;
    /// The stream deletes what it has read when it is released.
    HRESULT openFile(const wchar_t *path, DWORD mode, IStream **stream) override;

private:
    FakeDisc &m_disc;
};

/// A type library with the event interfaces, or with none of them.
HRESULT makeEventLibrary(bool withEvents, ITypeLib **library);

} // namespace velmora
