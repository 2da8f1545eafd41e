#include "platform/printing/PageMaker.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

std::uint16_t PenOf(const PrintStyle& style) {
    if (style.penStyle == PenStyle::None) return 0;
    return static_cast<std::uint16_t>(std::clamp(style.penWidth, 1, 1440));
}

/// Returns the distance from the paper's edge of a header of this height in a margin.
Twips FrameDistance(Twips margin, Twips height) {
    constexpr Twips kUsual = kTwipsPerInch / 2;
    constexpr Twips kGap = 100;
    return std::clamp(margin - height - kGap, 0, kUsual);
}

std::string WithPageNumber(std::string_view text, int number) {
    std::string out(text);
    const std::string digits = std::to_string(number);
    for (auto at = out.find("%d"); at != std::string::npos; at = out.find("%d", at)) {
        out.replace(at, 2, digits);
        at += digits.size();
    }
    return out;
}

} // namespace

void PageMaker::Begin(const DocumentInfo& info) {
    info_ = info;
    count_ = 0;
    if (sink_) sink_->BeginPages(info_);
    BeginPage();
}

void PageMaker::BeginPage() {
    ++count_;
    page_ = PrintedPage(info_.setup.PageWidth(), info_.setup.PageHeight());
    if (sink_) DrawFrame();
}

void PageMaker::NewPage() {
    if (sink_) sink_->AddPage(std::move(page_));
    BeginPage();
}

void PageMaker::End() {
    if (count_ == 0 || !sink_) return;
    sink_->AddPage(std::move(page_));
    sink_->EndPages();
}

void PageMaker::Text(const TextInk& ink, Twips x, Twips top, const MeasuredLine& line) {
    if (line.text.empty() || !sink_) return;
    PageItem item;
    item.underline = ink.underline;
    item.face = ink.measure.Face();
    item.size = ink.measure.Size();
    item.angle = static_cast<std::int16_t>(ink.angle % 3600);
    item.color = ink.color;
    item.x1 = x;
    item.y1 = top + ink.measure.Ascent();
    item.x2 = x + line.width;
    item.y2 = item.y1;
    if (item.angle != 0) {
        const double turn = item.angle / 1800.0 * std::numbers::pi;
        const auto along = [&turn](double right, double down) {
            return std::pair(std::lround(right * std::cos(turn) + down * std::sin(turn)),
                             std::lround(down * std::cos(turn) - right * std::sin(turn)));
        };
        const auto [dx, dy] = along(0, ink.measure.Ascent());
        const auto [ex, ey] = along(line.width, ink.measure.Ascent());
        item.x1 = x + static_cast<Twips>(dx);
        item.y1 = top + static_cast<Twips>(dy);
        item.x2 = x + static_cast<Twips>(ex);
        item.y2 = top + static_cast<Twips>(ey);
    }
    page_.AddText(item, line.text);
}

void PageMaker::Line(const PrintStyle& style, Twips x1, Twips y1, Twips x2, Twips y2) {
    const std::uint16_t pen = PenOf(style);
    if (pen == 0 || !sink_) return;
    PageItem item;
    item.kind = PageItem::Kind::Line;
    item.pen = pen;
    item.color = style.penColor;
    item.x1 = x1;
    item.y1 = y1;
    item.x2 = x2;
    item.y2 = y2;
    page_.AddShape(item);
}

void PageMaker::Box(const PrintStyle& style, Twips x1, Twips y1, Twips x2, Twips y2) {
    if (!sink_) return;
    PageItem item;
    item.kind = PageItem::Kind::Box;
    item.pen = PenOf(style);
    item.color = style.penColor;
    item.filled = style.brushStyle == BrushStyle::Solid;
    item.fill = style.brushColor;
    item.x1 = std::min(x1, x2);
    item.y1 = std::min(y1, y2);
    item.x2 = std::max(x1, x2);
    item.y2 = std::max(y1, y2);
    if (item.pen || item.filled) page_.AddShape(item);
}

void PageMaker::DrawFrame() {
    const PrintStyle& style = info_.frame.style;
    const TextInk ink{.measure = TextMeasure(metrics_, style),
                      .color = style.textColor,
                      .underline = style.fontUnderline};
    const Twips height = ink.measure.LineHeight();
    DrawFrameLine(info_.frame.header, ink, FrameDistance(info_.setup.marginTop, height));
    DrawFrameLine(
        info_.frame.footer, ink,
        info_.setup.PageHeight() - height - FrameDistance(info_.setup.marginBottom, height));
}

void PageMaker::DrawFrameLine(const FrameLine& line, const TextInk& ink, Twips top) {
    // The right part, which holds the date or the page number, is drawn whole; the others get the
    // remaining room.
    const Twips gap = ink.measure.Width("  ");
    const Twips width = Right() - Left();
    const Twips right = DrawPart(line.right, ink, TextAlign::Right, top, width);
    const Twips center =
        DrawPart(line.center, ink, TextAlign::Center, top, width - 2 * (right + gap));
    const Twips left = center ? (width - center) / 2 - gap : width - right - gap;
    DrawPart(line.left, ink, TextAlign::Left, top, left);
}

Twips PageMaker::DrawPart(std::string_view part, const TextInk& ink, TextAlign align, Twips top,
                          Twips width) {
    if (part.empty() || width <= 0) return 0;
    const std::string numbered = WithPageNumber(part, count_);
    std::string clean;
    std::string cut;
    const MeasuredLine line = CutLine(ink.measure, CleanText(numbered, clean), width, cut);
    Twips x = Left();
    if (align == TextAlign::Right) x = Right() - line.width;
    if (align == TextAlign::Center) x = (Left() + Right() - line.width) / 2;
    Text(ink, x, top, line);
    return line.width;
}

} // namespace platform
