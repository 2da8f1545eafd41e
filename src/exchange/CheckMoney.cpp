// Checks balances against their ledgers, and payments against their transactions.

#include <array>
#include <map>

#include <fmt/core.h>

#include "exchange/CheckParts.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Conversions.h"

namespace exchange {

namespace {

using platform::Currency;

/// The sums of a lease's ledger.
struct LeaseSums {
    Currency rentDue;
    Currency subsDue;
    Currency optionBalance;
    Currency depositTotal;
    Currency depositPaid;
    Currency depositRefunded;
    Currency depositCharged;
};
using SumsByLease = std::map<std::int32_t, LeaseSums>;

struct Balance {
    std::string_view field;
    Currency (*expected)(const LeaseSums& sums);
};

constexpr std::array<Balance, 9> kBalances = {
    {{"RentDue", [](const LeaseSums& sums) { return sums.rentDue; }},
     {"SubsDue", [](const LeaseSums& sums) { return sums.subsDue; }},
     {"OptionBalance", [](const LeaseSums& sums) { return sums.optionBalance; }},
     {"DepositTotal", [](const LeaseSums& sums) { return sums.depositTotal; }},
     {"DepositPaid", [](const LeaseSums& sums) { return sums.depositPaid; }},
     {"DepositDue", [](const LeaseSums& sums) { return sums.depositTotal - sums.depositPaid; }},
     {"DepositRefunded", [](const LeaseSums& sums) { return sums.depositRefunded; }},
     {"DepositCharged", [](const LeaseSums& sums) { return sums.depositCharged; }},
     {"DepositBalance", [](const LeaseSums& sums) {
          return sums.depositPaid - (sums.depositRefunded + sums.depositCharged);
      }}}};

void AddSums(platform::Connection& books, std::string_view sql, SumsByLease& sums,
             Currency LeaseSums::*sum) {
    platform::Recordset rows;
    for (rows.Open(books, sql); !rows.Eof(); rows.MoveNext())
        sums[platform::IdOf(rows[0])].*sum = platform::MoneyOf(rows[1]);
}

SumsByLease SumLedgers(platform::Connection& books) {
    SumsByLease sums;
    const auto rentLog = [&](std::string_view where, Currency LeaseSums::*sum) {
        AddSums(books,
                fmt::format("SELECT IdLease, Sum(Amount) AS Total FROM RentLog WHERE {} "
                            "GROUP BY IdLease",
                            where),
                sums, sum);
    };
    const auto refunds = [&](int flags, Currency LeaseSums::*sum) {
        AddSums(books,
                fmt::format("SELECT IdLease, Sum(Amount) AS Total FROM Transactions "
                            "WHERE (Class = 3) AND (Flags = {}) GROUP BY IdLease",
                            flags),
                sums, sum);
    };
    rentLog("(Class = 1) AND (IdTransaction = 0)", &LeaseSums::rentDue);
    rentLog("(Class = 2) AND (IdTransaction = 0)", &LeaseSums::subsDue);
    rentLog("Class = 4", &LeaseSums::optionBalance);
    rentLog("(Class = 3) AND (Flags = 0)", &LeaseSums::depositTotal);
    rentLog("(Class = 3) AND (Flags = 2)", &LeaseSums::depositPaid);
    refunds(3, &LeaseSums::depositRefunded);
    refunds(4, &LeaseSums::depositCharged);
    for (auto& [id, lease] : sums)
        lease.depositPaid = -lease.depositPaid; // payments are kept as negative amounts
    return sums;
}

struct Question {
    std::string_view sql;
    std::string_view word;
    std::string_view what; ///< follows the number of records
    std::string_view advice;
};

constexpr std::string_view kPayAgain =
    "Open the ledger and look for the payment; delete the row if there was none.";
constexpr std::string_view kRemoveTransaction =
    "Open the transaction. If the payment was made, add it to the ledger; otherwise delete the "
    "transaction.";

constexpr auto kPaymentQuestions = std::to_array<Question>({
    {"SELECT IdRentLog FROM RentLog WHERE (Flags = 2) "
     "AND ((IdTransaction = 0) OR (IdTransaction IS Null))",
     "rent payment", "without a transaction", kPayAgain},
    {"SELECT IdMortgageLog FROM MortgageLog WHERE (Flags = 2) "
     "AND ((IdTransaction = 0) OR (IdTransaction IS Null))",
     "mortgage payment", "without a transaction", kPayAgain},
    {"SELECT t.IdTransaction FROM Transactions AS t LEFT JOIN RentLog AS r "
     "ON t.IdTransaction = r.IdTransaction WHERE (r.IdRentLog IS Null) "
     "AND ((t.Class = 1) OR (t.Class = 2) OR (t.Class = 3)) AND (t.Amount <> 0)",
     "transaction", "of a lease without a row in its ledger", kRemoveTransaction},
    {"SELECT t.IdTransaction FROM Transactions AS t LEFT JOIN MortgageLog AS m "
     "ON t.IdTransaction = m.IdTransaction WHERE (m.IdMortgageLog IS Null) AND (t.Class = 5)",
     "transaction", "of a mortgage without a row in its ledger", kRemoveTransaction},
});

/// Checks credit that was paid ahead, in all its parts, against the amount that the payment has for
/// it.
void CheckCredits(platform::Connection& books, std::vector<Finding>& findings) {
    if (books.Tables().Find("RentCredit") == nullptr) return;
    const FoundIds found =
        FindIds(books,
                "SELECT c.IdOrigin FROM (RentCredit AS c INNER JOIN RentLog AS p ON c.IdRentLog = "
                "p.IdRentLog) INNER JOIN RentLog AS o ON c.IdOrigin = o.IdRentLog "
                "GROUP BY c.IdOrigin, o.Amount HAVING Sum(p.Amount) + o.Amount < 0");
    if (!found.Any()) return;
    findings.push_back({Severity::Fault,
                        fmt::format("{} paid ahead of which more was credited than was paid: {}",
                                    Counted(found.count, "amount"), found.List()),
                        "Open the credit in the lease's ledger and correct its amount."});
}

} // namespace

void CheckBalances(platform::Connection& books, std::vector<Finding>& findings) {
    const SumsByLease sums = SumLedgers(books);
    platform::Recordset leases;
    for (leases.Open(books, "SELECT * FROM Lease"); !leases.Eof(); leases.MoveNext()) {
        const std::int32_t id = platform::IdOf(leases["IdLease"]);
        const auto found = sums.find(id);
        const LeaseSums lease = found == sums.end() ? LeaseSums() : found->second;
        for (const Balance& balance : kBalances) {
            const Currency stored = platform::MoneyOf(leases[balance.field]);
            const Currency expected = balance.expected(lease);
            if (stored == expected) continue;
            findings.push_back(
                {Severity::Fault,
                 fmt::format("The lease {} has {} as {}, but its ledger adds up to {}", id,
                             platform::MoneyToFixedText(stored), balance.field,
                             platform::MoneyToFixedText(expected)),
                 "Open the lease: its balances are computed again, as they are at the next "
                 "start."});
        }
    }
    const FoundIds wrong = FindIds(
        books,
        "SELECT IdMortgageLog FROM MortgageLog WHERE Total <> Principal + PayDown + Interest + "
        "Other");
    if (!wrong.Any()) return;
    findings.push_back({Severity::Fault,
                        fmt::format("{} of a mortgage whose total isn't the sum of its parts: {}",
                                    Counted(wrong.count, "ledger row"), wrong.List()),
                        "Open the row and save it: the total is computed again."});
}

void CheckPayments(platform::Connection& books, std::vector<Finding>& findings) {
    CheckCredits(books, findings);
    for (const Question& question : kPaymentQuestions) {
        const FoundIds found = FindIds(books, question.sql);
        if (!found.Any()) continue;
        findings.push_back({Severity::Fault,
                            fmt::format("{} {}: {}", Counted(found.count, question.word),
                                        question.what, found.List()),
                            std::string(question.advice)});
    }
}

} // namespace exchange
