#include <array>
#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

#include <fmt/core.h>

#include "books/Categories.h"
#include "books/PostTransaction.h"
#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

using books::Transaction;

struct PostArguments {
    std::string debit;
    std::string credit;
    std::string amount;
    std::string category;
    Transaction transaction;
    std::string date;
};

constexpr auto kEntered = static_cast<std::int16_t>(core::TransactionClass::Ordinary);
constexpr auto kDeposit = static_cast<std::int16_t>(core::TransactionClass::Deposit);
constexpr auto kRefunded = static_cast<std::int16_t>(core::RentFlags::DepositRefund);
constexpr auto kChargedOff = static_cast<std::int16_t>(core::RentFlags::DepositCharge);

/// An option that names a record that the transaction is about.
struct Reference {
    const char* option;
    const char* name;
    core::RecordKind kind;
    std::int32_t Transaction::*id;
};

constexpr std::array<Reference, 6> kReferences = {
    {{"--lease", "lease", core::kLease, &Transaction::idLease},
     {"--tenant", "tenant", core::kTenant, &Transaction::idTenant},
     {"--building", "building", core::kBuilding, &Transaction::idBuilding},
     {"--unit", "unit", core::kUnit, &Transaction::idUnit},
     {"--mortgage", "mortgage", core::kMortgage, &Transaction::idMortgage},
     {"--work-order", "work order", core::kWorkOrder, &Transaction::idWorkOrder}}};

void CheckReferences(const Transaction& transaction) {
    for (const Reference& each : kReferences) {
        const std::int32_t id = transaction.*each.id;
        if (id == 0 || core::RecordExists(each.kind, id)) continue;
        throw platform::Error(fmt::format("{}: there is no {} {}", each.option, each.name, id));
    }
}

/// A deposit's transaction writes a row into the ledger of its lease, which reads class and flags.
void CheckClass(const Transaction& transaction) {
    const bool isDeposit = transaction.transactionClass == kDeposit;
    if (isDeposit && transaction.flags != kRefunded && transaction.flags != kChargedOff) {
        throw platform::Error("--flags: class 3 needs 3 (refunded) or 4 (charged off)");
    }
    if (!isDeposit && transaction.flags != 0) {
        throw platform::Error("--flags: only a transaction of class 3 has flags");
    }
    if (isDeposit && transaction.idLease == 0) {
        throw platform::Error("--lease: class 3 needs the lease that the deposit belongs to");
    }
}

/// Reads a category: one of the books by its name, or any other with its class: "Parking|0".
books::Category ReadCategory(const std::string& text) {
    const auto bar = text.find('|');
    if (platform::Trim(text.substr(0, bar)).empty()) {
        throw platform::Error("--category: name a category");
    }
    if (bar != std::string::npos) {
        const std::string ien = text.substr(bar + 1);
        if (ien == "0" || ien == "1" || ien == "2") return books::ParseCategory(text);
        throw platform::Error(
            fmt::format("--category: '{}' ends in no class: 0 for income, 1 for expense, 2 for "
                        "neither",
                        text));
    }
    const platform::Value ien =
        core::ReadValue("SELECT IEN FROM TransCategory WHERE Category = ?", {text});
    if (ien.IsNull()) {
        throw platform::Error(
            fmt::format("--category: there is no category '{0}'; give its class: "
                        "'{0}|0' for income, 1 for expense, 2 for neither",
                        text));
    }
    return {text, books::Ien{ien.AsInteger()}};
}

/// Prints the new row, and those that it triggered.
void PrintFrom(std::int32_t firstId) {
    platform::Recordset rows = core::Read(
        "SELECT IdTransaction, TaxCategory, DebitDesc, CreditDesc, DateEffective, Amount "
        "FROM Transactions WHERE IdTransaction >= ? ORDER BY IdTransaction",
        {firstId});
    for (; !rows.Eof(); rows.MoveNext()) {
        std::cout << fmt::format("Transaction {}: {}, {} to {}, {}, {}\n",
                                 rows["IdTransaction"].AsLong(), rows["TaxCategory"].AsText(),
                                 rows["DebitDesc"].AsText(), rows["CreditDesc"].AsText(),
                                 rows["DateEffective"].AsText(),
                                 platform::MoneyToFixedText(rows["Amount"].AsCurrency()));
    }
}

void Post(const PostArguments& given) {
    Transaction transaction = given.transaction;
    transaction.dateEffective =
        given.date.empty() ? platform::Today() : platform::Date::Parse(given.date);
    transaction.debit = ReadParty("--debit", given.debit);
    transaction.credit = ReadParty("--credit", given.credit);
    transaction.amount = ReadAmount("--amount", given.amount);
    const books::Category category = ReadCategory(given.category);
    transaction.taxCategory = category.text;
    transaction.ien = category.ien;
    CheckClass(transaction);
    CheckReferences(transaction);
    PrintFrom(books::PostTransaction(transaction));
}

void AddReferences(CLI::App& command, Transaction& transaction) {
    for (const Reference& each : kReferences) {
        command.add_option(each.option, transaction.*each.id, "A record that it is about")
            ->type_name("ID")
            ->check(IsId())
            ->group("References");
    }
}

} // namespace

void AddPost(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("post", "Post one transaction");
    auto given = std::make_shared<PostArguments>();
    const auto addText = [&](const char* name, std::string& value, const char* help) {
        return command->add_option(name, value, help)->check(IsValue());
    };
    addText("--debit", given->debit, "Who pays")->required()->type_name(kPartyForms);
    addText("--credit", given->credit, "Who is paid")->required()->type_name(kPartyForms);
    addText("--amount", given->amount, "How much")->required()->type_name("AMOUNT");
    command->add_option("--date", given->date, "The day of the transaction, by default today")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate());
    addText("--category", given->category,
            "A category of the books, or any with its class: 0 income, 1 expense, 2 neither")
        ->required()
        ->type_name("TEXT[|CLASS]");
    addText("--check", given->transaction.checkNumber, "The check's number")->type_name("N");
    addText("--description", given->transaction.description, "What it was for");
    command
        ->add_option("--class", given->transaction.transactionClass,
                     "What it belongs to: 0 nothing, 3 a lease's deposit")
        ->check(CLI::IsMember({kEntered, kDeposit}))
        ->capture_default_str();
    command
        ->add_option("--flags", given->transaction.flags,
                     "With class 3: 3 a deposit refunded, 4 a deposit charged off")
        ->check(CLI::IsMember({std::int16_t{0}, kRefunded, kChargedOff}))
        ->capture_default_str();
    AddReferences(*command, given->transaction);
    command->callback([given, &options] {
        OpenBooks(options, Purpose::Write);
        BookAndPrint([&] { Post(*given); });
    });
}

} // namespace vestrelctl
