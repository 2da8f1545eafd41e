#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// "Web pages", "*.html *.htm"
struct FileFilter {
    std::string name;
    std::string patterns;
};

struct FileQuestion {
    std::string title;
    std::string start; ///< the folder, or the file, that is proposed
    std::vector<FileFilter> filters;
};

/// How a file, a folder or a colour is chosen. Empty if the user cancels.
class Choosers {
  public:
    virtual ~Choosers() = default;

    /// An existing file.
    virtual std::optional<std::string> OpenFile(const FileQuestion& question) = 0;
    /// A file to write; one that exists was agreed to be replaced.
    virtual std::optional<std::string> SaveFile(const FileQuestion& question) = 0;
    virtual std::optional<std::string> Folder(std::string_view title, std::string_view start) = 0;
    /// A colour as 0xRRGGBB, starting at `rgb`.
    virtual std::optional<std::uint32_t> Color(std::string_view title, std::uint32_t rgb) = 0;
};

/// The choosers of this process. Without SetChoosers nothing is ever chosen; null brings that back.
Choosers& TheChoosers();
void SetChoosers(std::unique_ptr<Choosers> choosers);

} // namespace platform
