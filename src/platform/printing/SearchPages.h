#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/printing/PrintedDocument.h"

namespace platform {

enum class SearchDirection : std::uint8_t { Forward, Backward };

/// A place of a text on a page.
struct PageMatch {
    std::size_t page = 0;
    std::size_t item = 0;  ///< of the page's items
    std::size_t begin = 0; ///< of the item's text, in bytes
    std::size_t length = 0;
    bool isStart = false; ///< true before the first match: the search begins with the page itself

    friend bool operator==(const PageMatch&, const PageMatch&) = default;
};

/// Returns the next occurrence of `text` after `from`, or the one before it, ignoring case; after
/// the last page the search continues on the first. A text is found only within one line. Returns
/// nothing if the document doesn't contain it.
std::optional<PageMatch> SearchPages(const PrintedDocument& document, std::string_view text,
                                     const PageMatch& from, SearchDirection direction);

} // namespace platform
