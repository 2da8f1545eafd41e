#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// A writer passes its bytes on when it has this many.
inline constexpr std::size_t kBytesAtOnce = 32'768;

/// Receives the bytes of a written document.
class ByteSink {
  public:
    virtual ~ByteSink() = default;
    /// Throws an Error if the bytes can't be written.
    virtual void Write(std::string_view bytes) = 0;
};

class StringSink : public ByteSink {
  public:
    void Write(std::string_view bytes) override { text_ += bytes; }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

/// A file that gets its name only when it is complete: until Commit an older file of that name
/// stays, and without Commit nothing is left. If the name belongs to a pipe, for example, it is
/// written to directly.
class OutputFile : public ByteSink {
  public:
    /// Throws an Error with the reason if the file can't be made.
    explicit OutputFile(std::filesystem::path path);
    ~OutputFile() override;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void Write(std::string_view bytes) override;
    /// Throws an Error with the reason, such as a full disk.
    void Commit();

  private:
    [[noreturn]] void Fail();

    std::filesystem::path path_;
    std::string draft_; ///< empty if the file is written in place
    std::FILE* file_ = nullptr;
};

/// Bytes that are held in a temporary file until they are needed.
class Spool : public ByteSink {
  public:
    Spool();
    ~Spool() override;
    Spool(const Spool&) = delete;
    Spool& operator=(const Spool&) = delete;

    void Write(std::string_view bytes) override;
    void CopyTo(ByteSink& sink);

  private:
    std::FILE* file_;
};

} // namespace platform
