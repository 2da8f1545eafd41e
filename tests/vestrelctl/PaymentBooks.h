#pragma once

#include "vestrelctl/VestrelctlFixture.h"

namespace tests {

/// Books with a tenant, three accounts and a lease of 1,000.00 a month, charged up to 12/31/2023.
class PaymentBooks : public Vestrelctl {
  protected:
    PaymentBooks() {
        EXPECT_EQ(Run("init " + Books()).status, 0);
        // The settings come with the first run.
        EXPECT_EQ(Run("--today 12/31/2023 " + OnBooks() + "update").status, 0);
        const Outcome made = Run(
            OnBooks() + "sql -",
            "UPDATE Configuration SET NextId = 1000;\n"
            "INSERT INTO Building (IdBuilding, Address) VALUES (104, '12 Elm Street');\n"
            "INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (102, 104, 'A');\n"
            "INSERT INTO Tenant (IdTenant, LastName, FirstName) VALUES (103, 'O''Brien', 'Ann');\n"
            "INSERT INTO Account (IdAccount, ShowAs) VALUES (105, 'First Bank');\n"
            "INSERT INTO Account (IdAccount, ShowAs) VALUES (106, 'Plumber');\n"
            "INSERT INTO Account (IdAccount, ShowAs) VALUES (107, 'Second Bank');\n"
            "INSERT INTO Lease (IdLease, IdTenant, IdUnit, Status, DateActive, DateRenewed, "
            "DateNextDue, DateUpdated, Term, TermType, ExpireOption, NoticeDays, Rent, "
            "RentAccount, DepositAccount, Discount, DiscountDays, OneTimeFee, OneTimeDays, "
            "DailyFee, DailyDays, EvictDays) VALUES (101, 103, 102, 'Contracted', '01/01/2023', "
            "'01/01/2023', '01/01/2024', '12/31/2023', 12, 'Month(s)', 'MTM', 30, 1000, 105, 105, "
            "0, 5, 25, 3, 0, 10, 60);\n");
        EXPECT_EQ(made.status, 0) << made.errors;
    }
};

} // namespace tests
