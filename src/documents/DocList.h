#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"
#include "documents/mDocManagement.h"

namespace documents {

/// A kind of record that a template can be offered for: the flag of the table Doc, and the kind.
struct DocFlag {
    std::string_view field;
    std::string_view caption;
    core::RecordKind kind;
};

/// The flags in the order of the list's columns.
inline constexpr std::array<DocFlag, 9> kDocFlags = {
    {{"selAccount", "Account", core::kAccount},
     {"selLease", "Lease", core::kLease},
     {"selMortgage", "Mortgage", core::kMortgage},
     {"selTenant", "Tenant", core::kTenant},
     {"selWO", "Work Order", core::kWorkOrder},
     {"selTransaction", "Transaction", core::kTransaction},
     {"selMileage", "Mileage", core::kMileage},
     {"selBuilding", "Building", core::kBuilding},
     {"selUnit", "Unit", core::kUnit}}};

/// A row of the list of templates.
struct DocRow {
    DocTemplate letter;
    std::array<bool, kDocFlags.size()> flags{};
};

/// Returns all templates, by description. Throws on failure.
std::vector<DocRow> AllDocs();

/// Adds a file to the list as a template, offered for no kind yet, and notifies the open forms. A
/// path of 256 characters or more is refused in a message; returns the new id, 0 if refused.
std::int32_t AddDoc(const std::string& filePath);

/// Turns one flag of a template on or off (`flag` is an index of kDocFlags), and notifies the open
/// forms.
void SetDocFlag(std::int32_t idDoc, std::size_t flag, bool isOn);

/// Returns the template files in `folder` that aren't on the list yet, by name.
std::vector<std::string> UnlistedDocs(const std::string& folder);

} // namespace documents
