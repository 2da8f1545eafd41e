#include "documents/ShippedDocs.h"

#include <algorithm>
#include <array>

#include "core/AppPath.h"
#include "core/Globals.h"
#include "core/ShippedFiles.h"
#include "documents/AttachFile.h"
#include "documents/DocList.h"

namespace documents {

namespace {

struct Purpose {
    std::string_view name;
    std::string_view field; ///< the flag of the table Doc
};

constexpr std::array kPurposes = {
    Purpose{"Late Notice", "selLease"},
    Purpose{"Final Notice", "selLease"},
    Purpose{"Rent Increase", "selLease"},
    Purpose{"Lease Renewal Offer", "selLease"},
    Purpose{"Welcome", "selLease"},
    Purpose{"Move-out and Deposit Settlement", "selLease"},
    Purpose{"Receipt Letter", "selTransaction"},
    Purpose{"Work Order for Vendor", "selWO"},
    Purpose{"Owner Cover Letter", "selAccount"},
    Purpose{"Mortgage Payoff Request", "selMortgage"},
};

} // namespace

std::string ShippedDocsFolder() {
    return core::App().AppPath + "Templates";
}

void InstallShippedDocs() {
    core::InstallShippedFiles(core::ShippedPath("Templates"), ShippedDocsFolder());
}

void AddShippedDocs(const std::string& folder) {
    for (const std::string& path : UnlistedDocs(folder)) {
        const std::int32_t id = AddDoc(path);
        const auto* const purpose =
            std::ranges::find(kPurposes, DescriptionOfFile(path), &Purpose::name);
        if (id == 0 || purpose == kPurposes.end()) continue;
        const auto* const flag = std::ranges::find(kDocFlags, purpose->field, &DocFlag::field);
        SetDocFlag(id, static_cast<std::size_t>(flag - kDocFlags.begin()), true);
    }
}

} // namespace documents
