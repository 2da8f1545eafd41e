#pragma once

#include <string_view>

namespace documents {

/// The layout of a file panel on this machine.
struct FilePanelSettings {
    /// Whether the other settings are stored and read.
    bool SaveSettings = true;
    bool ShowPath = false;
    bool ShowIcons = true;
    bool AllowDandD = true;
    bool AllowDelete = true;
    /// The shares of the panel's width and height taken by the list and the picture.
    double vSplit = 0.5;
    double hSplit = 0.4;
};

/// Load and save the settings of a file panel; `panel` is the name under which they are stored.
FilePanelSettings LoadFilePanelSettings(std::string_view panel);
void SaveFilePanelSettings(std::string_view panel, const FilePanelSettings& settings);

} // namespace documents
