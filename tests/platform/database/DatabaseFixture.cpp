#include "DatabaseFixture.h"

#include "platform/database/dialect/Catalog.h"

namespace platform {

namespace {

std::string Declared(std::string_view name, FieldType type) {
    return std::string(name) + " " + std::string(dialect::DeclarationOf(type));
}

} // namespace

DatabaseFixture::DatabaseFixture() {
    connection_.Open(File(), OpenMode::Create);
    connection_.RunScript(
        "CREATE TABLE Person (" + Declared("Id", FieldType::Long) + ", " +
        Declared("Name", FieldType::Text) + ", " + Declared("Remark", FieldType::Memo) + ", " +
        Declared("Age", FieldType::Integer) + ", " + Declared("Weight", FieldType::Double) + ", " +
        Declared("Balance", FieldType::Currency) + ", " + Declared("Active", FieldType::Boolean) +
        ");" + "CREATE TABLE Town (" + Declared("Id", FieldType::Long) + ", " +
        Declared("Name", FieldType::Text) + " DEFAULT 'Nowhere', " +
        Declared("Tax", FieldType::Currency) + " DEFAULT 12500);");
}

void DatabaseFixture::AddPerson(int id, const Value& name) {
    connection_.Execute("INSERT INTO Person (Id, Name) VALUES (?, ?)", {id, name});
}

std::string DatabaseFixture::Single(std::string_view sql) {
    const Value value = connection_.Scalar(sql).value();
    return value.IsNull() ? "null" : value.AsText();
}

std::string DatabaseFixture::Column(Recordset& rows, std::string_view field) {
    std::string column;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        column += rows[field].IsNull() ? "-" : rows[field].AsText();
        column += ' ';
    }
    return column;
}

} // namespace platform
