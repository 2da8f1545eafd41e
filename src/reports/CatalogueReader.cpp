#include "reports/CatalogueReader.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/RecordKinds.h"
#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "reports/LineGrammar.h"

namespace reports {

namespace {

template <typename Meaning>
struct Word {
    std::string_view word;
    Meaning meaning;
};

struct FormMeaning {
    RecordForm form;
    std::int16_t icon;
};

constexpr auto kForms = std::to_array<Word<FormMeaning>>({
    {"ACCOUNT", {RecordForm::Account, 1}},
    {"BUILDING", {RecordForm::Building, 5}},
    {"LEASE", {RecordForm::Lease, 2}},
    {"MILEAGE", {RecordForm::Mileage, 3}},
    {"MORTGAGE", {RecordForm::Mortgage, 4}},
    {"TENANT", {RecordForm::Tenant, 6}},
    {"TRANSACTION", {RecordForm::Transaction, 7}},
    {"UNIT", {RecordForm::Unit, 5}},
    {"WORK ORDER", {RecordForm::WorkOrder, 8}},
    {"WORKORDER", {RecordForm::WorkOrder, 8}},
});

constexpr auto kTabs = std::to_array<Word<CatalogueTab>>({
    {"NONE", CatalogueTab::All},
    {"ALL", CatalogueTab::All},
    {"DETAIL", CatalogueTab::ItemDetail},
    {"FINANCIAL", CatalogueTab::Financial},
    {"SUMMARY", CatalogueTab::Summary},
});

/// "WORKORDER" is a form but not an icon.
constexpr auto kIcons = std::to_array<Word<std::int16_t>>({
    {"ACCOUNT", 1},
    {"LEASE", 2},
    {"MILEAGE", 3},
    {"MORTGAGE", 4},
    {"BUILDING", 5},
    {"PROPERTY", 5},
    {"UNIT", 5},
    {"TENANT", 6},
    {"TRANSACTION", 7},
    {"WORK ORDER", 8},
});

constexpr auto kDateRanges = std::to_array<Word<DateRange>>({
    {"NONE", DateRange::None},
    {"CURYEAR", DateRange::CurrentYear},
    {"TRAILYEAR", DateRange::TrailingYear},
    {"PREVYEAR", DateRange::PreviousYear},
    {"SELECT", DateRange::Select},
});

/// Returns the meaning of a value that is one of the words, ignoring case and blanks around it.
template <typename Words>
auto Find(const Words& words, std::string_view value)
    -> std::optional<decltype(words.front().meaning)> {
    const auto found = std::ranges::find(words, platform::ToUpper(platform::Trim(value)),
                                         [](const auto& word) { return word.word; });
    if (found == words.end()) return std::nullopt;
    return found->meaning;
}

void ReadForm(ReportDef& report, std::string_view value) {
    if (const auto form = Find(kForms, value)) {
        report.Form = form->form;
        report.Icon = form->icon;
    }
}

void ReadPrint(ReportDef& report, std::string_view value) {
    if (platform::StrToBool(value)) report.Kind = ReportKind::Print;
}

void ReadTab(ReportDef& report, std::string_view value) {
    report.Tab = Find(kTabs, value).value_or(report.Tab);
}

std::optional<core::RecordKind> FindKind(std::string_view value) {
    const auto found = std::ranges::find_if(core::RecordKinds, [value](std::string_view name) {
        return platform::EqualIgnoringCase(name, value);
    });
    if (found == core::RecordKinds.end()) return std::nullopt;
    return static_cast<core::RecordKind>(found - core::RecordKinds.begin());
}

void ReadSelectItem(ReportDef& report, std::string_view value) {
    report.SelectItem = FindKind(value).value_or(report.SelectItem);
}

struct CatalogueKey {
    std::string_view key;
    bool ofReceipts;
    void (*read)(ReportDef& report, std::string_view value);
};

constexpr auto kKeys = std::to_array<CatalogueKey>({
    {"DESCRIPTION", true, [](ReportDef& r, std::string_view v) { r.Description = v; }},
    {"NOTES", true, [](ReportDef& r, std::string_view v) { r.Notes = v; }},
    {"FORM", true, ReadForm},
    {"TAB", false, ReadTab},
    {"TYPE", false, ReadTab},
    {"PRINT", false, ReadPrint},
    {"ICON", false,
     [](ReportDef& r, std::string_view v) { r.Icon = Find(kIcons, v).value_or(r.Icon); }},
    {"SELECTITEM", false, ReadSelectItem},
    {"DATERANGE", false,
     [](ReportDef& r, std::string_view v) {
         r.DateRange = Find(kDateRanges, v).value_or(r.DateRange);
     }},
    {"SELECTDETAIL", false,
     [](ReportDef& r, std::string_view v) { r.SelectDetail = platform::StrToBool(v); }},
    {"SELECTYEAR", false,
     [](ReportDef& r, std::string_view v) { r.SelectYear = platform::StrToBool(v); }},
});

bool IsFlag(std::string_view value) {
    return platform::EqualIgnoringCase(value, "TRUE") ||
           platform::EqualIgnoringCase(value, "FALSE");
}

constexpr auto kOtherSections =
    std::to_array<std::string_view>({"HEADER", "DATA", "TEXT", "LOOP", "ENDLOOP", "FOOTER"});

} // namespace

void ReadCatalogueKeys(std::string_view text, ReportDef& report) {
    const bool isReceipt = report.Kind == ReportKind::Receipt;
    bool inGeneral = false;
    LineReader lines(text, Blanks::Keep);
    while (const auto line = lines.Next()) {
        if (line->Opens("GENERAL")) {
            inGeneral = true;
        } else if (std::ranges::any_of(kOtherSections,
                                       [&](auto section) { return line->Opens(section); })) {
            inGeneral = false;
        }
        if (!inGeneral) continue;
        const auto known = std::ranges::find(kKeys, line->key, &CatalogueKey::key);
        if (known != kKeys.end() && (known->ofReceipts || !isReceipt))
            known->read(report, line->value);
    }
}

bool IsCatalogueKey(std::string_view key) {
    return std::ranges::find(kKeys, key, &CatalogueKey::key) != kKeys.end();
}

bool IsCatalogueValue(std::string_view key, std::string_view value) {
    if (key == "FORM") return Find(kForms, value).has_value();
    if (key == "TAB" || key == "TYPE") return Find(kTabs, value).has_value();
    if (key == "ICON") return Find(kIcons, value).has_value();
    if (key == "DATERANGE") return Find(kDateRanges, value).has_value();
    if (key == "PRINT" || key == "SELECTDETAIL" || key == "SELECTYEAR") return IsFlag(value);
    return key != "SELECTITEM" || FindKind(value).has_value();
}

} // namespace reports
