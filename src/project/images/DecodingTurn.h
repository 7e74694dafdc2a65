// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <mutex>

namespace velmora
{

/// A turn at decoding a picture that takes much memory. There is one at a time in the process, so
/// that threads with a large picture each need no more than one of them alone. Any thread; no
/// thread may hold two.
class DecodingTurn
{
public:
    /// Pictures that take more are refused. Bytes; what a computer with 4 GB can spare. Enough for
    /// 200 megapixels, or 150 with 16 bits a colour.
    static constexpr qint64 kMaximumBytes = 1300LL * 1000 * 1000;

    /// Waits for the turn if @p bytes, what decoding takes at its peak, is much.
    explicit DecodingTurn(qint64 bytes);

private:
    std::unique_lock<std::mutex> m_lock;
};

} // namespace velmora
