#include "records/AccountRules.h"

#include <array>
#include <utility>

#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"

namespace records {

namespace {

/// Each type that is looked for, and the type that is offered if it isn't found.
constexpr std::array<std::pair<std::string_view, std::string_view>, 10> kOffers = {{
    {"Retail", "Retail"},
    {"Credit", "Credit"},
    {"Bank", "Bank"},
    {"Utility", "Utility"},
    {"Other", "Other"},
    {"Vendor", "Vendor"},
    {"Insurance", "Insurance"},
    {"Mortgagee", "Mortgagee"},
    {"Property Manager", "Building Manager"},
    {"Property Owner", "Building Owner"},
}};

std::string TypesInUse() {
    platform::Recordset rows = core::Read("SELECT DISTINCT AccountType FROM Account ORDER BY 1");
    std::string types;
    for (; !rows.Eof(); rows.MoveNext()) {
        const platform::Field type = rows["AccountType"];
        if (!type.IsBlank()) types.append(type.AsText()).append(",");
    }
    return types;
}

} // namespace

std::vector<std::string> AccountErrors(const AccountName& name) {
    if (platform::Trim(name.company).empty() && platform::Trim(name.lastName).empty()) {
        return {"A company or last name must be entered."};
    }
    return {};
}

std::string ShowAs(const AccountName& name) {
    if (!name.company.empty() && !name.showAsIndividual) return name.company;
    std::string person = name.lastName + ", " + name.firstName;
    if (!name.initial.empty()) person += " " + name.initial;
    return person;
}

std::string OfferedAccountTypes() {
    return OfferedAccountTypes(TypesInUse());
}

std::string OfferedAccountTypes(std::string_view inUse) {
    std::string types(inUse);
    if (!types.empty() && types.back() != ',') types += ',';
    for (const auto& [wanted, offered] : kOffers) {
        if (inUse.find(wanted) == std::string_view::npos) types.append(offered).append(",");
    }
    return types;
}

bool HasSecretNumber(std::string_view accountType) {
    return platform::EqualIgnoringCase(accountType, "Bank") ||
           platform::EqualIgnoringCase(accountType, "Credit");
}

} // namespace records
