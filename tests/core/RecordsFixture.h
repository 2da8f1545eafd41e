#pragma once

#include "core/CoreFixture.h"

namespace tests {

/// Books with a building of two units, one of a single unit, and who and what belongs to them.
class CoreRecords : public CoreBooks {
  protected:
    CoreRecords() {
        for (const auto* sql : {
                 "INSERT INTO Configuration (NextId, DefaultCar) VALUES (1000, 'Van')",
                 "INSERT INTO Building (IdBuilding, Multi, Address, City, State, Distance, "
                 "MktValue) VALUES (10, True, '12 Elm St', 'Salem', 'OR', 7.5, 200000)",
                 "INSERT INTO Building (IdBuilding, Multi, Address) VALUES (11, False, 'Oak Rd')",
                 "INSERT INTO Unit (IdUnit, IdBuilding, Unit, Rent, Status) "
                 "VALUES (20, 10, 'B', 950.5, 'Hold')",
                 "INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (21, 10, 'A')",
                 "INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (22, 11, '1')",
                 "INSERT INTO Tenant (IdTenant, LastName, FirstName, Initial) "
                 "VALUES (30, 'Smith', 'John', 'Q')",
                 "INSERT INTO Tenant (IdTenant, LastName, FirstName, Initial) "
                 "VALUES (31, 'O''Brien', 'Ann', NULL)",
                 "INSERT INTO Tenant (IdTenant, LastName, FirstName, Initial) "
                 "VALUES (32, 'Zu', 'Li', '')",
                 "INSERT INTO Lease (IdLease, IdUnit, IdTenant) VALUES (40, 20, 30)",
                 "INSERT INTO Mortgage (IdMortgage, IdBuilding, Description, AccountNumber, "
                 "CurrentPV) VALUES (50, 10, 'First loan', 'A-1', 120000.25)",
                 "INSERT INTO Mortgage (IdMortgage, IdBuilding) VALUES (51, 10)",
                 "INSERT INTO Account (IdAccount, ShowAs, AccountType) "
                 "VALUES (60, 'River Bank', 'Bank')",
                 "INSERT INTO Account (IdAccount, ShowAs, AccountType) "
                 "VALUES (61, 'Al Owner', 'Building Owner')",
                 "INSERT INTO Account (IdAccount, ShowAs, AccountType) "
                 "VALUES (62, 'Jo Owner', 'Building Owner')",
                 "INSERT INTO Appliance (IdAppliance, IdUnit, Manufacturer, ApplianceType) "
                 "VALUES (70, 20, 'Ace', 'Stove')",
                 "INSERT INTO Room (IdRoom, IdUnit, RoomType) VALUES (80, 20, 'Kitchen')",
             }) {
            Run(sql);
        }
    }
};

} // namespace tests
