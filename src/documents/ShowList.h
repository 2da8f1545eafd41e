#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// One picture of a slide show, with its caption.
struct ShowPicture {
    std::string description;
    std::string path;

    friend bool operator==(const ShowPicture&, const ShowPicture&) = default;
};

/// The list file that the slide show is started with: a title, and a picture per line.
struct ShowList {
    std::string title;
    std::vector<ShowPicture> pictures;
};

inline constexpr std::string_view kShowListFile = "pr.ini";
/// The command-line switch before the list file's path.
inline constexpr std::string_view kLoadFileSwitch = "/loadfile";

std::string ShowListText(const ShowList& list);
/// Parses such a text, with any line ends; lines without a path are skipped.
ShowList ParseShowList(std::string_view text);

} // namespace documents
