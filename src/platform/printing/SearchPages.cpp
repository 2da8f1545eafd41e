#include "platform/printing/SearchPages.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "platform/values/Text.h"

namespace platform {

namespace {

auto Place(const PageMatch& match) {
    return std::tuple(match.page, match.item, match.begin);
}

/// Returns every place on one page, in the order of its items.
std::vector<PageMatch> MatchesOf(const PrintedPage& page, std::size_t number,
                                 const std::string& wanted) {
    std::vector<PageMatch> matches;
    for (std::size_t i = 0; i < page.Items().size(); ++i) {
        const PageItem& item = page.Items()[i];
        if (item.kind != PageItem::Kind::Text) continue;
        const std::string_view text = page.TextOf(item);
        const std::string lower = ToLower(text);
        for (auto at = lower.find(wanted); at != std::string::npos;
             at = lower.find(wanted, at + wanted.size())) {
            PageMatch match{.page = number, .item = i, .begin = at, .length = wanted.size()};
            // Some letters have more bytes in the other case: then the place within the text isn't
            // known.
            if (lower.size() != text.size()) {
                match.begin = 0;
                match.length = text.size();
            }
            matches.push_back(match);
        }
    }
    return matches;
}

} // namespace

std::optional<PageMatch> SearchPages(const PrintedDocument& document, std::string_view text,
                                     const PageMatch& from, SearchDirection direction) {
    const std::size_t count = document.PageCount();
    const std::string wanted = ToLower(text);
    if (count == 0 || wanted.empty()) return std::nullopt;
    const bool forward = direction == SearchDirection::Forward;
    // The first page is searched twice: at first from the place on, and at the end up to the place.
    for (std::size_t step = 0; step <= count; ++step) {
        const std::size_t number =
            (forward ? from.page + step : from.page + 2 * count - step) % count;
        std::vector<PageMatch> matches = MatchesOf(document.Page(number), number, wanted);
        if (!forward) std::ranges::reverse(matches);
        const auto found = std::ranges::find_if(matches, [&](const PageMatch& match) {
            if (step > 0 || from.isStart) return true;
            return forward ? Place(match) > Place(from) : Place(match) < Place(from);
        });
        if (found != matches.end()) return *found;
    }
    return std::nullopt;
}

} // namespace platform
