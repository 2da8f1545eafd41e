#pragma once

#include <string_view>

namespace documents {

/// How a panel of files is set up on this machine.
struct FilePanelSettings {
    /// The others are remembered, and read.
    bool SaveSettings = true;
    bool ShowPath = false;
    bool ShowIcons = true;
    bool AllowDandD = true;
    bool AllowDelete = true;
    /// Shares of the panel's width and height that the list and the picture take.
    double vSplit = 0.5;
    double hSplit = 0.4;
};

/// `panel` names the panel, so that two can differ.
FilePanelSettings LoadFilePanelSettings(std::string_view panel);
void SaveFilePanelSettings(std::string_view panel, const FilePanelSettings& settings);

} // namespace documents
