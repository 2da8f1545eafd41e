#include "platform/printing/pdf/Deflate.h"

#include <zlib.h>

#include <memory>

#include "platform/values/Errors.h"

namespace platform {

Deflate::Deflate() {
    // The content of a page is so regular that more effort saves little.
    constexpr int kLevel = 4;
    auto stream = std::make_unique<z_stream>();
    *stream = {};
    if (deflateInit(stream.get(), kLevel) != Z_OK) throw Error("There is no memory to compress.");
    stream_ = stream.release();
}

Deflate::~Deflate() {
    deflateEnd(stream_);
    delete stream_;
}

std::string_view Deflate::Compress(std::string_view text) {
    deflateReset(stream_);
    const uLong most = deflateBound(stream_, static_cast<uLong>(text.size()));
    if (out_.size() < most) out_.resize(most);
    // The library's interface isn't const, but it only reads.
    stream_->next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data())); // NOLINT
    stream_->avail_in = static_cast<uInt>(text.size());
    stream_->next_out = reinterpret_cast<Bytef*>(out_.data()); // NOLINT
    stream_->avail_out = static_cast<uInt>(out_.size());
    if (deflate(stream_, Z_FINISH) != Z_STREAM_END) throw Error("Compressing failed.");
    return {out_.data(), stream_->total_out};
}

} // namespace platform
