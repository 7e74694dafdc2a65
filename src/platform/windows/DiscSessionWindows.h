// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ComApartment.h"
#include "platform/DiscSession.h"
#include "platform/windows/DeletableLink.h"
#include "platform/windows/ImapiFactory.h"

#include <mutex>

namespace velmora
{

/// Burns with the Image Mastering API of Windows, version 2.
class DiscSessionWindows : public DiscSession
{
public:
    /// @p turn is held until the session ends; @p factory must outlive it.
    DiscSessionWindows(ImapiFactory &factory, std::unique_lock<std::mutex> turn);

    /// See DiscWriter::fittingTitle().
    static QString fittingTitle(const QString &title);

    /// Takes the drive; false when it is gone.
    bool open(const QString &recorderId);

    bool erase(const DiscProgress &progress) override;
    bool checkMedia() override;
    bool createImage(const QString &video, const QString &fileName,
                     const QString &volumeName) override;
    bool finishImage(bool finalize) override;
    bool write(const DiscProgress &progress, const std::atomic_bool &cancelled) override;

private:
    bool isMediaTypeSupported();
    bool beginImage(const QString &volumeName);
    bool addVideo(const QString &video, const QString &fileName);
    QString freeName(const QString &name);

    ImapiFactory &m_factory;
    const std::unique_lock<std::mutex> m_turn;
    const ComApartment m_apartment; ///< Outlives all objects below.
    DeletableLink m_link;           ///< Outlives the stream that reads it.
    ComPtr<IDiscRecorder2> m_recorder;
    ComPtr<IDiscFormat2Data> m_data;
    ComPtr<IFileSystemImage> m_image;
    ComPtr<IFsiDirectoryItem> m_root;
    ComPtr<IStream> m_stream; ///< Of the image, once it is finished.
};

} // namespace velmora
