#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

#include <fmt/core.h>

#include "books/Categories.h"
#include "books/PostTransaction.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Words.h"

namespace vestrelctl {

namespace {

struct PostWords {
    std::string debit;
    std::string credit;
    std::string amount;
    std::string category;
    books::Transaction transaction;
    std::string date;
};

/// "account:60", "tenant:30", or "name:Hardware Store" for somebody without a record.
books::Party ReadParty(const std::string& text) {
    const auto colon = text.find(':');
    const std::string kind = text.substr(0, colon);
    const std::string who = colon == std::string::npos ? std::string() : text.substr(colon + 1);
    if (kind == "name" && !who.empty()) return {core::kAccount, 0, who};
    const std::int16_t type = kind == "account"  ? core::kAccount
                              : kind == "tenant" ? core::kTenant
                                                 : core::kNone;
    if (type == core::kNone || who.empty()) {
        throw platform::Error(
            fmt::format("'{}' is no party: account:ID, tenant:ID or name:TEXT", text));
    }
    const std::int32_t id = platform::StrToInt32(who);
    return {type, id, NameOf(type, id)};
}

/// A category of the books by its text, or any with its class: "Parking|0".
books::Category ReadCategory(const std::string& text) {
    if (text.empty()) return {std::string(books::kNoCategory), books::Ien::Income};
    if (text.find('|') != std::string::npos) return books::ParseCategory(text);
    const auto ien =
        core::App().Connection.Scalar("SELECT IEN FROM TransCategory WHERE Category = ?", {text});
    if (!ien || ien->IsNull()) {
        throw platform::Error(
            fmt::format("There is no category '{0}'; give its class: '{0}|0' for income, 1 for "
                        "expense, 2 for neither",
                        text));
    }
    return {text, books::Ien{ien->AsInteger()}};
}

platform::Currency ReadAmount(const std::string& text) {
    const auto amount = platform::TryParseMoney(text);
    if (!amount) throw platform::Error(fmt::format("'{}' is no amount of money", text));
    return *amount;
}

/// The new row, and what it triggered.
void PrintFrom(std::int32_t firstId) {
    platform::Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT IdTransaction, TaxCategory, DebitDesc, CreditDesc, DateEffective, Amount "
              "FROM Transactions WHERE IdTransaction >= ? ORDER BY IdTransaction",
              platform::CursorMode::ReadOnly, {firstId});
    for (; !rows.Eof(); rows.MoveNext()) {
        std::cout << fmt::format("Transaction {}: {}, {} to {}, {}, {}\n",
                                 rows["IdTransaction"].AsLong(), rows["TaxCategory"].AsText(),
                                 rows["DebitDesc"].AsText(), rows["CreditDesc"].AsText(),
                                 rows["DateEffective"].AsText(),
                                 platform::MoneyToFixedText(rows["Amount"].AsCurrency()));
    }
}

void Post(const PostWords& words) {
    books::Transaction transaction = words.transaction;
    transaction.dateEffective =
        words.date.empty() ? platform::Today() : platform::Date::Parse(words.date);
    transaction.debit = ReadParty(words.debit);
    transaction.credit = ReadParty(words.credit);
    transaction.amount = ReadAmount(words.amount);
    const books::Category category = ReadCategory(words.category);
    transaction.taxCategory = category.text;
    transaction.ien = category.ien;
    PrintFrom(books::PostTransaction(transaction));
}

void AddReferences(CLI::App& command, books::Transaction& transaction) {
    const auto add = [&](const char* name, std::int32_t& id) {
        command.add_option(name, id, "A record that it is about")
            ->type_name("ID")
            ->group("References");
    };
    add("--lease", transaction.idLease);
    add("--tenant", transaction.idTenant);
    add("--building", transaction.idBuilding);
    add("--unit", transaction.idUnit);
    add("--mortgage", transaction.idMortgage);
    add("--work-order", transaction.idWorkOrder);
}

} // namespace

void AddPost(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("post", "Post one transaction");
    auto words = std::make_shared<PostWords>();
    constexpr const char* kParty = "account:ID|tenant:ID|name:TEXT";
    command->add_option("--debit", words->debit, "Who pays")->required()->type_name(kParty);
    command->add_option("--credit", words->credit, "Who is paid")->required()->type_name(kParty);
    command->add_option("--amount", words->amount, "How much")->required()->type_name("AMOUNT");
    command->add_option("--date", words->date, "The day of the transaction, today without it")
        ->type_name("MM/DD/YYYY")
        ->check(IsDay());
    command
        ->add_option("--category", words->category,
                     "A category of the books, or any with its class: 0 income, 1 expense, 2 "
                     "neither")
        ->type_name("TEXT[|CLASS]");
    command->add_option("--check", words->transaction.checkNumber, "The check's number")
        ->type_name("N");
    command->add_option("--description", words->transaction.description, "What it was for");
    command
        ->add_option("--class", words->transaction.transactionClass,
                     "What made it: 0 a person, 3 a lease's deposit")
        ->capture_default_str();
    command
        ->add_option("--flags", words->transaction.flags,
                     "With class 3: 3 a deposit refunded, 4 a deposit charged off")
        ->capture_default_str();
    AddReferences(*command, words->transaction);
    command->callback([words, &options] {
        OpenBooks(options);
        Post(*words);
    });
}

} // namespace vestrelctl
