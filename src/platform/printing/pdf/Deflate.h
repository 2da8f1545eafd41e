#pragma once

#include <string>
#include <string_view>

struct z_stream_s; // NOLINT(readability-identifier-naming)

namespace platform {

/// Compresses one text after the other as zlib streams.
class Deflate {
  public:
    Deflate();
    ~Deflate();
    Deflate(const Deflate&) = delete;
    Deflate& operator=(const Deflate&) = delete;

    /// Returns the compressed form, valid until the next call.
    std::string_view Compress(std::string_view text);

  private:
    z_stream_s* stream_;
    std::string out_;
};

} // namespace platform
