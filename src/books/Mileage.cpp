#include "books/Mileage.h"

#include "books/TripLog.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/RecordHelpers.h"
#include "core/Session.h"
#include "platform/database/Recordset.h"

namespace books {

using platform::CursorMode;
using platform::Recordset;

std::int32_t WriteTrip(std::int32_t idMileage, const Transaction& transaction) {
    const std::string vehicle = core::GetDefaultCar();
    const float begin = core::GetVehicleMaxOdometer(vehicle);
    const float distance = 2 * core::GetBuildingDistance(transaction.idBuilding);

    Recordset trip;
    if (idMileage == 0) {
        idMileage = core::NextId();
        trip.Open(core::App().Connection, "Mileage", CursorMode::AppendOnly);
        trip.AddNew();
    } else {
        trip.Open(core::App().Connection, "SELECT * FROM Mileage WHERE IdMileage = ?",
                  CursorMode::Updatable, {idMileage});
        if (trip.Eof()) trip.AddNew();
    }
    SetNewTripFields(trip);
    trip["IdMileage"].Set(idMileage);
    trip["EntryDate"].Set(transaction.dateEffective.ToText());
    trip["Vehicle"].Set(vehicle);
    trip["OBegin"].Set(static_cast<double>(begin));
    trip["OEnd"].Set(static_cast<double>(begin + distance));
    trip["Mileage"].Set(static_cast<double>(distance));
    trip["Destination"].Set(transaction.credit.description);
    trip["Purpose"].Set(transaction.taxCategory);
    trip["Meal"].Set(platform::Currency());
    trip["IdBuilding"].Set(transaction.idBuilding);
    trip.Update();
    return idMileage;
}

} // namespace books
