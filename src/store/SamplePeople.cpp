#include "store/SamplePeople.h"

#include <array>

#include "store/SampleWords.h"

namespace store {

using platform::DateAdd;
using platform::Interval;

namespace {

constexpr std::int16_t kTenantKind = 5;

void AddEmergencyContact(SampleBooks& books, std::int32_t idTenant, int areaCode) {
    const std::string_view given = SampleGivenName(books.dice);
    const std::string_view last = SampleSurname(books.dice);
    books.rows.Add("Contact", {{"dbType", kTenantKind},
                               {"IdRelated", idTenant},
                               {"Description", "Emergency contact"},
                               {"LastName", last},
                               {"FirstName", given},
                               {"Phone", SamplePhone(books.dice, areaCode)}});
}

/// Returns a middle initial. In large portfolios it is null for some tenants, as after an import:
/// lists that join the parts of a name then show no name.
platform::Value Initial(SampleDice& dice, std::size_t tenant) {
    constexpr std::size_t kImportedOneIn = 25;
    if (tenant % kImportedOneIn == kImportedOneIn - 1) return {};
    return std::string(1, static_cast<char>('A' + dice.Below(26)));
}

} // namespace

std::int32_t AddSampleTenant(SampleBooks& books, int areaCode, std::string_view status) {
    SampleDice& dice = books.dice;
    const std::string_view given = SampleGivenName(dice);
    const std::string_view last = SampleSurname(books.tenants++);
    const bool married = dice.OneIn(3);
    const auto born = DateAdd(Interval::Day, -dice.Between(8'000, 26'000), books.today);
    const std::int32_t id = books.rows.Add(
        "Tenant", {{"Status", status},
                   {"LastName", last},
                   {"FirstName", given},
                   {"Initial", Initial(dice, books.tenants)},
                   {"SpouseName", married ? SampleGivenName(dice) : std::string_view()},
                   {"MaritalStatus", married ? "Married" : "Single"},
                   {"Phone", SamplePhone(dice, areaCode)},
                   {"AltPhone", dice.OneIn(3) ? SamplePhone(dice, areaCode) : std::string()},
                   {"Email", SampleEmail(given, last)},
                   {"Kids", married ? dice.Between(0, 3) : 0},
                   {"FICO", dice.Between(540, 815)},
                   {"DOB", born.ToText()},
                   {"SSN", "000-12-" + SampleDigits(dice, 4)},
                   {"DLN", "X" + SampleDigits(dice, 7)},
                   {"BankName", "Harborstone Bank"},
                   {"BankRouting", "000000000"},
                   {"BankAccount", "0000" + SampleDigits(dice, 4)},
                   {"Bankrupcy", dice.OneIn(20)}});
    if (dice.OneIn(3)) AddEmergencyContact(books, id, areaCode);
    return id;
}

void AddSampleIncidents(SampleBooks& books, std::int32_t idTenant) {
    struct Kind {
        std::string_view severity, description;
    };
    constexpr Kind kKinds[] = {{"0 - Informational", "Asked to move the due date"},
                               {"1 - Caution", "Late rent, reminded by telephone"},
                               {"2 - Warning", "Late rent, notice mailed"},
                               {"3 - Critical", "Check returned by the bank"}};
    const std::size_t count = 1 + books.dice.Below(std::size(kKinds));
    int daysAgo = 330;
    for (std::size_t i = 0; i < count; ++i) {
        daysAgo -= books.dice.Between(20, 75);
        books.rows.Add("Incident",
                       {{"IdTenant", idTenant},
                        {"EntryDate", DateAdd(Interval::Day, -daysAgo, books.today).ToText()},
                        {"Severity", kKinds[i].severity},
                        {"Description", kKinds[i].description}});
    }
}

void AddSampleApplicants(SampleBooks& books) {
    constexpr std::array<std::string_view, 4> kStatuses = {"Pending", "Approved", "Rejected",
                                                           "Pending"};
    for (const std::string_view status : kStatuses)
        AddSampleTenant(books, 541, status);
}

} // namespace store
