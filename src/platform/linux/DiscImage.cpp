// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/DiscImage.h"

#include "platform/PlatformLog.h"
#include "platform/Shortened.h"
#include "platform/linux/BurnDrive.h"

#include <QFile>
#include <QFileInfo>

#include <libburn/libburn.h>
#include <libisofs/libisofs.h>

#include <cstdlib>
#include <memory>

namespace velmora
{

namespace
{

constexpr int kHeadBytes = 64 * 1024;
constexpr size_t kBufferBlocks = 8 * 1024 * 1024 / kDiscBlock; // Between disk and drive.
constexpr int kVolumeNameBytes = 32;
constexpr int kNameBytes = 255;

/// Logs a step that failed.
bool check(int result, const char *step)
{
    if (result >= 0)
        return true;
    qCWarning(lcPlatform).noquote()
        << QStringLiteral("'%1' failed, result: '%2'")
               .arg(QLatin1String(step), QString::fromUtf8(iso_error_to_msg(result)));
    return false;
}

int openSource(IsoDataSource *)
{
    return ISO_SUCCESS;
}

int closeSource(IsoDataSource *)
{
    return ISO_SUCCESS;
}

int readSource(IsoDataSource *source, std::uint32_t block, std::uint8_t *buffer)
{
    auto *drive = static_cast<BurnDrive *>(source->data);
    return drive->read(block, buffer) ? ISO_SUCCESS : ISO_FILE_READ_ERROR;
}

void freeSource(IsoDataSource *) {}

struct DeleteReadOptions {
    void operator()(IsoReadOpts *options) const { iso_read_opts_free(options); }
};
struct DeleteWriteOptions {
    void operator()(IsoWriteOpts *options) const { iso_write_opts_free(options); }
};

int bytesOf(const QString &text)
{
    return text.toUtf8().size();
}

} // namespace

DiscImage::~DiscImage()
{
    if (m_source) {
        // Ends the thread that makes the image if nobody has read all of it.
        m_source->cancel(m_source);
        burn::burn_source_free(m_source);
    }
    if (m_image)
        iso_image_unref(m_image);
}

QString DiscImage::fittingTitle(const QString &title)
{
    return shortened(title, kVolumeNameBytes, bytesOf);
}

bool DiscImage::begin(BurnDrive &drive, const DiscContent &content, const QString &volumeName)
{
    m_content = content;
    const QByteArray volume = fittingTitle(volumeName).toUtf8();
    if (!check(iso_image_new(volume.constData(), &m_image), "iso_image_new"))
        return false;
    if (!content.media.blank && !import(drive))
        return false;
    iso_image_set_volume_id(m_image, volume.constData());
    iso_image_set_application_id(m_image, "VELMORA");
    iso_tree_set_follow_symlinks(m_image, 1);
    return true;
}

bool DiscImage::import(BurnDrive &drive)
{
    IsoReadOpts *options = nullptr;
    if (!check(iso_read_opts_new(&options, 0), "iso_read_opts_new"))
        return false;
    const std::unique_ptr<IsoReadOpts, DeleteReadOptions> owner(options);
    iso_read_opts_set_start_block(options, m_content.oldSession);
    iso_read_opts_auto_input_charset(options, 1);
    // libisofs frees the source with free(), so it is made with malloc().
    auto *source = static_cast<IsoDataSource *>(std::calloc(1, sizeof(IsoDataSource)));
    if (!source)
        return false;
    source->refcount = 1;
    source->open = openSource;
    source->close = closeSource;
    source->read_block = readSource;
    source->free_data = freeSource;
    source->data = &drive;
    const int result = iso_image_import(m_image, source, options, nullptr);
    iso_data_source_unref(source);
    return check(result, "iso_image_import");
}

/// @p name, with a number where the root folder has it already.
QByteArray DiscImage::freeName(const QString &name) const
{
    const QString suffix = QFileInfo(name).suffix();
    const QString ending = suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix;
    const QString base = name.left(name.size() - ending.size());
    const auto named = [&base](const QString &end) {
        return (shortened(base, kNameBytes - bytesOf(end), bytesOf) + end).toUtf8();
    };
    QByteArray free = named(ending);
    IsoNode *taken = nullptr;
    for (int i = 2; iso_dir_get_node(iso_image_get_root(m_image), free.constData(), &taken) == 1;
         ++i)
        free = named(QStringLiteral(" (%1)%2").arg(i).arg(ending));
    return free;
}

bool DiscImage::addFile(const QString &video, const QString &name)
{
    const QByteArray path = QFile::encodeName(QFileInfo(video).canonicalFilePath());
    const QByteArray discName = freeName(name);
    IsoNode *node = nullptr;
    const int result = path.isEmpty()
                           ? static_cast<int>(ISO_FILE_DOESNT_EXIST)
                           : iso_tree_add_new_node(m_image, iso_image_get_root(m_image),
                                                   discName.constData(), path.constData(), &node);
    if (result >= 0)
        return true;
    qCWarning(lcPlatform).noquote() << QStringLiteral("AddFile failed, result: '%1'")
                                           .arg(QString::fromUtf8(iso_error_to_msg(result)));
    return false;
}

bool DiscImage::finish(bool finalize)
{
    IsoWriteOpts *options = nullptr;
    if (!check(iso_write_opts_new(&options, 0), "iso_write_opts_new"))
        return false;
    const std::unique_ptr<IsoWriteOpts, DeleteWriteOptions> owner(options);
    iso_write_opts_set_iso_level(options, 3); // Files of more than 4 GB.
    iso_write_opts_set_rockridge(options, 1);
    iso_write_opts_set_joliet(options, 1);
    iso_write_opts_set_joliet_long_names(options, 1);
    iso_write_opts_set_relaxed_vol_atts(options, 1);
    iso_write_opts_set_output_charset(options, "UTF-8");
    iso_write_opts_set_fifo_size(options, kBufferBlocks);
    iso_write_opts_set_tail_blocks(options, 150); // Some drives read ahead beyond the end.
    const bool further = !m_content.media.blank;
    iso_write_opts_set_appendable(options, further ? 1 : 0);
    iso_write_opts_set_ms_block(options, further ? m_content.newSession : 0);
    if (further && m_content.overwritable) {
        m_head = QByteArray(kHeadBytes, '\0');
        iso_write_opts_set_overwrite_buf(options, reinterpret_cast<uint8_t *>(m_head.data()));
    }
    const QByteArray mark = finalize && m_content.overwritable ? kFinalizedMark : "";
    iso_image_set_app_use(m_image, mark.constData(), mark.size());
    // The two libraries declare the same structure, each in its own name space.
    ::burn_source *source = nullptr;
    if (!check(iso_image_create_burn_source(m_image, options, &source), "CreateResultImage"))
        return false;
    m_source = reinterpret_cast<burn::burn_source *>(source);
    return true;
}

qint64 DiscImage::size() const
{
    return m_source->get_size(m_source);
}

} // namespace velmora
