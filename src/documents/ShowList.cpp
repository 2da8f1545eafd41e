#include "documents/ShowList.h"

#include <algorithm>

#include "platform/values/Text.h"

namespace documents {

namespace {

/// Returns where the path in a line begins. A description may contain a bar too, so a bar before a
/// full path takes precedence over the first bar.
std::size_t BarOf(std::string_view line) {
    const std::size_t before = line.find("|/");
    return before != std::string_view::npos ? before : line.find('|');
}

} // namespace

std::string ShowListText(const ShowList& list) {
    std::string text = platform::OneLine(list.title) + "\n";
    for (const ShowPicture& picture : list.pictures) {
        text +=
            platform::OneLine(picture.description) + "|" + platform::OneLine(picture.path) + "\n";
    }
    return text;
}

ShowList ParseShowList(std::string_view text) {
    ShowList list;
    for (bool isTitle = true; !text.empty(); isTitle = false) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (isTitle) {
            list.title = line;
            continue;
        }
        const std::size_t bar = BarOf(line);
        if (bar == std::string_view::npos || platform::Trim(line.substr(bar + 1)).empty()) continue;
        list.pictures.push_back(
            {std::string(line.substr(0, bar)), std::string(line.substr(bar + 1))});
    }
    return list;
}

} // namespace documents
