#pragma once

#include <string>
#include <string_view>

#include "books/PostTransaction.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "support/Books.h"

namespace tests {

/// Books with a few records, on 05/17/2024.
class BooksTest : public CoreRecords {
  protected:
    /// A payment of 950.00 from John Smith to the River Bank.
    static books::Transaction Payment() {
        books::Transaction payment;
        static_cast<books::References&>(payment) = {
            .idTenant = 30, .idBuilding = 10, .idUnit = 20, .idLease = 40};
        payment.dateEffective = platform::Date(2024, 5, 1);
        payment.debit = {core::kTenant, 30, "Smith, John Q"};
        payment.credit = {core::kAccount, 60, "River Bank"};
        payment.amount = platform::Currency::FromUnits(950);
        payment.taxCategory = "Rent Payment";
        payment.checkNumber = "17";
        payment.description = "May";
        return payment;
    }

    /// An enabled event that posts 25.00 from the River Bank to Jo Owner; `fields` and `values`
    /// name what it has besides.
    static void AddEvent(int id, std::string_view fields, std::string_view values) {
        Run("INSERT INTO AutoEvent (IdAutoEvent, Description, Enabled, Alert, EventAction, "
            "DebitType, DebitId, CreditType, CreditId, Amount, TaxCategory, IEN, " +
            std::string(fields) + ") VALUES (" + std::to_string(id) + ", 'Event " +
            std::to_string(id) + "', True, False, 1, 1, 60, 1, 62, 25, 'Supplies', 1, " +
            std::string(values) + ")");
    }

    static void AddScheduled(int id, int intervalType, int period, std::string_view lastRun) {
        AddEvent(id, "EventType, IntervalType, IntervalPeriod, LastRun",
                 "1, " + std::to_string(intervalType) + ", " + std::to_string(period) + ", " +
                     (lastRun == "NULL" ? "NULL" : "'" + std::string(lastRun) + "'"));
    }

    static void AddTriggered(int id, int type, int party, std::string_view category) {
        AddEvent(id, "EventType, TriggerType, TriggerID, TriggerTaxCategory",
                 "2, " + std::to_string(type) + ", " + std::to_string(party) + ", " +
                     (category == "NULL" ? "NULL" : "'" + std::string(category) + "'"));
    }

    /// The rows that a select finds, cells separated by "|", each row ended by ";".
    static std::string Rows(std::string_view sql) {
        std::string text;
        for (const std::string& row : support::Rows(core::App().Connection, sql, "NULL"))
            text += row + ';';
        return text;
    }
};

} // namespace tests
