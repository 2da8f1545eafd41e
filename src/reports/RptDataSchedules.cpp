// The modes of a [DATA] section that show a schedule: amortisation and depreciation.

#include <algorithm>
#include <cmath>
#include <memory>

#include "books/clsDepreciation.h"
#include "mortgages/clsMortgage.h"
#include "platform/values/Format.h"
#include "reports/DataTable.h"
#include "reports/Queries.h"
#include "reports/ReportError.h"
#include "reports/Tags.h"
#include "reports/clsRptData.h"

namespace reports {

using platform::PrintSurface;

namespace {

std::vector<std::string> SplitHeader(std::string_view header) {
    auto rows = platform::ParseTableText(header);
    return rows.empty() ? std::vector<std::string>() : std::move(rows.front());
}

/// Sets a font and margins small enough for a schedule of sixteen columns to have each amount in
/// one line.
void FitFont(PrintSurface& page, const std::vector<std::vector<std::string>>& rows) {
    constexpr platform::Twips kNarrowInset = 40;
    constexpr double kSmallestFont = 4;
    if (rows.empty()) return;
    const auto columns = static_cast<platform::Twips>(rows.front().size());
    page.Style().cellInset = kNarrowInset;
    const platform::Twips room = page.PrintWidth() / columns - 2 * kNarrowInset;
    platform::Twips widest = 1;
    for (const auto& row : rows) {
        for (const std::string& cell : row)
            widest = std::max(widest, page.TextWidth(cell));
    }
    double& size = page.Style().fontSize;
    if (widest > room) size = std::max(kSmallestFont, std::floor(2 * size * room / widest) / 2);
}

/// Returns the number in a field; a field that is null or 0 counts as missing.
double NumberOf(const platform::Field& field) {
    return field.IsNull() ? 0 : field.AsDouble();
}

/// Prints the missing terms; returns true if there are none.
bool HasAllTerms(PrintSurface& page, platform::Recordset& building) {
    struct Term {
        bool isThere;
        std::string_view fault;
    };
    const Term terms[] = {
        {!building["PurchDate"].IsBlank(), "Property purchase date has not specified."},
        {NumberOf(building["DeprBasis"]) != 0, "Property depreciation basis has not been entered."},
        {NumberOf(building["DeprPeriod"]) != 0, "Depreciation term is invalid."},
        {!building["DeprMethod"].IsBlank(), "Depreciation method has not been specified."},
    };
    bool complete = true;
    for (const Term& term : terms) {
        if (term.isThere) continue;
        page.Text(term.fault);
        complete = false;
    }
    return complete;
}

void PrintTerms(PrintSurface& page, books::clsDepreciation& depreciation, std::string_view year) {
    const auto money = [](double amount) {
        return platform::FormatNumber(amount, platform::kMoneyFormat);
    };
    std::vector<std::vector<std::string>> rows = {
        {"Depreciation Basis", money(depreciation.Basis())},
        {"Depreciation Method", depreciation.Method()},
        {std::string(year) + " Depreciation",
         money(static_cast<double>(depreciation.TotalDepreciation(year)))},
    };
    page.AddTableArray("<2160|>2160", {}, std::make_unique<platform::HeldRows>(std::move(rows)));
    page.Table().border = platform::TableBorder::None;
}

} // namespace

void clsRptData::ShowAmortization(PrintSurface& page) const {
    mortgages::clsMortgage mortgage;
    if (!mortgage.LoadMtg(SelectedId)) {
        PrintNoRecords(page);
        return;
    }
    try {
        mortgage.ReCalc();
    } catch (const platform::Error& fault) {
        throw ReportError(Line, fault.what());
    }
    std::vector<std::vector<std::string>> rows;
    std::string header;
    std::string format;
    mortgage.GetAmortization(rows, header, format, true);

    PrintIn(page, "TableGroupHeader", HeadText);
    page.ApplyStyle("Table");
    FitFont(page, rows);
    page.StartTable();
    page.AddTableArray(format, SplitHeader(header),
                       std::make_unique<platform::HeldRows>(std::move(rows)));
    StyleHeader(page);
    ApplyAttributes(page.Table(), Attributes, ColWrap);
    page.EndTable();
    PrintIn(page, "TableGroupTotal", FootText);
}

void clsRptData::ShowDepreciation(PrintSurface& page) const {
    platform::Recordset building;
    if (!OpenQuery(building,
                   "SELECT PurchDate, DeprBasis, DeprPeriod, DeprMethod FROM Building "
                   "WHERE IdBuilding = " +
                       std::to_string(SelectedId))) {
        PrintNoRecords(page);
        return;
    }
    page.ApplyStyle("Table");
    if (!HasAllTerms(page, building)) return;

    books::clsDepreciation depreciation;
    depreciation.SetStartDate(building["PurchDate"].AsText());
    depreciation.SetBasis(building["DeprBasis"].AsDouble());
    depreciation.SetMethod(building["DeprMethod"].AsText());
    depreciation.SetLife(building["DeprPeriod"].AsDouble());
    depreciation.Init();

    page.StartTable();
    if (Mode == DataMode::DeprTable) {
        page.AddTable("<20%|>20%|>20%|>20%|<20%", "", depreciation.GetClip());
    } else {
        PrintTerms(page, depreciation, ShowYear);
    }
    page.EndTable();
}

} // namespace reports
