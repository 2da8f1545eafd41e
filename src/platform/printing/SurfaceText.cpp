#include <algorithm>

#include "platform/printing/SurfaceState.h"
#include "platform/printing/Unicode.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

/// The short line before the caption of a separator line.
constexpr Twips kCaptionLead = 360;

/// A heading or caption goes to the next page unless this many lines fit below it.
constexpr Twips kLinesKept = 3;

TextInk InkOf(FontMetrics& metrics, const PrintStyle& style) {
    return {.measure = TextMeasure(metrics, style),
            .color = style.textColor,
            .underline = style.fontUnderline,
            .angle = style.textAngle};
}

Twips AlignedX(TextAlign align, Twips left, Twips right, Twips width) {
    if (align == TextAlign::Right) return std::max(right - width, left);
    if (align == TextAlign::Center) return std::max((left + right - width) / 2, left);
    return left;
}

} // namespace

Twips PrintSurface::TextWidth(std::string_view text) const {
    const TextMeasure measure(metrics_, style_);
    std::string cleaned;
    text = CleanText(text, cleaned);
    Twips widest = 0;
    while (true) {
        const auto end = text.find('\n');
        widest = std::max(widest, measure.Width(text.substr(0, end)));
        if (end == std::string_view::npos) return widest;
        text.remove_prefix(end + 1);
    }
}

Twips PrintSurface::TextHeight(std::string_view text) const {
    const auto lines = 1 + std::ranges::count(text, '\n');
    return TextMeasure(metrics_, style_).LineHeight() * static_cast<Twips>(lines);
}

/// Returns true if something of this height goes to the next page; if it is taller than a page, it
/// doesn't.
bool PrintSurface::Breaks(Twips height) const {
    return y_ > MarginTop() && y_ + height > PageHeight() - MarginBottom();
}

void PrintSurface::Text(std::string_view text) {
    std::string cleaned;
    const std::string_view clean = CleanText(text, cleaned);
    if (state_->flow) state_->flow->Paragraph(style_, clean);
    y_ += style_.spaceBefore;
    PrintLines(clean);
    y_ += style_.spaceAfter;
    x_ = MarginLeft();
}

void PrintSurface::PrintLines(std::string_view clean) {
    if (!state_->maker.HasSink()) return;
    const TextInk ink = InkOf(metrics_, style_);
    const Twips height = ink.measure.LineHeight();
    const Twips left = x_ <= MarginLeft() ? MarginLeft() + style_.indentLeft : x_;
    const Twips right = PageWidth() - MarginRight();
    state_->lines.clear();
    BreakLines(ink.measure, clean, std::max(right - left, 1), state_->lines);

    const auto count = static_cast<Twips>(std::min<std::size_t>(state_->lines.size(), 8));
    if (style_.heading != HeadingLevel::None && Breaks((count + kLinesKept) * height)) NewPage();

    for (const MeasuredLine& line : state_->lines) {
        if (Breaks(height)) NewPage();
        state_->maker.Text(ink, AlignedX(style_.align, left, right, line.width), y_, line);
        y_ += height;
    }
}

void PrintSurface::TextAt(std::string_view text) {
    std::string cleaned;
    std::string_view clean = CleanText(text, cleaned);
    clean = clean.substr(0, clean.find('\n'));
    const TextInk ink = InkOf(metrics_, style_);
    state_->maker.Text(ink, x_, y_, {clean, ink.measure.Width(clean)});
}

void PrintSurface::SepLine(std::string_view caption) {
    std::string cleaned;
    std::string cut;
    caption = CleanText(caption, cleaned);
    const bool plain = Trim(caption) == "-";
    const TextInk ink = InkOf(metrics_, style_);
    const Twips height = ink.measure.LineHeight();
    const bool isKept = !plain && locatedPage_ != PageCount();
    if (Breaks(isKept ? (1 + kLinesKept) * height : height)) NewPage();
    if (state_->flow) state_->flow->Rule(style_, plain ? std::string_view() : caption);

    const Twips left = MarginLeft();
    const Twips right = PageWidth() - MarginRight();
    const Twips middle = y_ + height / 2;
    if (plain) {
        DrawLine(left, middle, right, middle);
    } else {
        const Twips gap = ink.measure.Width("i");
        const Twips start = left + kCaptionLead + gap;
        const MeasuredLine line = CutLine(ink.measure, caption, right - start - gap, cut);
        DrawLine(left, middle, left + kCaptionLead, middle);
        state_->maker.Text(ink, start, y_, line);
        if (const Twips end = start + line.width + gap; end < right) {
            DrawLine(end, middle, right, middle);
        }
    }
    MoveTo(left, y_ + height);
}

void PrintSurface::Rule() {
    if (state_->flow) state_->flow->Rule(style_, "");
    DrawLine(MarginLeft(), y_, PageWidth() - MarginRight(), y_);
}

} // namespace platform
