#include "leases/BooksTest.h"

#include <fmt/core.h>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "support/Books.h"

namespace tests {

BooksTest::BooksTest() : books_(folder_.Path() / "db") {
    platform::SetToday(platform::Date(2024, 3, 5));
    SetLeaseField("DateUpdated", "03/05/2024");
    core::Config() = {};
}

BooksTest::~BooksTest() {
    core::Config() = {};
}

void BooksTest::Run(std::string_view sql) {
    core::App().Connection.Execute(sql);
}

BooksTest::Lines BooksTest::Rows(std::string_view sql) {
    return support::Rows(core::App().Connection, sql);
}

std::string BooksTest::Ask(std::string_view sql) {
    return support::Ask(core::App().Connection, sql);
}

std::int32_t BooksTest::Charge(platform::Date day, int units, leases::RentFlags flags,
                               core::TransactionClass rentClass) {
    return leases::WriteRentLog(
        {.idLease = kLeaseId,
         .datePosted = day,
         .rentClass = rentClass,
         .category = flags == leases::RentFlags::PeriodRent ? "Rent" : "Fee",
         .amount = platform::Currency::FromUnits(units),
         .description = fmt::format("{} on {}", units, day.ToText()),
         .flags = flags});
}

BooksTest::Lines BooksTest::Ledger() {
    Lines lines;
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT * FROM RentLog ORDER BY IdRentLog");
    for (; !rows.Eof(); rows.MoveNext()) {
        lines.push_back(fmt::format("{} {} {} {}", rows["DatePosted"].AsText(),
                                    rows["Flags"].AsText(),
                                    platform::FormatMoney(rows["Amount"].AsCurrency()),
                                    rows["IdTransaction"].AsLong() == 0 ? '-' : '+'));
    }
    return lines;
}

} // namespace tests
