#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// One picture of a show, with what stands below it.
struct ShowPicture {
    std::string description;
    std::string path;

    friend bool operator==(const ShowPicture&, const ShowPicture&) = default;
};

/// The list file that a picture show is started with: a title, and a picture a line.
struct ShowList {
    std::string title;
    std::vector<ShowPicture> pictures;
};

inline constexpr std::string_view kShowListFile = "pr.ini";
/// The switch in front of the list file's path on the command line.
inline constexpr std::string_view kLoadFileSwitch = "/loadfile";

std::string ShowListText(const ShowList& list);
/// Reads such a text, of any line ends; lines without a path are passed over.
ShowList ParseShowList(std::string_view text);

} // namespace documents
