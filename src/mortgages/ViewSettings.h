#pragma once

namespace mortgages {

/// How the schedule is drawn by years; the numbers are stored in the settings.
enum class ChartType { Lines = 0, Bars = 1, Areas = 2 };

/// The parts of the schedule that a mortgage's screen shows; stored on this machine.
struct ViewSettings {
    bool detail = false;
    bool yearToDate = false;
    bool cumulative = false;
    bool legend = true;
    ChartType chart = ChartType::Lines;
};

ViewSettings LoadViewSettings();
void SaveViewSettings(const ViewSettings& settings);

} // namespace mortgages
