#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// The wizard's entries about a loan that may be running already.
struct WizardEntries {
    /// The lender: a new account of this name, or the chosen account (0 if none was chosen).
    bool newAccount = true;
    std::string accountName;
    std::int32_t idAccount = 0;
    /// The chosen account's name.
    std::string lenderName;

    platform::Currency origPV;
    double origTerm = 0;
    double origRate = 0; ///< percent
    platform::Currency origPmt;
    platform::Date firstDue;
    std::string loanNumber;
    bool interestOnly = false;
    bool adjustable = false;

    platform::Date nextDue;
    platform::Currency currentPV;
    double currentRate = 0; ///< percent
};

/// The steps of the wizard, in order.
enum class WizardStep { Intro, Lender, Terms, Details, Current, Last };

/// Returns the first error in a step; an empty string if there is none.
std::string_view StepFault(WizardStep step, const WizardEntries& entries);

/// Adds the mortgage (and its lender, if new), aligned with its current figures; nothing is charged
/// for the days up to today. The changes are broadcast. One unit of work. Returns the mortgage's
/// id. Throws on failure.
std::int32_t FinishWizard(const WizardEntries& entries);

} // namespace mortgages
