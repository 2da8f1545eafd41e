#include "documents/FilePanelSettings.h"

#include <string>

#include <fmt/core.h>

#include "core/StoredSettings.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace documents {

namespace {

constexpr std::string_view kFileObjectsKey = R"(SOFTWARE\Vestrel\Kestrom\FileObjects)";

constexpr core::StoredMember<FilePanelSettings> kFlags[] = {
    core::Stored<&FilePanelSettings::ShowPath>("ShowPath"),
    core::Stored<&FilePanelSettings::ShowIcons>("ShowIcons"),
    core::Stored<&FilePanelSettings::AllowDandD>("AllowDandD"),
    core::Stored<&FilePanelSettings::AllowDelete>("AllowDelete"),
};

std::string KeyOf(std::string_view panel) {
    return fmt::format(R"({}\{})", kFileObjectsKey, panel);
}

/// Reads a share of the panel; any other value is replaced by the usual one.
double ReadShare(const std::string& key, std::string_view name, double usual) {
    try {
        const double share = platform::StrToDouble(core::GetRegString(key, name, ""));
        return share > 0 && share < 1 ? share : usual;
    } catch (const platform::Error&) {
        return usual;
    }
}

} // namespace

FilePanelSettings LoadFilePanelSettings(std::string_view panel) {
    const std::string key = KeyOf(panel);
    FilePanelSettings settings;
    settings.SaveSettings = core::GetRegFlag(key, "SaveSettings", settings.SaveSettings);
    if (!settings.SaveSettings) return settings;
    core::LoadSettings(key, kFlags, settings);
    settings.vSplit = ReadShare(key, "vSplit", settings.vSplit);
    settings.hSplit = ReadShare(key, "hSplit", settings.hSplit);
    return settings;
}

void SaveFilePanelSettings(std::string_view panel, const FilePanelSettings& settings) {
    const std::string key = KeyOf(panel);
    core::SetRegFlag(key, "SaveSettings", settings.SaveSettings);
    if (!settings.SaveSettings) return;
    core::SaveSettings(key, kFlags, settings);
    core::SetRegString(key, "vSplit", fmt::format("{:.4g}", settings.vSplit));
    core::SetRegString(key, "hSplit", fmt::format("{:.4g}", settings.hSplit));
}

} // namespace documents
