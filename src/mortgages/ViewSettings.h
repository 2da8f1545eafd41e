#pragma once

namespace mortgages {

/// How the schedule is drawn by years, by the numbers that the settings keep.
enum class ChartType { Lines = 0, Bars = 1, Areas = 2 };

/// What the screen of a mortgage shows of the schedule; kept for the machine.
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
