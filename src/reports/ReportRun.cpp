#include "reports/ReportRun.h"

#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "reports/ReportError.h"
#include "reports/ReportStyles.h"
#include "reports/Tags.h"
#include "reports/ViewerSettings.h"

namespace reports {

using platform::Date;
using platform::PrintSurface;

namespace {

Date YearEarlier(Date day) {
    return platform::DateAdd(platform::Interval::Year, -1, day);
}

} // namespace

void ChooseForRecord(ReportDef& report, std::int32_t selectedId) {
    const Date today = platform::Today();
    report.SelectedId = selectedId;
    report.DetailLevel = Detail::Full;
    report.SelectedYear = std::to_string(today.Year());
    report.DateChoice = DateRange::Select;
    report.StartDate = YearEarlier(today);
    report.EndDate = today;
}

ReportRun::ReportRun(ReportDef& report)
    : ReportRun(report, std::filesystem::path(core::App().ReportPath) / report.FileName) {}

ReportRun::ReportRun(ReportDef& report, std::filesystem::path file)
    : report_(&report), path_(std::move(file)), file_(LoadReportFile(path_)) {
    if (file_.FileOrientation) report_->Orientation = *file_.FileOrientation;
    ResolveDates();
    if (report_->SelectItem != core::kNone)
        selectedDescription_ = core::GetDescription(report_->SelectItem, report_->SelectedId);
}

/// The file's rule takes precedence over the user's choice, which counts only if the file has no
/// rule or leaves the dates to the user.
void ReportRun::ResolveDates() {
    const bool isFixed =
        report_->DateRange != DateRange::None && report_->DateRange != DateRange::Select;
    const Date today = platform::Today();
    switch (isFixed ? report_->DateRange : report_->DateChoice) {
        case DateRange::CurrentYear:
            start_ = Date(today.Year(), 1, 1);
            end_ = today;
            return;
        case DateRange::TrailingYear:
            start_ = YearEarlier(today);
            end_ = today;
            return;
        case DateRange::PreviousYear:
            start_ = Date(today.Year() - 1, 1, 1);
            end_ = Date(today.Year() - 1, 12, 31);
            return;
        case DateRange::None:
        case DateRange::Select:
            start_ = report_->StartDate;
            end_ = report_->EndDate;
            return;
    }
}

platform::PageSetup ReportRun::Setup() const {
    platform::PageSetup setup = ReadPageSetup();
    setup.orientation = report_->Orientation;
    return setup;
}

std::string ReportRun::ExpandRunTags(std::string text) const {
    ReplaceTag(text, "%SELECTEDID%", std::to_string(report_->SelectedId));
    ReplaceTag(text, "%SELECTEDYEAR%", report_->SelectedYear);
    ReplaceTag(text, "%SELECTEDDESCRIPTION%", selectedDescription_);
    ReplaceTag(text, "%STARTDATE%", start_.ToText());
    ReplaceTag(text, "%ENDDATE%", end_.ToText());
    return text;
}

void ReportRun::Draw(PrintSurface& page) {
    try {
        Start(page);
        RunSections(page);
        page.EndDoc();
    } catch (const ReportError& fault) {
        throw ReportError(path_.filename().string(), fault);
    }
}

void ReportRun::Start(PrintSurface& page) const {
    page.SetUp(Setup());
    CreateStyles(page);
    page.SetDocName(report_->Description);
    page.SetInformation(core::Config().CompanyName, file_.Title);
    platform::PageFrame frame;
    if (file_.ShowHeader)
        frame.header = {core::Config().CompanyName, "", platform::Today().ToText()};
    if (file_.ShowFooter) frame.footer = {report_->Description, "", "Page %d"};
    page.SetFrame(std::move(frame));
    page.ApplyStyle("Default");
    page.StartDoc();
    if (file_.ShowTitle) DrawTitle(page);
    if (!file_.SubTitle.empty()) {
        page.ApplyStyle("Info");
        page.Text(ExpandRunTags(file_.SubTitle));
    }
}

void ReportRun::DrawTitle(PrintSurface& page) const {
    constexpr platform::PrintColor kBoxColor = 0xE0E0E0;
    constexpr platform::Twips kBoxHeight = 800;
    constexpr platform::Twips kInset = 100;
    constexpr platform::Twips kToText = 900;
    constexpr double kSmallestTitle = 8;

    const platform::Twips left = page.CurrentX();
    const platform::Twips top = page.CurrentY();
    page.Style().brushColor = kBoxColor;
    page.Style().brushStyle = platform::BrushStyle::Solid;
    page.Style().penStyle = platform::PenStyle::None;
    page.DrawRectangle(left, top, left + page.PrintWidth(), top + kBoxHeight);
    page.MoveTo(left + kInset, top + kInset);
    page.ApplyStyle("Title");
    // The box is one line high, so a longer title gets a smaller font.
    while (page.TextWidth(file_.Title) > page.PrintWidth() - 2 * kInset &&
           page.Style().fontSize > kSmallestTitle) {
        page.Style().fontSize -= 1;
    }
    page.Text(file_.Title);
    page.ApplyStyle("Default");
    page.MoveTo(0, top + kToText);
}

} // namespace reports
