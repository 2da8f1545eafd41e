#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A choice of files in a dialog, such as "Web pages" with the patterns "*.html *.htm".
struct FileFilter {
    std::string name;
    std::string patterns;
};

struct FileQuestion {
    std::string title;
    std::string start; ///< the folder, or the file, that is proposed
    std::vector<FileFilter> filters;
};

/// Lets the user choose a file, a folder or a colour. Each function returns nothing if the user
/// cancels.
class Choosers {
  public:
    virtual ~Choosers() = default;

    /// Asks for an existing file.
    virtual std::optional<std::string> OpenFile(const FileQuestion& question) = 0;
    /// Asks for a file to write; if it exists, the user has agreed to replace it.
    virtual std::optional<std::string> SaveFile(const FileQuestion& question) = 0;
    virtual std::optional<std::string> Folder(std::string_view title, std::string_view start) = 0;
    /// Asks for a colour as 0xRRGGBB, starting at `rgb`.
    virtual std::optional<std::uint32_t> Color(std::string_view title, std::uint32_t rgb) = 0;
};

/// Returns the choosers of this process. Without SetChoosers nothing is ever chosen; setting null
/// restores that.
Choosers& TheChoosers();
void SetChoosers(std::unique_ptr<Choosers> choosers);

} // namespace platform
