#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace records {

/// The fields that an account's display name is built from.
struct AccountName {
    std::string company;
    std::string lastName;
    std::string firstName;
    std::string initial;
    bool showAsIndividual = false;
};

/// Returns the errors in an account's entries, a line each; empty if they can be saved.
std::vector<std::string> AccountErrors(const AccountName& name);

/// Returns the name that lists show: the company, or the contact's name ("Smith, Ann B") if there
/// is no company or the account is to be shown as an individual.
std::string ShowAs(const AccountName& name);

/// Returns the types offered for an account, separated by commas: the types in use, then the
/// program's own types that aren't in use. Manager and owner types are searched for under other
/// words than they are offered under, so they may occur twice. Throws on failure.
std::string OfferedAccountTypes();

/// Returns the same list, given the types in use, separated by commas.
std::string OfferedAccountTypes(std::string_view inUse);

/// Returns whether an account of this type is the owner's own bank account or card, whose number is
/// kept private.
bool HasSecretNumber(std::string_view accountType);

} // namespace records
