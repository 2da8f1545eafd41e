#include "store/Tables.h"

#include <iterator>
#include <sstream>
#include <utility>

#include <fmt/core.h>

#include "store/TableParts.h"

namespace store {

namespace {

std::vector<std::string> Words(std::string_view text) {
    std::istringstream stream{std::string(text)};
    return {std::istream_iterator<std::string>(stream), {}};
}

std::vector<TableDefinition> AllTables() {
    std::vector<TableDefinition> all;
    for (auto& area : {PropertyTables(), PeopleTables(), MoneyTables(), SupportTables()})
        all.insert(all.end(), area.begin(), area.end());
    return all;
}

std::string_view DefaultOf(FieldKind kind) {
    return kind == FieldKind::Long || kind == FieldKind::Boolean ? " DEFAULT 0" : "";
}

void AppendIndex(std::string& script, const TableDefinition& table, std::string_view index) {
    std::string name = table.name;
    std::string columns;
    for (const std::string& column : Words(index)) {
        name += "_" + column;
        columns += fmt::format("{}\"{}\"", columns.empty() ? "" : ", ", column);
    }
    script += fmt::format("CREATE INDEX \"{}\" ON \"{}\" ({});\n", name, table.name, columns);
}

} // namespace

TableDefinition MakeTable(std::string_view name, std::initializer_list<FieldRun> runs,
                          std::initializer_list<std::string_view> indexes) {
    TableDefinition table{std::string(name), {}, {indexes.begin(), indexes.end()}};
    for (const FieldRun& run : runs)
        for (std::string& field : Words(run.names))
            table.fields.push_back({std::move(field), run.kind});
    return table;
}

const std::vector<TableDefinition>& BooksTables() {
    static const std::vector<TableDefinition> tables = AllTables();
    return tables;
}

const std::vector<TableDefinition>& AddedTables() {
    static const std::vector<TableDefinition> tables = LaterTables();
    return tables;
}

const std::vector<TableDefinition>& ReferenceTables() {
    static const std::vector<TableDefinition> tables = {
        MakeTable("ZipCodes", {{FieldKind::Long, "Zip"}, {FieldKind::Text, "City State County"}},
                  {"Zip"}),
        MakeTable("TaxURL", {{FieldKind::Text, "County State StateAbbr URL"}}),
    };
    return tables;
}

std::string_view DeclaredType(FieldKind kind) {
    switch (kind) {
        case FieldKind::Long:
        case FieldKind::Counter:
            return "INTEGER";
        case FieldKind::Integer:
            return "SMALLINT";
        case FieldKind::Double:
            return "DOUBLE";
        case FieldKind::Currency:
            return "CURRENCY";
        case FieldKind::Boolean:
            return "BOOLEAN";
        case FieldKind::Text:
            return "TEXT";
        case FieldKind::Memo:
            return "MEMO TEXT";
        case FieldKind::DateText:
            return "DATETEXT";
    }
    return "TEXT";
}

std::string SchemaScript(const std::vector<TableDefinition>& tables) {
    std::string script;
    for (const TableDefinition& table : tables) {
        std::string fields;
        for (const FieldDefinition& field : table.fields) {
            fields += fmt::format("{}\n  \"{}\" {}{}", fields.empty() ? "" : ",", field.name,
                                  DeclaredType(field.kind), DefaultOf(field.kind));
        }
        script += fmt::format("CREATE TABLE \"{}\" ({}\n);\n", table.name, fields);
        for (const std::string& index : table.indexes)
            AppendIndex(script, table, index);
    }
    return script;
}

} // namespace store
