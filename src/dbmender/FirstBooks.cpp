#include "dbmender/FirstBooks.h"

#include "core/BooksSettings.h"
#include "core/Codes.h"
#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/Connection.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "store/CreateDatabase.h"

namespace dbmender {

namespace {

using core::RowToWrite;

/// Fills the fields that nobody entered, as the editors do, and keeps the row.
void Keep(RowToWrite& row) {
    row["Hide"].Set(false);
    row["Selected"].Set(false);
    core::RepairNulls(row.row, nullptr);
    row.row.Update();
}

void AddProperty(const FirstEntries& entries, std::string_view address) {
    RowToWrite building("Building", "IdBuilding");
    building["Multi"].Set(false);
    building["Address"].Set(address);
    Keep(building);

    RowToWrite unit("Unit", "IdUnit");
    unit["IdBuilding"].Set(building.id);
    unit["Unit"].Set(platform::Trim(entries.unit));
    unit["Status"].Set(core::kUnitAvailable);
    unit["Rent"].Set(entries.rent);
    Keep(unit);
}

void Enter(const FirstEntries& entries) {
    platform::Connection& books = core::App().Connection;
    platform::UnitOfWork work(books);
    if (!core::CreateDefaultConfiguration(books)) {
        throw platform::Error("The settings of the new books can't be written.");
    }
    core::Execute("UPDATE Configuration SET CompanyName = ?",
                  {std::string(platform::Trim(entries.company))});
    core::SetBooksKeptSince(entries.since);
    const std::string_view address = platform::Trim(entries.address);
    if (!address.empty()) AddProperty(entries, address);
    work.Commit();
}

} // namespace

void MakeFirstBooks(const std::filesystem::path& folder, const FirstEntries& entries) {
    store::NewDatabase made(folder);
    platform::Connection& books = core::App().Connection;
    books.Open(made.Draft());
    try {
        Enter(entries);
    } catch (...) {
        core::CloseDatabase(books);
        throw;
    }
    core::CloseDatabase(books);
    made.Publish();
}

} // namespace dbmender
