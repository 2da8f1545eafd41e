#include "books/TransactionRules.h"

#include "platform/values/Text.h"

namespace books {

namespace {

bool NamesNobody(const Party& party) {
    return party.id == 0 && platform::Trim(party.description).empty();
}

bool SameParty(const Party& a, const Party& b) {
    if (a.type != b.type || a.id != b.id) return false;
    return a.id != 0 || platform::EqualIgnoringCase(platform::Trim(a.description),
                                                    platform::Trim(b.description));
}

} // namespace

std::string DoubtAbout(const Transaction& transaction) {
    const bool noFrom = NamesNobody(transaction.debit);
    const bool noTo = NamesNobody(transaction.credit);
    std::string doubt;
    if (noFrom && noTo) {
        doubt = "From and To are both empty.";
    } else if (noFrom) {
        doubt = "From is empty: the transaction doesn't say who pays.";
    } else if (noTo) {
        doubt = "To is empty: the transaction doesn't say who is paid.";
    } else if (SameParty(transaction.debit, transaction.credit)) {
        doubt = "From and To are the same: " + transaction.debit.description +
                " would pay the money to itself.";
    } else {
        return {};
    }
    return doubt + "\n\nDo you want to save the transaction anyway?";
}

} // namespace books
