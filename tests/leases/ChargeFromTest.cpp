#include "leases/ChargeFrom.h"

#include <fmt/core.h>

#include "core/BooksSettings.h"
#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/Rows.h"
#include "leases/BooksTest.h"
#include "leases/LeaseWizard.h"
#include "platform/values/Format.h"

namespace tests {

namespace {

using leases::LeaseWizardEntry;
using platform::Currency;
using platform::Date;

const Date kSince(2024, 2, 1);

/// Today is 03/05/2024. A late fee falls due 5 days after the rent, a daily one from day 11 on.
class ChargeFrom : public BooksTest {
  protected:
    ChargeFrom() {
        core::Config().ExpireOption = "MTM";
        core::Config().DailyFee = Currency::FromUnits(2);
        core::Config().DailyDays = 10;
        core::SetBooksKeptSince(kSince);
    }
    static LeaseWizardEntry Entry(Date start) {
        return {.idUnit = kUnitId,
                .idTenant = kTenantId,
                .startDate = start,
                .rent = Currency::FromUnits(700),
                .lateFee = Currency::FromUnits(25),
                .lateDays = 5};
    }
    static Lines Posted(std::int32_t idLease) {
        Lines lines;
        platform::Recordset row =
            core::Read("SELECT * FROM RentLog WHERE (IdLease = ?) AND (Class = 1)", {idLease});
        for (; !row.Eof(); row.MoveNext())
            lines.push_back(row["DatePosted"].AsText() + " " + row["Description"].AsText() + " " +
                            platform::FormatMoney(row["Amount"].AsCurrency()));
        return lines;
    }
    static Lines Preview(const LeaseWizardEntry& entry, Date nextDue) {
        Lines lines;
        for (const auto& row : leases::PreviewCharges(leases::EnteredTerms(entry), nextDue))
            lines.push_back(row.date.ToText() + " " + row.description + " " +
                            platform::FormatMoney(row.amount));
        return lines;
    }
};

TEST_F(ChargeFrom, AsksOnlyIfSomethingWouldBeChargedForTheTimeBefore) {
    const struct {
        Date start;
        const char* termType;
        int rent;
        Date firstDue; ///< unset: not asked
    } cases[] = {
        {Date(2021, 3, 15), "Month(s)", 700, Date(2024, 2, 15)},
        {Date(2024, 1, 31), "Month(s)", 700, Date(2024, 2, 29)},
        {Date(2023, 1, 31), "Month(s)", 700, Date(2024, 2, 28)}, // the walk counts on from 02/28
        {Date(2020, 2, 29), "Year(s)", 700, Date(2024, 2, 28)},  // charged monthly
        {Date(2024, 1, 1), "Week(s)", 700, Date(2024, 2, 5)},
        {Date(2023, 12, 1), "Month(s)", 700, kSince},
        {Date(2024, 2, 1), "Month(s)", 700, {}},
        {Date(2024, 6, 1), "Month(s)", 700, {}},
        {Date(2021, 3, 15), "Month(s)", 0, Date(2024, 2, 15)}, // its fees alone
    };
    for (const auto& each : cases) {
        LeaseWizardEntry entry = Entry(each.start);
        entry.termType = each.termType;
        entry.rent = Currency::FromUnits(each.rent);
        const leases::LeaseTerms terms = leases::EnteredTerms(entry);
        const Date since = leases::ProposedChargeFrom(terms);
        EXPECT_EQ(since, each.firstDue.IsSet() ? kSince : Date()) << each.start.ToText();
        if (since.IsSet()) {
            EXPECT_EQ(leases::FirstDueFrom(terms, since), each.firstDue) << each.start.ToText();
        }
    }
    const auto old = leases::EnteredTerms(Entry(Date(2021, 3, 15)));
    leases::LeaseTerms charged = old;
    charged.dateUpdated = Date(2024, 3, 1);
    EXPECT_FALSE(leases::ProposedChargeFrom(charged).IsSet()) << "the run has charged it before";
    leases::LeaseTerms broken = old;
    broken.term = leases::Reading<std::int16_t>::Fault("Term is empty");
    EXPECT_FALSE(leases::ProposedChargeFrom(broken).IsSet());
    core::SetBooksKeptSince({});
    EXPECT_FALSE(leases::ProposedChargeFrom(old).IsSet()) << "the books don't say";
    core::App().Connection.RunScript("DROP TABLE BooksSetting;");
    EXPECT_FALSE(leases::ProposedChargeFrom(old).IsSet()) << "books of an earlier version";
}

TEST_F(ChargeFrom, PostsWhatWasShownAndNothingBefore) {
    const Date start(2021, 3, 15);
    for (const Date from : {start, kSince, Date(2024, 2, 16), Date(2024, 3, 6)}) {
        LeaseWizardEntry entry = Entry(start);
        entry.firstDue = leases::FirstDueFrom(leases::EnteredTerms(entry), from);
        const Lines shown = Preview(Entry(start), entry.firstDue);
        const std::int32_t id = leases::FinishLeaseWizard(entry);
        EXPECT_EQ(Posted(id), shown) << from.ToText();
        EXPECT_EQ(Ask(fmt::format("SELECT Count(*) FROM RentLog WHERE IdLease = {} AND "
                                  "DateValue(DatePosted) < #{}#",
                                  id, from.ToText())),
                  "0")
            << from.ToText();
        EXPECT_EQ(Ask(fmt::format("SELECT DateNextDue FROM Lease WHERE IdLease = {}", id)),
                  entry.firstDue.ToText());
    }
    EXPECT_EQ(
        Preview(Entry(start), Date(2024, 2, 15)),
        (Lines{"02/15/2024 Rent due 02/15/2024 700.00", "02/20/2024 Late Fee 25.00",
               "02/26/2024 Late Fee 2.00", "02/27/2024 Late Fee 2.00", "02/28/2024 Late Fee 2.00",
               "02/29/2024 Late Fee 2.00", "03/01/2024 Late Fee 2.00", "03/02/2024 Late Fee 2.00",
               "03/03/2024 Late Fee 2.00", "03/04/2024 Late Fee 2.00",
               "03/05/2024 Late Fee 2.00"}));
    EXPECT_EQ(Preview(Entry(start), Date(2024, 3, 15)), Lines{}) << "nothing up to today";
}

} // namespace

} // namespace tests
