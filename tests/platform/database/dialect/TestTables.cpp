#include "TestTables.h"

namespace platform::dialect {

namespace {

Catalog MakeCatalog() {
    using enum FieldType;
    Catalog catalog;
    catalog.Add({"Person",
                 {{"Id", Long},
                  {"Name", Text},
                  {"Born", Text},
                  {"Age", Integer},
                  {"Weight", Double},
                  {"Balance", Currency},
                  {"Active", Boolean},
                  {"Remark", Memo},
                  {"Check #", Text},
                  {"Option", Boolean},
                  {"Value", Currency},
                  {"Limit", Long},
                  {"Order", Long},
                  {"Date", Text}}});
    catalog.Add({"Pay",
                 {{"IdPay", Long},
                  {"Id", Long},
                  {"Amount", Currency},
                  {"Due", Text},
                  {"Class", Integer},
                  {"Category", Text}}});
    return catalog;
}

} // namespace

const Catalog& TestCatalog() {
    static const Catalog catalog = MakeCatalog();
    return catalog;
}

std::string TestSchema() {
    std::string script;
    for (const Table& table : TestCatalog().Tables()) {
        const char* separator = "(";
        script += "CREATE TABLE " + table.name;
        for (const Column& column : table.columns) {
            script += separator + ("[" + column.name + "] ");
            script += DeclarationOf(column.type);
            separator = ", ";
        }
        script += "); CREATE INDEX " + table.name + "_Id ON " + table.name + " (Id);";
    }
    return script;
}

} // namespace platform::dialect
