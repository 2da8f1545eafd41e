#include "books/Mileage.h"

#include "books/TripLog.h"
#include "core/Lookups.h"
#include "core/RecordHelpers.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"

namespace books {

std::int32_t WriteTrip(std::int32_t idMileage, const Transaction& transaction) {
    const std::string vehicle = core::GetDefaultCar();
    const float begin = core::GetVehicleMaxOdometer(vehicle);
    const float distance = 2 * core::GetBuildingDistance(transaction.idBuilding);

    core::RowToWrite trip("Mileage", "IdMileage", idMileage);
    SetNewTripFields(trip.row);
    trip["EntryDate"].Set(transaction.dateEffective.ToText());
    trip["Vehicle"].Set(vehicle);
    trip["OBegin"].Set(static_cast<double>(begin));
    trip["OEnd"].Set(static_cast<double>(begin + distance));
    trip["Mileage"].Set(static_cast<double>(distance));
    trip["Destination"].Set(transaction.credit.description);
    trip["Purpose"].Set(transaction.taxCategory);
    trip["Meal"].Set(platform::Currency());
    trip["IdBuilding"].Set(transaction.idBuilding);
    trip.row.Update();
    return trip.id;
}

} // namespace books
