#include "books/TripLog.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace books {

using platform::Date;
using platform::dialect::QuoteDate;
using platform::dialect::QuoteText;

namespace {

constexpr std::string_view kAll = "All";

// The program's date zero, which is before every trip.
const Date kZeroDate(1899, 12, 30);

std::string Condition(const TripFilter& filter) {
    if (filter.item.text == kAll && filter.item.id == 0) return {};
    switch (filter.field) {
        case TripField::Vehicle:
            return "Vehicle = " + QuoteText(filter.item.text) + " ";
        case TripField::Building:
            return "IdBuilding = " + std::to_string(filter.item.id) + " ";
        case TripField::None:
            break;
    }
    return {};
}

constexpr std::string_view kVehicles =
    "SELECT DISTINCT Vehicle AS [Description], 0 AS [ID] FROM Mileage ORDER BY 1";
constexpr std::string_view kDestinations =
    "SELECT DISTINCT Destination AS [Description], 0 AS [ID] FROM Mileage ORDER BY 1";
constexpr std::string_view kBuildings =
    "SELECT DISTINCT Address AS [Description], IdBuilding AS [ID] FROM Building ORDER BY 1";

/// Adds the rows of a statement with the columns Description and ID; rows without a description are
/// left out.
void AddRows(core::ChoiceList& list, std::string_view sql) {
    platform::Recordset rows = core::Read(sql);
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string text = platform::TextOf(rows["Description"]);
        if (!text.empty()) list.Add(text, rows["ID"].AsLong());
    }
}

/// Returns the id of the session's user in the table of users, 0 if they aren't in it.
std::int32_t UserId() {
    const auto id =
        core::LookUp("SELECT IdUser FROM Users WHERE UserName = ?", {core::App().UserName});
    return id ? id->AsLong() : 0;
}

} // namespace

std::string TripListSql(const TripFilter& filter) {
    const Date from = filter.days == 0 ? kZeroDate
                                       : platform::DateAdd(platform::Interval::Day, -filter.days,
                                                           platform::Today());
    std::string sql =
        "SELECT IdMileage, DateValue(EntryDate) AS [Entry Date], "
        "Vehicle, OBegin AS [Begin], OEnd AS [End], "
        "Mileage, Destination, Purpose, Meal FROM Mileage "
        "WHERE (DateValue(EntryDate) >= " +
        QuoteDate(from) + ") ";
    const std::string condition = Condition(filter);
    if (!condition.empty()) sql += "AND (" + condition + ") ";
    return sql + "ORDER BY DateValue(EntryDate) DESC ";
}

core::ChoiceList TripFilterItems(TripField field) {
    core::ChoiceList list;
    list.Add(kAll, 0);
    if (field == TripField::Vehicle) AddRows(list, kVehicles);
    if (field == TripField::Building) AddRows(list, kBuildings);
    list.Select(0);
    return list;
}

core::ChoiceList KnownDestinations() {
    core::ChoiceList list;
    AddRows(list, kDestinations);
    return list;
}

core::ChoiceList LoggedVehicles() {
    core::ChoiceList list;
    AddRows(list, kVehicles);
    return list;
}

core::ChoiceList KnownVehicles() {
    core::ChoiceList list = LoggedVehicles();
    const std::string own = core::GetDefaultCar();
    const bool isKnown = std::ranges::any_of(list.Rows(), [&](const core::Choice& row) {
        return platform::EqualIgnoringCase(row.text, own);
    });
    if (!own.empty() && !isKnown) list.Add(own, 0);
    return list;
}

void SetNewTripFields(platform::Recordset& trip) {
    trip["Selected"].Set(false);
    trip["IdWorkOrder"].Set(std::int32_t{0});
    trip["idUser"].Set(UserId());
}

} // namespace books
