#include "platform/printing/TextMeasure.h"

#include <algorithm>
#include <cmath>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

constexpr std::string_view kEllipsis = "\u2026";
/// Longer than any line of a page: such a text isn't measured as a whole.
constexpr std::size_t kLongText = 4000;
/// Also longer than a line: such a word may be broken here, since it must be broken somewhere.
constexpr std::size_t kLongWord = 1000;

Twips Rounded(double twips) {
    return static_cast<Twips>(std::lround(std::min(twips, 1e9)));
}

FaceId FaceOf(FontMetrics& metrics, const PrintStyle& style) {
    return metrics.Face(style.fontName, style.fontBold ? Weight::Bold : Weight::Regular,
                        style.fontItalic ? Slant::Italic : Slant::Upright);
}

std::string_view WithoutBlanksAtEnd(std::string_view text) {
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

/// Returns the end of the piece that begins at `begin` and may not be broken: leading blanks, then
/// a word up to a blank, a hyphen between letters or a letter that breaks anywhere.
std::size_t PieceEnd(std::string_view text, std::size_t begin) {
    std::size_t at = std::min(text.find_first_not_of(' ', begin), text.size());
    bool first = true;
    const std::size_t limit = begin + kLongWord;
    while (at < text.size() && text[at] != ' ' && at < limit) {
        std::size_t next = at + FirstCluster(text.substr(at));
        std::size_t after = at;
        const char32_t code = NextCodePoint(text, after);
        if (BreaksAnywhere(code)) return first ? next : at;
        first = false;
        at = next;
        if (code == '-' && at < text.size() && text[at] != ' ' && text[at] != '-' &&
            (text[at] < '0' || text[at] > '9')) {
            break;
        }
    }
    return at;
}

/// Returns how many bytes of `text` fit into `width`, at least its first character.
std::size_t FittingPart(const TextMeasure& measure, std::string_view text, Twips width) {
    std::size_t end = FirstCluster(text);
    Twips used = measure.Width(text.substr(0, end));
    while (end < text.size()) {
        const std::size_t length = FirstCluster(text.substr(end));
        used += measure.Width(text.substr(end, length));
        if (used > width) break;
        end += length;
    }
    return end;
}

/// Takes the next line off `text`, which holds no line end.
std::string_view TakeLine(const TextMeasure& measure, std::string_view& text, Twips width) {
    std::size_t end = 0;
    Twips used = 0;
    while (end < text.size()) {
        const std::size_t next = PieceEnd(text, end);
        used += measure.Width(text.substr(end, next - end));
        if (used > width) break;
        end = next;
    }
    // A blank at the end of the line needn't fit.
    if (end == 0) {
        const std::size_t piece = PieceEnd(text, 0);
        end = FittingPart(measure, text.substr(0, piece), width);
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    while (text.starts_with(' '))
        text.remove_prefix(1);
    return WithoutBlanksAtEnd(line);
}

} // namespace

TextMeasure::TextMeasure(FontMetrics& metrics, const PrintStyle& style, double scale)
    : metrics_(metrics),
      face_(FaceOf(metrics, style)),
      size_(static_cast<float>(std::clamp(style.fontSize * scale, 1.0, 1000.0))) {
    const FaceHeights heights = metrics.Heights(face_);
    const double em = static_cast<double>(size_) * kTwipsPerPoint;
    ascent_ = Rounded(heights.ascent * em);
    lineHeight_ = std::max(Rounded(heights.Line() * em), 1);
}

Twips TextMeasure::Width(std::string_view text) const {
    return Rounded(metrics_.Width(face_, text) * static_cast<double>(size_) * kTwipsPerPoint);
}

void BreakLines(const TextMeasure& measure, std::string_view text, Twips width,
                std::vector<MeasuredLine>& lines) {
    while (true) {
        const auto end = text.find('\n');
        std::string_view rest = WithoutBlanksAtEnd(text.substr(0, end));
        const Twips whole = rest.size() < kLongText ? measure.Width(rest) : width;
        if (rest.size() < kLongText && whole <= width) {
            lines.push_back({rest, whole});
            rest = {};
        }
        while (!rest.empty()) {
            const std::string_view line = TakeLine(measure, rest, width);
            lines.push_back({line, measure.Width(line)});
        }
        if (end == std::string_view::npos) return;
        text.remove_prefix(end + 1);
    }
}

MeasuredLine CutLine(const TextMeasure& measure, std::string_view text, Twips width,
                     std::string& scratch) {
    const auto end = text.find('\n');
    const std::string_view line = WithoutBlanksAtEnd(text.substr(0, end));
    const bool isWhole = end == std::string_view::npos && line.size() < kLongText;
    if (const Twips whole = isWhole ? measure.Width(line) : 0; isWhole && whole <= width) {
        return {line, whole};
    }
    const Twips room = width - measure.Width(kEllipsis);
    const std::size_t fitting = room > 0 ? FittingPart(measure, line, room) : 0;
    scratch = WithoutBlanksAtEnd(line.substr(0, fitting));
    scratch += kEllipsis;
    return {scratch, measure.Width(scratch)};
}

} // namespace platform
