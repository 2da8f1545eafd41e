#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace records {

/// What an account's display name is made of.
struct AccountName {
    std::string company;
    std::string lastName;
    std::string firstName;
    std::string initial;
    bool showAsIndividual = false;
};

/// What is wrong with it, a line each.
std::vector<std::string> AccountErrors(const AccountName& name);

/// The name that lists show: the company, or the person ("Smith, Ann B") of an account without one
/// and of one that is to be shown as an individual.
std::string ShowAs(const AccountName& name);

/// The types that an account may be given, parted by commas: those in use, then those of the
/// program's own that don't occur in them. Those of managers and owners are looked for under other
/// words than they are offered by, and may come twice. Failures are thrown.
std::string OfferedAccountTypes();

/// The same for types in use that are told.
std::string OfferedAccountTypes(std::string_view inUse);

/// Whether an account of this type is a bank account or a card of the owner's own, whose number is
/// nobody else's business.
bool HasSecretNumber(std::string_view accountType);

} // namespace records
