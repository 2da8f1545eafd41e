#include "reports/ViewerSettings.h"

#include "core/StoredSettings.h"

namespace reports {

using platform::PageSetup;

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Global\Settings)";
/// The last folder has a key of its own, without a backslash before "rpt".
constexpr std::string_view kSaveDirKey = R"(SOFTWARE\Vestrel\Global\Settingsrpt)";

/// Read under one spelling and written under the other: value names ignore case.
constexpr std::string_view kOpenExport = R"(rpt\OpenExport)";
constexpr std::string_view kOpenExportWritten = R"(rpt\Openexport)";
constexpr std::string_view kPaper = R"(rpt\Paper)";
constexpr std::string_view kOrientation = R"(rpt\Orientation)";

constexpr core::StoredMember<PageSetup> kMargins[] = {
    core::Stored<&PageSetup::marginBottom>(R"(rpt\MarginBottom)"),
    core::Stored<&PageSetup::marginLeft>(R"(rpt\MarginLeft)"),
    core::Stored<&PageSetup::marginRight>(R"(rpt\MarginRight)"),
    core::Stored<&PageSetup::marginTop>(R"(rpt\MarginTop)"),
};

} // namespace

bool ReadOpenExport() {
    return core::GetRegFlag(kKey, kOpenExport, true);
}

void SaveOpenExport(bool open) {
    core::SetRegFlag(kKey, kOpenExportWritten, open);
}

PageSetup ReadPageSetup() {
    PageSetup setup;
    setup.paper = platform::PaperOfSetting(core::GetRegString(kKey, kPaper, ""));
    core::LoadSettings(kKey, kMargins, setup);
    return setup.WithSaneMargins();
}

void SavePageSetup(const PageSetup& setup) {
    core::SaveSettings(kKey, kMargins, setup);
    core::SetRegNumber(kKey, kOrientation, static_cast<std::int32_t>(setup.orientation));
    if (setup.paper != platform::PaperOfSetting(core::GetRegString(kKey, kPaper, "")))
        core::SetRegString(kKey, kPaper, platform::PaperName(setup.paper));
}

std::string LastSaveDir() {
    return core::GetRegString(kSaveDirKey, "LastSaveDir", "");
}

void SaveLastSaveDir(std::string_view folder) {
    core::SetRegString(kSaveDirKey, "LastSaveDir", folder);
}

} // namespace reports
