#include "platform/printing/pdf/PdfFile.h"

#include <fmt/core.h>

#include "platform/printing/Unicode.h"

namespace platform {

void PdfFile::Put(std::string_view bytes) {
    sink_.Write(bytes);
    position_ += bytes.size();
}

// The second line marks the file as binary.
void PdfFile::Begin() {
    Put("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n");
}

PdfObject PdfFile::Reserve() {
    places_.push_back(0);
    return static_cast<PdfObject>(places_.size() - 1);
}

void PdfFile::Open(PdfObject object) {
    places_[object] = position_;
    Put(fmt::format("{} 0 obj\n", object));
}

void PdfFile::Write(PdfObject object, std::string_view body) {
    Open(object);
    Put(body);
    Put("\nendobj\n");
}

void PdfFile::WriteStream(PdfObject object, std::string_view content, std::string_view entries) {
    const std::string_view packed = deflate_.Compress(content);
    Open(object);
    Put(fmt::format("<</Length {}/Filter/FlateDecode{}>>\nstream\n", packed.size(), entries));
    Put(packed);
    Put("\nendstream\nendobj\n");
}

void PdfFile::End(PdfObject catalog, PdfObject info) {
    const std::uint64_t table = position_;
    std::string text = fmt::format("xref\n0 {}\n0000000000 65535 f \n", places_.size());
    for (std::size_t i = 1; i < places_.size(); ++i) {
        text += fmt::format("{:010} 00000 n \n", places_[i]);
    }
    text += fmt::format("trailer\n<</Size {}/Root {} 0 R/Info {} 0 R>>\nstartxref\n{}\n%%EOF\n",
                        places_.size(), catalog, info, table);
    Put(text);
}

std::string Utf16Hex(std::string_view text) {
    std::string hex;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t code = NextCodePoint(text, at);
        if (code < 0x10000) {
            hex += fmt::format("{:04X}", static_cast<unsigned>(code));
        } else {
            hex += fmt::format("{:04X}{:04X}", 0xD800U + ((code - 0x10000) >> 10U),
                               0xDC00U + ((code - 0x10000) & 0x3FFU));
        }
    }
    return hex;
}

std::string PdfText(std::string_view text) {
    return "<FEFF" + Utf16Hex(text) + ">";
}

} // namespace platform
