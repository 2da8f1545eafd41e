#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

/// What is wrong with what was entered for a mortgage, a line each.
std::vector<std::string> MortgageErrors(std::string_view accountNumber);

/// Asks before a new mortgage is saved, since its origination stays from then on; true for Yes.
bool AskToSaveNew();

/// Completes and writes the row of a mortgage, into which the screen has put its fields: the loan's
/// own fields, a description made of the lender's name and the account number where there is none.
/// Then it is brought up to date. One unit of work; failures are thrown.
void SaveMortgage(platform::Recordset& row, const clsMortgage& mortgage, std::string_view lender);

/// What a person does to a mortgage by hand.
enum class MortgageCommand { Reprocess, RollForward, Payoff };

/// Asks whether it is meant; true for Yes.
bool AskWhether(MortgageCommand command);

/// Does it to a stored mortgage and tells the person of a payoff and the screens of what changed.
/// Failures are thrown.
void RunCommand(MortgageCommand command, std::int32_t idMortgage);

/// Asks whether the current period is to move; true for Yes.
bool AskToMoveDueDate(bool forward);

} // namespace mortgages
