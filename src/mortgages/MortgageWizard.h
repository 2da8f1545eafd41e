#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

/// What a person told of a loan that may be running already.
struct WizardEntries {
    /// The lender: a new account of this name, or the account chosen (0 for none).
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

/// The steps of the wizard, in their order.
enum class WizardStep { Intro, Lender, Terms, Details, Current, Last };

/// What is wrong with the entries of one step, the first fault alone; empty when nothing is.
std::string_view StepFault(WizardStep step, const WizardEntries& entries);

/// Adds the mortgage (and its lender, where that is new), aligned with its current figures; nothing
/// is charged for the days up to today. The screens are told. One unit of work; failures are
/// thrown. Answers the mortgage's id.
std::int32_t FinishWizard(const WizardEntries& entries);

} // namespace mortgages
