#include "store/SampleAccounts.h"

#include <string>
#include <string_view>

#include <fmt/core.h>

#include "store/SampleWords.h"

namespace store {

namespace {

std::int32_t AddFirm(SampleBooks& books, std::string_view type, std::string_view company,
                     std::string_view site, std::string_view notes = "") {
    const SampleTown& town = books.dice.Pick(SampleTowns());
    return books.rows.Add("Account", {{"AccountType", type},
                                      {"ShowAs", company},
                                      {"Company", company},
                                      {"Address1", SampleAddress(books.dice)},
                                      {"City", town.city},
                                      {"State", town.state},
                                      {"Zip", town.zip},
                                      {"Phone", SamplePhone(books.dice, town.areaCode)},
                                      {"Email", fmt::format("office@{}.example", site)},
                                      {"Web", fmt::format("www.{}.example", site)},
                                      {"AccountNumber", "VP-" + SampleDigits(books.dice, 6)},
                                      {"Notes", notes}});
}

std::int32_t AddPerson(SampleBooks& books, std::string_view type, std::string_view given,
                       std::string_view initial, std::string_view last) {
    const SampleTown& town = books.dice.Pick(SampleTowns());
    std::string showAs = fmt::format("{}, {}", last, given);
    if (!initial.empty()) showAs += fmt::format(" {}", initial);
    return books.rows.Add("Account", {{"AccountType", type},
                                      {"ShowAs", showAs},
                                      {"ShowAsIndividual", true},
                                      {"LastName", last},
                                      {"FirstName", given},
                                      {"Initial", initial},
                                      {"Address1", SampleAddress(books.dice)},
                                      {"City", town.city},
                                      {"State", town.state},
                                      {"Zip", town.zip},
                                      {"Phone", SamplePhone(books.dice, town.areaCode)},
                                      {"Mobile", SamplePhone(books.dice, town.areaCode)},
                                      {"Email", SampleEmail(given, last)},
                                      {"TaxIDFed", "000-" + SampleDigits(books.dice, 6)}});
}

void AddRepresentative(SampleBooks& books, std::int32_t idAccount, std::string_view company,
                       std::string_view task) {
    const std::string_view given = SampleGivenName(books.dice);
    const std::string_view last = SampleSurname(books.dice);
    books.rows.Add("Contact", {{"dbType", kAccountKind},
                               {"IdRelated", idAccount},
                               {"Description", task},
                               {"Company", company},
                               {"LastName", last},
                               {"FirstName", given},
                               {"Phone", SamplePhone(books.dice, 541)},
                               {"Email", SampleEmail(given, last)}});
}

void AddVendors(SampleBooks& books) {
    struct Vendor {
        std::string_view company, site, task;
    };
    constexpr Vendor kVendors[] = {
        {"Clearwater Plumbing & Drain", "clearwater-plumbing", "Dispatcher"},
        {"Three Rivers Electric Co.", "threerivers-electric", "Master electrician"},
        {"Summit Heating and Air", "summit-heating", "Service desk"},
        {"O'Malley & Daughters Roofing", "omalley-roofing", "Estimator"},
        {"Handy Neighbor Repairs", "handy-neighbor", "Owner"},
        {"Bright Pane Glass and Door", "bright-pane", "Shop"},
    };
    SampleAccounts& accounts = books.accounts;
    for (const Vendor& each : kVendors) {
        accounts.vendors.push_back(AddFirm(books, "Vendor", each.company, each.site));
        AddRepresentative(books, accounts.vendors.back(), each.company, each.task);
    }
    accounts.landscaper = AddFirm(books, "Vendor", "Green Acre Grounds Care", "green-acre");
    accounts.pestControl = AddFirm(books, "Vendor", "Quiet House Pest Control", "quiet-house");
    accounts.security = AddFirm(books, "Vendor", "Night Owl Alarm Monitoring", "night-owl");
}

void AddUtilities(SampleBooks& books) {
    struct Utility {
        std::string_view company, site;
    };
    constexpr Utility kUtilities[] = {
        {"Valley Power Cooperative", "valley-power"},
        {"Regional Water District", "regional-water"},
        {"Cascade Gas Service", "cascade-gas"},
        {"Clean Basin Sewer Authority", "clean-basin"},
        {"Ridgeline Cable", "ridgeline-cable"},
        {"Four Corners Sanitation", "four-corners"},
    };
    for (const Utility& each : kUtilities) {
        books.accounts.utilities.push_back(AddFirm(books, "Utility", each.company, each.site));
    }
}

} // namespace

void WriteSampleAccounts(SampleBooks& books) {
    SampleAccounts& accounts = books.accounts;
    accounts.operatingBank =
        AddFirm(books, "Bank", "Harborstone Bank, Operating", "harborstone", "Rents and bills.");
    accounts.depositBank = AddFirm(books, "Bank", "Harborstone Bank, Deposits in Trust",
                                   "harborstone", "Tenants' deposits only.");
    AddFirm(books, "Credit", "Business Credit Card", "meridian-card");
    accounts.applianceStore = AddFirm(books, "Retail", "Corner Appliance Warehouse", "corner-appl");
    AddFirm(books, "Retail", "Hammer & Hinge Hardware", "hammer-hinge");
    AddUtilities(books);
    AddVendors(books);
    accounts.insurers = {
        AddFirm(books, "Insurance", "Lantern Mutual Insurance", "lantern-mutual"),
        AddFirm(books, "Insurance", "Stonebridge Property Casualty", "stonebridge-pc")};
    accounts.mortgagees = {
        AddFirm(books, "Mortgagee", "Evergreen Home Lending", "evergreen-lending"),
        AddFirm(books, "Mortgagee", "First Prairie Savings", "first-prairie"),
        AddFirm(books, "Mortgagee", "Tidewater Commercial Credit", "tidewater-cc")};
    accounts.housingAid =
        AddFirm(books, "Other", "County Housing Assistance Office", "housing-aid");
    accounts.association =
        AddFirm(books, "Other", "Heron Ridge Homeowners Association", "heron-ridge");
    accounts.managers = {
        AddPerson(books, "Building Manager", "Delphine", "R", "Achterberg"),
        AddFirm(books, "Building Manager", "Keystone Resident Services", "keystone-rs")};
    accounts.owners = {AddPerson(books, "Building Owner", "Augustin", "", "Marchetti"),
                       AddPerson(books, "Building Owner", "Rosalind", "E", "Marchetti"),
                       AddPerson(books, "Building Owner", "Siobhán", "", "O'Brien"),
                       AddFirm(books, "Building Owner", "Marchetti Family Trust", "marchetti")};
}

} // namespace store
