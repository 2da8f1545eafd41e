#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/ByteSink.h"
#include "platform/printing/pdf/Deflate.h"

namespace platform {

using PdfObject = std::uint32_t;

/// The objects of a PDF file, written one after the other, and the table of their places.
class PdfFile {
  public:
    explicit PdfFile(ByteSink& sink) : sink_(sink) {}

    void Begin();
    /// Returns the number of an object that will be written later.
    PdfObject Reserve();
    void Write(PdfObject object, std::string_view body);
    /// Writes a compressed stream; `entries` are further entries of its dictionary.
    void WriteStream(PdfObject object, std::string_view content, std::string_view entries = {});
    /// Writes the table and the trailer; all reserved objects must have been written.
    void End(PdfObject catalog, PdfObject info);

  private:
    void Put(std::string_view bytes);
    void Open(PdfObject object);

    ByteSink& sink_;
    Deflate deflate_;
    std::uint64_t position_ = 0;
    std::vector<std::uint64_t> places_{0}; ///< of each object; 0 is no object
};

/// Returns a text as a PDF string: UTF-16 in hexadecimal, with its brackets.
std::string PdfText(std::string_view text);
/// Returns the UTF-16 of a text in hexadecimal.
std::string Utf16Hex(std::string_view text);

} // namespace platform
