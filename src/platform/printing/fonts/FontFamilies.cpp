#include "platform/printing/fonts/FontFamilies.h"

#include <array>
#include <string>

#include "platform/system/Paths.h"
#include "platform/values/Text.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

struct Family {
    std::array<std::string_view, 4> files; ///< regular, bold, italic, bold italic; empty to slant
    std::array<std::string_view, 6> names;
};

constexpr std::array<Family, 6> kFamilies = {{
    {{"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf", "LiberationSans-Italic.ttf",
      "LiberationSans-BoldItalic.ttf"},
     {"Arial", "Helvetica", "Liberation Sans", "MS Sans Serif", "Sans", ""}},
    // The packaged Tahoma has Tahoma's widths, but its bold is only the regular font set wider. It
    // is replaced by a font with real bold letters, whose widths differ by a fiftieth.
    {{"tahoma.ttf", "DejaVuSansCondensed-Bold.ttf", "", "DejaVuSansCondensed-BoldOblique.ttf"},
     {"Tahoma", "", "", "", "", ""}},
    {{"LiberationSerif-Regular.ttf", "LiberationSerif-Bold.ttf", "LiberationSerif-Italic.ttf",
      "LiberationSerif-BoldItalic.ttf"},
     {"Times New Roman", "Times", "Liberation Serif", "Georgia", "MS Serif", "Serif"}},
    {{"LiberationMono-Regular.ttf", "LiberationMono-Bold.ttf", "LiberationMono-Italic.ttf",
      "LiberationMono-BoldItalic.ttf"},
     {"Courier New", "Courier", "Liberation Mono", "Consolas", "Lucida Console", "Monospace"}},
    {{"LiberationSansNarrow-Regular.ttf", "LiberationSansNarrow-Bold.ttf",
      "LiberationSansNarrow-Italic.ttf", "LiberationSansNarrow-BoldItalic.ttf"},
     {"Arial Narrow", "Liberation Sans Narrow", "", "", "", ""}},
    {{"DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSans-Oblique.ttf",
      "DejaVuSans-BoldOblique.ttf"},
     {"Verdana", "DejaVu Sans", "", "", "", ""}},
}};

const Family& FamilyOf(std::string_view name) {
    name = Trim(name);
    for (const Family& family : kFamilies) {
        for (const std::string_view known : family.names) {
            if (!known.empty() && EqualIgnoringCase(known, name)) return family;
        }
    }
    return kFamilies.front();
}

} // namespace

FaceSource SourceOf(std::string_view family, Weight weight, Slant slant) {
    const auto& files = FamilyOf(family).files;
    const std::size_t bold = weight == Weight::Bold ? 1 : 0;
    if (slant == Slant::Upright) return {files[bold], false};
    if (const std::string_view italic = files[2 + bold]; !italic.empty()) return {italic, false};
    return {files[bold], true};
}

std::vector<std::string_view> FallbackFiles(Weight weight) {
    if (weight == Weight::Bold) {
        return {"DejaVuSans-Bold.ttf", "DejaVuSans.ttf", "DroidSansFallbackFull.ttf",
                "NanumGothicBold.ttf"};
    }
    return {"DejaVuSans.ttf", "DroidSansFallbackFull.ttf", "NanumGothic.ttf"};
}

fs::path FindFontFile(std::string_view name) {
    static constexpr std::array<std::string_view, 7> kFolders = {
        "/usr/share/fonts/truetype/liberation",
        "/usr/share/fonts/truetype/liberation2",
        "/usr/share/wine/fonts",
        "/usr/share/fonts/truetype/dejavu",
        "/usr/share/fonts/truetype/droid",
        "/usr/share/fonts/truetype/nanum",
        "/usr/share/fonts/truetype"};
    std::error_code failure;
    const auto isThere = [&](const fs::path& path) { return fs::is_regular_file(path, failure); };
    if (fs::path own = ExecutablePath().parent_path() / "fonts" / name; isThere(own)) return own;
    for (const std::string_view folder : kFolders) {
        if (fs::path path = fs::path(folder) / name; isThere(path)) return path;
    }
    for (const fs::path& home : {DataHome() / "fonts", fs::path("/usr/local/share/fonts")}) {
        if (fs::path path = home / name; isThere(path)) return path;
    }
    return {};
}

} // namespace platform
