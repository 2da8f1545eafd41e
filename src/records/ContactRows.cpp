#include "records/ContactRows.h"

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/dialogs/Dialogs.h"

namespace records {

namespace {

platform::Connection& Books() {
    return core::App().Connection;
}

void StartContact(platform::Recordset& row, std::int32_t idContact, const RelatedOwner& owner) {
    row.AddNew();
    row["IdContact"].Set(idContact);
    row["dbType"].Set(owner.kind);
    row["IdRelated"].Set(owner.id);
    row["Description"].Set(platform::Value("New Contact"));
    row["IconFlag"].Set(std::int16_t{0});
}

} // namespace

std::vector<core::Choice> ListContacts(const RelatedOwner& owner) {
    platform::Recordset rows;
    rows.Open(Books(),
              "SELECT IdContact, Description FROM Contact WHERE (IdRelated = ?) AND (dbType = ?) "
              "ORDER BY Description",
              platform::CursorMode::ReadOnly, {owner.id, owner.kind});
    std::vector<core::Choice> contacts;
    for (; !rows.Eof(); rows.MoveNext()) {
        const platform::Field description = rows["Description"];
        contacts.push_back({description.IsNull() ? std::string() : description.AsText(),
                            rows["IdContact"].AsLong()});
    }
    return contacts;
}

std::int32_t AddContact(const RelatedOwner& owner) {
    platform::Recordset row;
    row.Open(Books(), "Contact", platform::CursorMode::AppendOnly);
    const std::int32_t id = core::NextId();
    StartContact(row, id, owner);
    row.Update();
    return id;
}

void OpenContact(platform::Recordset& row, std::int32_t idContact, const RelatedOwner& owner) {
    row.Open(Books(), "SELECT * FROM Contact WHERE IdContact = ?", platform::CursorMode::Updatable,
             {idContact});
    if (row.Eof()) StartContact(row, idContact, owner);
}

bool DeleteContact(std::int32_t idContact) {
    if (!platform::TheDialogs().AskYesNo("Confirm", "Delete selected Contact entry?",
                                         platform::Icon::Question)) {
        return false;
    }
    Books().Execute("DELETE * FROM Contact WHERE IdContact = ?", {idContact});
    return true;
}

} // namespace records
