#include "store/TextSizes.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <unordered_map>

#include "platform/values/Text.h"
#include "store/Tables.h"

namespace store {

namespace {

constexpr int kLong = 255;
/// As wide as a calculated day in a printed list.
constexpr int kDaySize = 14;

struct SizedFields {
    int size;
    std::string_view names; ///< separated by blanks, of any table
};

constexpr SizedFields kSizedFields[] = {
    {8, "Initial DLState StateAbbr CheckNum"},
    {10, "Unit Zip Bedrooms Bathrooms Garage"},
    {14, "Status RentStatus PmtStatus State DefaultState"},
    {16, "AccountType MaritalStatus TermType SvcTermType BillTermType BillType FeeType"},
    {16, "ExpireOption HOAFrequency DeprMethod"},
    {20, "Phone AltPhone FAX Mobile AccountNumber TaxIDFed TaxIDState Initiator"},
    {24, "City County DefaultCounty LastName FirstName SpouseName RoomType ApplianceType"},
    {24, "Category TaxCategory TriggerTaxCategory Vehicle DefaultCar UserName"},
    {28, "DebitDesc CreditDesc"},
    {44, "Email"},
    {40, "Address Address1 Address2 ShowAs Company CompanyName"},
    {50, "Description ShortDesc Destination Purpose"},
};

std::unordered_map<std::string, int> Sizes() {
    std::unordered_map<std::string, int> sizes;
    for (const auto& [size, names] : kSizedFields) {
        std::istringstream stream{std::string(names)};
        for (std::string name; stream >> name;)
            sizes.emplace(name, size);
    }
    return sizes;
}

} // namespace

int TextSizeOf(std::string_view table, std::string_view field) {
    const auto named = [](std::string_view name) {
        return [name](const auto& each) { return platform::EqualIgnoringCase(each.name, name); };
    };
    const auto& tables = BooksTables();
    const auto found = std::ranges::find_if(tables, named(table));
    if (found == tables.end()) return kLong;
    const auto definition = std::ranges::find_if(found->fields, named(field));
    if (definition == found->fields.end()) return kLong;
    if (definition->kind == FieldKind::DateText) return kDaySize;
    if (definition->kind != FieldKind::Text) return kLong;
    static const auto sizes = Sizes();
    const auto size = sizes.find(definition->name);
    return size == sizes.end() ? kLong : size->second;
}

} // namespace store
