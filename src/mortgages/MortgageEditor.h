#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

/// Returns the errors in a mortgage's entries, a line each; empty if they can be saved.
std::vector<std::string> MortgageErrors(std::string_view accountNumber);

/// Asks before a new mortgage is saved, since its origination can't be changed later; returns true
/// for Yes.
bool AskToSaveNew();

/// Completes and writes the row of a mortgage, which has the screen's fields already: adds the
/// loan's own fields, and a description made from the lender's name and the account number if it
/// has none. Then the mortgage is brought up to date. One unit of work. Throws on failure.
void SaveMortgage(platform::Recordset& row, const clsMortgage& mortgage, std::string_view lender);

/// The commands by which the user changes a mortgage by hand.
enum class MortgageCommand { Reprocess, RollForward, Payoff };

/// Asks the user to confirm a command; returns true for Yes.
bool AskWhether(MortgageCommand command);

/// Runs a command on a stored mortgage, shows the result of a payoff and broadcasts the changes.
/// Throws on failure.
void RunCommand(MortgageCommand command, std::int32_t idMortgage);

/// Asks whether to move the current period; returns true for Yes.
bool AskToMoveDueDate(bool forward);

} // namespace mortgages
