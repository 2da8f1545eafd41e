#include "books/Payment.h"

#include <algorithm>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/DeleteRecord.h"

namespace books {

Transaction TransactionOf(const Payment& payment, platform::Currency amount) {
    Transaction transaction;
    transaction.dateEffective = payment.dateEffective;
    transaction.debit = payment.from;
    transaction.credit = payment.to;
    transaction.amount = amount;
    transaction.taxCategory = payment.paymentType;
    transaction.checkNumber = payment.checkNumber;
    transaction.description = payment.description;
    return transaction;
}

std::int32_t StoreTransaction(const Payment& payment, const Transaction& transaction) {
    if (payment.IsNew()) return PostTransaction(transaction);
    RewriteTransaction(payment.idTransaction, transaction);
    return payment.idTransaction;
}

bool DeleteCharges(const ChargeDeletion& deletion) {
    if (deletion.ids.empty()) return false;
    const bool agreed = deletion.question.empty()
                            ? removal::AgreedToDelete(deletion.kind, deletion.ids.front())
                            : platform::TheDialogs().AskYesNo("Confirm Delete", deletion.question,
                                                              platform::Icon::Question);
    if (!agreed) return false;
    platform::UnitOfWork unit(core::App().Connection);
    for (const std::int32_t id : deletion.ids) {
        deletion.check(id);
        removal::RemoveRecord(deletion.kind, id, removal::Tell::Nobody);
    }
    if (deletion.follow) deletion.follow();
    core::NotifyAll(deletion.kind, core::kRecordsChanged, 0);
    unit.Commit();
    return true;
}

std::string NameFirst(const std::vector<std::int32_t>& ids, std::size_t most,
                      const std::function<std::string(std::int32_t id)>& lineOf) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(ids.size(), most); ++i)
        lines += lineOf(ids[i]);
    if (ids.size() > most) lines += fmt::format("\nand {} more", ids.size() - most);
    return lines;
}

} // namespace books
