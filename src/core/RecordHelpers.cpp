#include "core/RecordHelpers.h"

#include "core/Session.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace core {

namespace {

constexpr std::size_t kAlertCharacters = 100;

double LookUpDouble(std::string_view sql, const platform::Value& key) {
    const auto number = LookUp(sql, {key});
    return number ? number->AsDouble() : 0.0;
}

} // namespace

void AddAlert(std::string_view text, platform::Date date) {
    if (text.empty()) return;
    if (!date.IsSet()) date = platform::Today();
    ExecuteSql("INSERT INTO Alerts (EntryDate,Description) VALUES (?,?)",
               {date.ToText(), platform::LeftCharacters(text, kAlertCharacters)});
}

float GetVehicleMaxOdometer(std::string_view vehicle) {
    if (vehicle.empty()) return 0;
    return static_cast<float>(
        LookUpDouble("SELECT MAX(Oend) AS Result FROM Mileage WHERE Vehicle = ?", vehicle));
}

float GetBuildingDistance(std::int32_t idBuilding) {
    if (idBuilding == 0) return 0;
    return static_cast<float>(
        LookUpDouble("SELECT Distance FROM Building WHERE IdBuilding = ?", idBuilding));
}

double GetBuildingEquity(std::int32_t idBuilding) {
    return LookUpDouble("SELECT MktValue FROM Building WHERE IdBuilding = ?", idBuilding) -
           LookUpDouble("SELECT SUM(CurrentPV) AS Result FROM Mortgage WHERE IdBuilding = ?",
                        idBuilding);
}

platform::Currency GetUnitRent(std::int32_t idUnit) {
    const auto rent = LookUp("SELECT Rent FROM Unit WHERE IdUnit = ?", {idUnit});
    return rent ? rent->AsCurrency() : platform::Currency();
}

} // namespace core
