#include "reports/screens/ReportSinks.h"

#include <utility>

namespace reports::screens {

void WatchedPages::AddPage(platform::PrintedPage page) {
    pages_.AddPage(std::move(page));
    if (!progress_(++done_)) throw Cancelled();
}

void WatchedFlow::Count() {
    constexpr std::size_t kBetween = 50; // lines, so that the question costs nothing
    if (++done_ % kBetween == 0 && !progress_(done_)) throw Cancelled();
}

void WatchedFlow::Paragraph(const platform::PrintStyle& style, std::string_view text) {
    flow_.Paragraph(style, text);
    Count();
}

void WatchedFlow::BeginTable(const platform::PrintStyle& style, const platform::PrintTable& table,
                             std::span<const platform::Twips> widths) {
    flow_.BeginTable(style, table, widths);
}

void WatchedFlow::TableRow(std::span<const std::string_view> cells) {
    flow_.TableRow(cells);
    Count();
}

void WatchedFlow::Rule(const platform::PrintStyle& style, std::string_view caption) {
    flow_.Rule(style, caption);
    Count();
}

} // namespace reports::screens
