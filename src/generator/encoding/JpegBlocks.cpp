// SPDX-License-Identifier: GPL-3.0-or-later
#include "generator/encoding/JpegBlocks.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>

// After <cstdio>: the library's headers use FILE and size_t without including them.
#include <jpeglib.h>

namespace velmora
{

namespace
{

constexpr int kQuality = 100;
constexpr size_t kBlock = DCTSIZE2;
constexpr unsigned kLumaSide = DCTSIZE; ///< px that a block of brightness covers
constexpr unsigned kChromaSide = 2 * DCTSIZE;
constexpr int kMiddleGrey = 128; ///< what a block of zeros shows

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
};

[[noreturn]] void onError(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<ErrorManager *>(info->err)->jump, 1);
}

void ignoreMessage(j_common_ptr, int) {}

jpeg_error_mgr *prepare(ErrorManager &errors)
{
    jpeg_error_mgr *base = jpeg_std_error(&errors.base);
    base->error_exit = onError;
    base->emit_message = ignoreMessage;
    return base;
}

int samplingOf(size_t plane)
{
    return plane == 0 ? 2 : 1;
}

bool isAllOnes(const JQUANT_TBL *table)
{
    return table && std::all_of(std::begin(table->quantval), std::end(table->quantval),
                                [](UINT16 value) { return value == 1; });
}

} // namespace

// Every function of these two that calls the library sets the jump target first and keeps its
// state in members, which survive the jump.

class JpegBlocks::Reader
{
public:
    Reader() : m_info(), m_errors() { m_info.err = prepare(m_errors); }
    ~Reader() { jpeg_destroy_decompress(&m_info); }
    Reader(const Reader &) = delete;
    Reader &operator=(const Reader &) = delete;

    bool open(const uchar *file, size_t bytes)
    {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_create_decompress(&m_info);
        jpeg_mem_src(&m_info, file, static_cast<unsigned long>(bytes));
        if (jpeg_read_header(&m_info, TRUE) != JPEG_HEADER_OK)
            return false;
        m_arrays = jpeg_read_coefficients(&m_info);
        return hasOurForm();
    }

    QSize size() const { return {int(m_info.image_width), int(m_info.image_height)}; }

    bool copyTo(std::array<Plane, 3> &planes)
    {
        if (setjmp(m_errors.jump))
            return false;
        for (size_t i = 0; i < planes.size(); ++i) {
            const size_t length = planes[i].columns * kBlock;
            for (unsigned y = 0; y < planes[i].rows; ++y) {
                const JCOEF *row = m_info.mem->access_virt_barray(
                    reinterpret_cast<j_common_ptr>(&m_info), m_arrays[i], y, 1, FALSE)[0][0];
                std::copy_n(row, length, planes[i].values.data() + y * length);
            }
        }
        return true;
    }

private:
    bool hasOurForm() const
    {
        if (m_info.num_components != 3)
            return false;
        for (size_t i = 0; i < 3; ++i) {
            const jpeg_component_info &part = m_info.comp_info[i];
            if (part.h_samp_factor != samplingOf(i) || part.v_samp_factor != samplingOf(i) ||
                !isAllOnes(part.quant_table))
                return false;
        }
        return true;
    }

    jpeg_decompress_struct m_info;
    ErrorManager m_errors;
    jvirt_barray_ptr *m_arrays = nullptr;
};

class JpegBlocks::Writer
{
public:
    explicit Writer(std::vector<uchar> &file)
        : m_info(), m_errors(), m_file(file), m_data(file.data()),
          m_bytes(static_cast<unsigned long>(file.size()))
    {
        m_info.err = prepare(m_errors);
    }
    ~Writer()
    {
        jpeg_destroy_compress(&m_info);
        if (m_data != m_file.data())
            std::free(m_data);
    }
    Writer(const Writer &) = delete;
    Writer &operator=(const Writer &) = delete;

    bool write(const JpegBlocks &blocks)
    {
        if (setjmp(m_errors.jump))
            return false;
        jpeg_create_compress(&m_info);
        jpeg_mem_dest(&m_info, &m_data, &m_bytes);
        m_info.image_width = static_cast<JDIMENSION>(blocks.size().width());
        m_info.image_height = static_cast<JDIMENSION>(blocks.size().height());
#if JPEG_LIB_VERSION >= 70 // can scale, and does not find the size out itself where it gets blocks
        m_info.jpeg_width = m_info.image_width;
        m_info.jpeg_height = m_info.image_height;
        m_info.min_DCT_h_scaled_size = DCTSIZE;
        m_info.min_DCT_v_scaled_size = DCTSIZE;
#endif
        m_info.input_components = 3;
        m_info.in_color_space = JCS_YCbCr;
        jpeg_set_defaults(&m_info);
        jpeg_set_quality(&m_info, kQuality, TRUE);
        for (size_t i = 0; i < 3; ++i)
            requestArray(blocks.m_planes[i], i);
        jpeg_write_coefficients(&m_info, m_arrays.data());
        for (size_t i = 0; i < 3; ++i)
            fillArray(blocks.m_planes[i], i);
        jpeg_finish_compress(&m_info);
        return true;
    }

    /// The file's bytes, now all in the caller's buffer, which the library leaves when it is small.
    size_t finish()
    {
        if (m_data != m_file.data())
            m_file.assign(m_data, m_data + m_bytes);
        return m_bytes;
    }

private:
    void requestArray(const Plane &plane, size_t index)
    {
        const auto sampling = static_cast<JDIMENSION>(samplingOf(index));
        m_info.comp_info[index].h_samp_factor = samplingOf(index);
        m_info.comp_info[index].v_samp_factor = samplingOf(index);
        m_arrays[index] = m_info.mem->request_virt_barray(
            reinterpret_cast<j_common_ptr>(&m_info), JPOOL_IMAGE, FALSE,
            (plane.columns + sampling - 1) / sampling * sampling,
            (plane.rows + sampling - 1) / sampling * sampling, sampling);
    }

    void fillArray(const Plane &plane, size_t index)
    {
        const auto sampling = static_cast<JDIMENSION>(samplingOf(index));
        const size_t length = plane.columns * kBlock;
        for (unsigned y = 0; y < plane.rows; y += sampling) {
            const JBLOCKARRAY rows = m_info.mem->access_virt_barray(
                reinterpret_cast<j_common_ptr>(&m_info), m_arrays[index], y, sampling, TRUE);
            for (unsigned i = 0; i < sampling && y + i < plane.rows; ++i)
                std::copy_n(plane.values.data() + (y + i) * length, length, rows[i][0]);
        }
    }

    jpeg_compress_struct m_info;
    ErrorManager m_errors;
    std::vector<uchar> &m_file;
    uchar *m_data;
    unsigned long m_bytes;
    std::array<jvirt_barray_ptr, 3> m_arrays{};
};

void JpegBlocks::setSize(const QSize &size)
{
    m_size = size;
    for (size_t i = 0; i < m_planes.size(); ++i) {
        Plane &plane = m_planes[i];
        const unsigned side = i == 0 ? kLumaSide : kChromaSide;
        plane.columns = (static_cast<unsigned>(size.width()) + side - 1) / side;
        plane.rows = (static_cast<unsigned>(size.height()) + side - 1) / side;
        plane.values.resize(kBlock * plane.columns * plane.rows);
    }
}

JpegBlocks JpegBlocks::ofGrey(const QSize &size, int grey)
{
    JpegBlocks blocks;
    blocks.setSize(size);
    std::vector<qint16> &values = blocks.m_planes[0].values;
    for (size_t i = 0; i < values.size(); i += kBlock)
        values[i] = static_cast<qint16>((grey - kMiddleGrey) * DCTSIZE);
    return blocks;
}

bool JpegBlocks::read(const uchar *file, size_t bytes)
{
    Reader reader;
    m_size = QSize();
    if (!reader.open(file, bytes))
        return false;
    setSize(reader.size());
    if (reader.copyTo(m_planes))
        return true;
    m_size = QSize();
    return false;
}

size_t JpegBlocks::write(std::vector<uchar> &file) const
{
    Writer writer(file);
    return !m_size.isEmpty() && writer.write(*this) ? writer.finish() : 0;
}

void JpegBlocks::mix(const JpegBlocks &a, const JpegBlocks &b, int weight)
{
    setSize(a.m_size);
    const int rest = 256 - weight;
    for (size_t i = 0; i < m_planes.size(); ++i) {
        const size_t count = m_planes[i].values.size();
        const qint16 *first = a.m_planes[i].values.data();
        const qint16 *second = b.m_planes[i].values.data();
        qint16 *result = m_planes[i].values.data();
        for (size_t j = 0; j < count; ++j)
            result[j] = static_cast<qint16>((first[j] * rest + second[j] * weight + 128) >> 8);
    }
}

} // namespace velmora
