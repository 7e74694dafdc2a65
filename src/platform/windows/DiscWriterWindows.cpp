// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DiscWriterWindows.h"

#include "platform/ComApartment.h"
#include "platform/PlatformLog.h"
#include "platform/windows/ComArray.h"
#include "platform/windows/ComResult.h"
#include "platform/windows/ComString.h"
#include "platform/windows/DeletableLink.h"
#include "platform/windows/DiscExamination.h"
#include "platform/windows/DiscSessionWindows.h"

#include <QCoreApplication>

#include <mutex>

namespace velmora
{

namespace
{

std::mutex s_mutex; // Drives answer one question at a time, and none while they write.

} // namespace

DiscWriterWindows::DiscWriterWindows(std::unique_ptr<ImapiFactory> factory)
    : m_factory(std::move(factory))
{
}

QString DiscWriterWindows::hindrance() const
{
    return m_missing ? QCoreApplication::translate(
                           "velmora::DiscWriter",
                           "This copy of the program cannot burn discs on this system.")
                     : QString();
}

QString DiscWriterWindows::fittingTitle(const QString &title) const
{
    return DiscSessionWindows::fittingTitle(title);
}

QVector<DiscRecorder> DiscWriterWindows::recorders()
{
    const std::lock_guard<std::mutex> turn(s_mutex);
    const ComApartment apartment;
    ComPtr<IDiscMaster2> master;
    const HRESULT result = m_factory->create<MsftDiscMaster2>(master);
    m_missing = result == REGDB_E_CLASSNOTREG;
    VARIANT_BOOL supported = VARIANT_FALSE;
    if (!succeeded(result, "Failed to create MsftDiscMaster2, result: '%1'") ||
        !succeeded(master->get_IsSupportedEnvironment(&supported),
                   "IDiscMaster2->get_IsSupportedEnvironment failed, result: '%1'"))
        return {};
    const auto found = supported ? listRecorders(master.Get()) : QVector<DiscRecorder>();
    if (found.isEmpty())
        qCWarning(lcPlatform) << "There were no writable devices detected!";
    return found;
}

QVector<DiscRecorder> DiscWriterWindows::listRecorders(IDiscMaster2 *master)
{
    LONG count = 0;
    if (!succeeded(master->get_Count(&count), "IDiscMaster2->get_Count failed, result: '%1'"))
        return {};
    qCInfo(lcPlatform).noquote()
        << QStringLiteral("IDiscMaster2->get_Count return '%1' devices").arg(count);
    QVector<DiscRecorder> found;
    for (LONG i = 0; i < count; ++i) {
        DiscRecorder recorder;
        if (describe(master, i, &recorder))
            found.append(recorder);
    }
    return found;
}

bool DiscWriterWindows::describe(IDiscMaster2 *master, LONG index, DiscRecorder *recorder)
{
    ComString id;
    ComString product;
    ComArray volumes;
    ComPtr<IDiscRecorder2> device;
    if (!succeeded(master->get_Item(index, id.receive()),
                   "m_DiscMaster->get_Item failed, result: '%1'") ||
        !stepSucceeded(m_factory->create<MsftDiscRecorder2>(device),
                       "CoCreateInstance MsftDiscRecorder2") ||
        !succeeded(device->InitializeDiscRecorder(id.get()),
                   "InitializeDiscRecorder failed, result: '%1'") ||
        !succeeded(device->get_ProductId(product.receive()),
                   "get_ProductId failed, result: '%1'") ||
        !succeeded(device->get_VolumePathNames(volumes.receive()),
                   "get_VolumePathNames failed, result: '%1'"))
        return false;
    recorder->id = id.toString();
    recorder->productId = product.toString().trimmed();
    recorder->volumes = volumes.strings();
    return true;
}

DiscMedia DiscWriterWindows::media(const QString &recorderId)
{
    const std::lock_guard<std::mutex> turn(s_mutex);
    const ComApartment apartment;
    ComPtr<IDiscRecorder2> recorder;
    if (!stepSucceeded(m_factory->create<MsftDiscRecorder2>(recorder),
                       "CoCreateInstance MsftDiscRecorder2") ||
        !succeeded(recorder->InitializeDiscRecorder(ComString(recorderId).get()),
                   "InitializeDiscRecorder failed, result: '%1'"))
        return {};
    return examineDisc(*m_factory, recorder.Get());
}

std::unique_ptr<DiscSession> DiscWriterWindows::openSession(const QString &recorderId)
{
    auto session =
        std::make_unique<DiscSessionWindows>(*m_factory, std::unique_lock<std::mutex>(s_mutex));
    if (!session->open(recorderId))
        return nullptr;
    return session;
}

std::unique_ptr<DiscWriter> createDiscWriter()
{
    return std::make_unique<DiscWriterWindows>();
}

void removeBurnLeftovers()
{
    DeletableLink::sweep();
}

} // namespace velmora
