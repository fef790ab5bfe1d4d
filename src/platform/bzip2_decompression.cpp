#include <bzlib.h>

#include <algorithm>
#include <climits>

#include "platform/bzip2.h"

namespace QZCore {
namespace {

constexpr std::size_t kChunk = 10'240;

/// A stream that is being read.
class Reader {
public:
    explicit Reader(DataView data) : rest_(data) {
        isOpen_ = BZ2_bzDecompressInit(&stream_, 0, 0) == BZ_OK;
        goesOn_ = isOpen_;
    }
    ~Reader() {
        if (isOpen_) BZ2_bzDecompressEnd(&stream_);
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// Whether there may be another chunk.
    [[nodiscard]] bool goesOn() const { return goesOn_; }

    /// Appends up to a chunk; nothing of one in which there is a fault. The
    /// library calls a stream whose data have run out neither ended nor at
    /// fault: such a stream ends when no more comes out of it.
    void appendChunk(Data& out) {
        const std::size_t before = out.size();
        out.resize(before + kChunk);
        stream_.next_out = reinterpret_cast<char*>(&out[before]);
        stream_.avail_out = kChunk;
        refill();
        const int result = BZ2_bzDecompress(&stream_);
        const bool isGood = result == BZ_OK || result == BZ_STREAM_END;
        const std::size_t written = isGood ? kChunk - stream_.avail_out : 0;
        out.resize(before + written);
        goesOn_ = result == BZ_OK && (written > 0 || !rest_.empty());
    }

private:
    /// The library counts its input in 32 bits.
    void refill() {
        if (stream_.avail_in > 0) return;
        const DataView part = rest_.first(std::min<std::size_t>(rest_.size(), UINT_MAX));
        stream_.next_in = const_cast<char*>(textOf(part).data());
        stream_.avail_in = static_cast<unsigned>(part.size());
        rest_ = rest_.subspan(part.size());
    }

    DataView rest_;
    bz_stream stream_{};
    bool isOpen_ = false;
    bool goesOn_ = false;
};

}  // namespace

std::optional<Data> decompressBzip2(DataView data, std::size_t limit) {
    Data out;
    Reader reader(data);
    while (reader.goesOn()) {
        reader.appendChunk(out);
        if (out.size() > limit) return std::nullopt;
    }
    return out;
}

}  // namespace QZCore
