// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Gzip.h"

#include "core/Failure.h"

#include <zlib.h>

namespace rui {

std::string gzip(const std::string &text)
{
    constexpr int gzipFormat = 15 + 16;
    constexpr int memoryLevel = 8;
    z_stream stream = {};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipFormat, memoryLevel,
                     Z_DEFAULT_STRATEGY)
        != Z_OK) {
        throw Failure(RUI_INTERNAL, "compression");
    }
    std::string out(deflateBound(&stream, text.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    const int result = deflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    if (result != Z_STREAM_END) {
        throw Failure(RUI_INTERNAL, "compression");
    }
    return out;
}

} // namespace rui
