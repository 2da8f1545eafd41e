#include "platform/printing/pdf/PdfContent.h"

#include <fmt/core.h>

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

constexpr double kSlant = 0.2;

std::string ColorNumbers(PrintColor color) {
    return fmt::format("{:.3g} {:.3g} {:.3g}", (color & 0xFFU) / 255.0,
                       (color >> 8U & 0xFFU) / 255.0, (color >> 16U & 0xFFU) / 255.0);
}

} // namespace

std::string_view PdfContent::Draw(const PrintedPage& page) {
    out_ = ".05 0 0 .05 0 0 cm\n1 j\n";
    pageHeight_ = page.Height();
    inText_ = false;
    size_ = 0;
    fill_ = kBlack;
    pen_ = kBlack;
    penWidth_ = 0;
    for (const PageItem& item : page.Items()) {
        switch (item.kind) {
            case PageItem::Kind::Text:
                Text(page, item);
                break;
            case PageItem::Kind::Line:
                Line(item);
                break;
            case PageItem::Kind::Box:
                Box(item);
                break;
        }
    }
    EndText();
    return out_;
}

void PdfContent::Text(const PrintedPage& page, const PageItem& item) {
    const std::string_view text = page.TextOf(item);
    SetFill(item.color);
    glyphs_.clear();
    const FontIndex font = book_.FontOf(item.face);
    if (item.angle == 0 && !book_.IsSlanted(item.face) &&
        book_.ShapePlain(item.face, text, glyphs_) && IsKnown(font, text)) {
        PlainText(item, text);
    } else {
        Runs(item, text);
    }
    if (item.underline) Underline(item);
}

/// Records the characters of a plain text's glyphs, which are in glyphs_. Returns false if one of
/// the glyphs already has another character.
bool PdfContent::IsKnown(FontIndex font, std::string_view text) {
    if (known_.size() <= font) known_.resize(font + 1);
    std::vector<bool>& known = known_[font];
    known.resize(0x3000);
    std::size_t index = 0;
    for (std::size_t at = 0; at < text.size(); ++index) {
        const std::size_t begin = at;
        const char32_t code = NextCodePoint(text, at);
        if (code < known.size() && known[code]) continue;
        if (!FontOf(font).Use(glyphs_[index], text.substr(begin, at - begin))) return false;
        if (code < known.size()) known[code] = true;
    }
    return true;
}

void PdfContent::PlainText(const PageItem& item, std::string_view) {
    BeginText();
    SetFont(book_.FontOf(item.face), item.size);
    MoveText(item.x1, pageHeight_ - item.y1);
    out_ += '(';
    for (const GlyphId glyph : glyphs_)
        Glyph(glyph);
    out_ += ")Tj\n";
}

void PdfContent::Runs(const PageItem& item, std::string_view text) {
    const double em = static_cast<double>(item.size) * kTwipsPerPoint;
    for (const GlyphRun& run : book_.Shape(item.face, text))
        Run(item, run, em);
}

/// Draws a run with a matrix of its own. If its text can't be read from the glyphs, it is given
/// beside them.
void PdfContent::Run(const PageItem& item, const GlyphRun& run, double em) {
    EndText();
    PdfFont& font = FontOf(run.font);
    bool tellsText = run.isPlain;
    std::size_t at = 0;
    for (const PlacedGlyph& glyph : run.glyphs) {
        const std::size_t begin = at;
        if (run.isPlain) NextCodePoint(run.text, at);
        if (!tellsText || !font.Use(glyph.glyph, run.text.substr(begin, at - begin))) {
            tellsText = false;
            font.UseWithoutText(glyph.glyph);
        }
    }
    if (!tellsText) out_ += "/Span<</ActualText" + PdfText(run.text) + ">>BDC\n";
    BeginText();
    SetFont(run.font, item.size);
    const double turn = item.angle / 1800.0 * std::numbers::pi;
    const double right = std::cos(turn);
    const double up = std::sin(turn);
    const double slant = run.slanted ? kSlant : 0;
    double x = run.x * em;
    for (const PlacedGlyph& glyph : run.glyphs) {
        const double gx = x + glyph.dx * em;
        const double gy = glyph.dy * em;
        out_ += fmt::format("{:.4f} {:.4f} {:.4f} {:.4f} {:.1f} {:.1f} Tm(", right, up,
                            slant * right - up, slant * up + right, item.x1 + gx * right - gy * up,
                            pageHeight_ - item.y1 + gx * up + gy * right);
        Glyph(glyph.glyph);
        out_ += ")Tj\n";
        x += glyph.advance * em;
    }
    EndText();
    if (!tellsText) out_ += "EMC\n";
}

void PdfContent::Underline(const PageItem& item) {
    EndText();
    const double em = static_cast<double>(item.size) * kTwipsPerPoint;
    const double turn = item.angle / 1800.0 * std::numbers::pi;
    const double length = std::hypot(item.x2 - item.x1, item.y2 - item.y1);
    out_ += fmt::format("q {:.4f} {:.4f} {:.4f} {:.4f} {} {} cm 0 {:.1f} {:.1f} {:.1f} re f Q\n",
                        std::cos(turn), std::sin(turn), -std::sin(turn), std::cos(turn), item.x1,
                        pageHeight_ - item.y1, -0.13 * em, length, 0.05 * em);
}

void PdfContent::Line(const PageItem& item) {
    EndText();
    SetPen(item);
    out_ += fmt::format("{} {} m {} {} l S\n", item.x1, pageHeight_ - item.y1, item.x2,
                        pageHeight_ - item.y2);
}

void PdfContent::Box(const PageItem& item) {
    EndText();
    if (item.filled) SetFill(item.fill);
    if (item.pen) SetPen(item);
    const char* paint = item.filled ? (item.pen ? "B" : "f") : "S";
    out_ += fmt::format("{} {} {} {} re {}\n", item.x1, pageHeight_ - item.y2, item.x2 - item.x1,
                        item.y2 - item.y1, paint);
}

void PdfContent::BeginText() {
    if (inText_) return;
    out_ += "BT\n";
    inText_ = true;
    textX_ = 0;
    textY_ = 0;
}

void PdfContent::EndText() {
    if (!inText_) return;
    out_ += "ET\n";
    inText_ = false;
}

/// Moves to a position. Moves are relative to the start of the last text of this block.
void PdfContent::MoveText(Twips x, Twips y) {
    Number(x - textX_);
    Number(y - textY_);
    out_ += "Td";
    textX_ = x;
    textY_ = y;
}

void PdfContent::SetFont(FontIndex font, float size) {
    FontOf(font);
    if (size_ == size && font_ == font) return; // exactly what was set
    font_ = font;
    size_ = size;
    out_ += fmt::format("/F{} {:g} Tf\n", font, static_cast<double>(size) * kTwipsPerPoint);
}

void PdfContent::SetFill(PrintColor color) {
    if (fill_ == color) return;
    fill_ = color;
    out_ += ColorNumbers(color) + " rg\n";
}

void PdfContent::SetPen(const PageItem& item) {
    if (pen_ != item.color) out_ += ColorNumbers(item.color) + " RG\n";
    if (penWidth_ != item.pen) out_ += fmt::format("{} w\n", item.pen);
    pen_ = item.color;
    penWidth_ = item.pen;
}

void PdfContent::Number(std::int64_t number) {
    std::array<char, 24> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out_.append(digits.data(), end);
    out_ += ' ';
}

void PdfContent::Glyph(GlyphId glyph) {
    for (const char byte : {static_cast<char>(glyph >> 8U), static_cast<char>(glyph & 0xFFU)}) {
        if (byte == '(' || byte == ')' || byte == '\\') out_ += '\\';
        if (byte == '\r') {
            out_ += "\\r";
        } else {
            out_ += byte;
        }
    }
}

PdfFont& PdfContent::FontOf(FontIndex index) {
    const auto known = fonts_.find(index);
    if (known != fonts_.end()) return known->second;
    return fonts_.try_emplace(index, book_.File(index), pdf_.Reserve()).first->second;
}

} // namespace platform
