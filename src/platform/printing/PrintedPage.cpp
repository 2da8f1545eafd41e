#include "platform/printing/PrintedPage.h"

#include <fmt/core.h>

namespace platform {

std::string_view PrintedPage::TextOf(const PageItem& item) const {
    return std::string_view(text_).substr(item.textBegin, item.textLength);
}

void PrintedPage::AddText(PageItem item, std::string_view text) {
    item.kind = PageItem::Kind::Text;
    item.textBegin = static_cast<std::uint32_t>(text_.size());
    item.textLength = static_cast<std::uint32_t>(text.size());
    text_ += text;
    items_.push_back(item);
}

std::string DescribePage(const PrintedPage& page) {
    std::string out = fmt::format("page {}x{}\n", page.Width(), page.Height());
    for (const PageItem& item : page.Items()) {
        switch (item.kind) {
            case PageItem::Kind::Text:
                out += fmt::format("text {},{}-{} face {} {}pt #{:06X}{}", item.x1, item.y1,
                                   item.x2, item.face, item.size, item.color,
                                   item.underline ? " underlined" : "");
                if (item.angle) out += fmt::format(" angle {}", item.angle);
                out += fmt::format(" \"{}\"\n", page.TextOf(item));
                break;
            case PageItem::Kind::Line:
                out += fmt::format("line {},{} {},{} pen {} #{:06X}\n", item.x1, item.y1, item.x2,
                                   item.y2, item.pen, item.color);
                break;
            case PageItem::Kind::Box:
                out += fmt::format("box {},{} {},{} pen {} #{:06X}", item.x1, item.y1, item.x2,
                                   item.y2, item.pen, item.color);
                out += item.filled ? fmt::format(" fill #{:06X}\n", item.fill) : "\n";
                break;
        }
    }
    return out;
}

} // namespace platform
