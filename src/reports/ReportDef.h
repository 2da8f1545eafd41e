#pragma once

#include <cstdint>
#include <string>

#include "core/RecordKinds.h"
#include "platform/printing/PageSetup.h"
#include "platform/values/Date.h"

namespace reports {

/// The purpose of a definition file. Scratch is the one that list printing and the console rewrite;
/// Print is the print command of a record form.
enum class ReportKind : std::int16_t { Scratch = 1, Report = 2, Print = 3, Receipt = 4 };

/// The record form that offers a report.
enum class RecordForm : std::int16_t {
    None = 0,
    Account = 1,
    Building = 2,
    Lease = 3,
    Mileage = 4,
    Mortgage = 5,
    Tenant = 6,
    Transaction = 7,
    Unit = 8,
    WorkOrder = 9,
};

enum class CatalogueTab : std::int16_t { All = 0, ItemDetail = 1, Financial = 2, Summary = 3 };

/// Which dates a report covers.
enum class DateRange : std::int16_t {
    None = 0,
    CurrentYear = 1,
    TrailingYear = 2,
    PreviousYear = 3,
    Select = 4,
};

/// How much a report shows. A section of detail Always is shown in both.
enum class Detail : std::int16_t { Always = 0, Full = 1, Summary = 2 };

/// The catalogue's entry of a definition file, with the user's last choices for it in this run of
/// the program.
struct ReportDef {
    std::string FileName; ///< inside the reports folder
    ReportKind Kind = ReportKind::Report;
    RecordForm Form = RecordForm::None;
    CatalogueTab Tab = CatalogueTab::All;
    std::string Description;
    std::string Notes;
    std::int16_t Icon = 0;                     ///< 1 to 8, 0 for none
    core::RecordKind SelectItem = core::kNone; ///< the kind that the report asks for
    bool SelectDetail = false;
    bool SelectYear = false;
    reports::DateRange DateRange = reports::DateRange::None;

    // The current choices.
    std::int32_t SelectedId = 0;
    Detail DetailLevel = Detail::Full;
    std::string SelectedYear;
    reports::DateRange DateChoice = reports::DateRange::Select;
    platform::Date StartDate;
    platform::Date EndDate;
    platform::PageOrientation Orientation = platform::PageOrientation::Portrait;
};

} // namespace reports
