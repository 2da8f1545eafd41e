#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"

namespace platform::dialect {

CompiledStatement Translator::Translate(const Statement& statement) {
    CompiledStatement compiled;
    switch (statement.kind) {
        case Statement::Kind::Select: {
            TranslatedQuery query = TranslateQuery(*statement.query, RowNumber::Append);
            compiled.sql = std::move(query.sql);
            compiled.columns = std::move(query.columns);
            compiled.table = std::move(query.table);
            compiled.sources = std::move(query.sources);
            break;
        }
        case Statement::Kind::Insert:
            compiled = TranslateInsert(statement);
            break;
        case Statement::Kind::Update:
            compiled = TranslateUpdate(statement);
            break;
        case Statement::Kind::Delete:
            compiled = TranslateDelete(statement);
            break;
    }
    for (const auto& type : parameters_) {
        compiled.parameters.push_back(type.value_or(FieldType::Text));
    }
    return compiled;
}

const Column& Translator::FindColumn(const Table& table, const Assignment& assignment) const {
    const Column* column = table.Find(assignment.column);
    if (column == nullptr) {
        Fault(assignment.position,
              fmt::format("Unknown field '{}' of {}", assignment.column, table.name));
    }
    return *column;
}

CompiledStatement Translator::TranslateInsert(const Statement& statement) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    std::vector<const Column*> columns;
    for (std::size_t i = 0; i < statement.assignments.size(); ++i) {
        const Assignment& assignment = statement.assignments[i];
        if (assignment.column.empty()) {
            if (i == table.columns.size()) break;
            columns.push_back(&table.columns[i]);
        } else {
            columns.push_back(&FindColumn(table, assignment));
        }
    }
    if (statement.assignments.empty()) {
        for (const Column& column : table.columns)
            columns.push_back(&column);
    }

    CompiledStatement compiled;
    compiled.kind = StatementKind::Insert;
    compiled.sql = "INSERT INTO " + EngineName(table.name) + " (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i > 0) compiled.sql += ", ";
        compiled.sql += EngineName(columns[i]->name);
    }
    if (statement.query) {
        compiled.sql += ") " + TranslateQuery(*statement.query, RowNumber::Omit, columns).sql;
        return compiled;
    }
    if (statement.assignments.size() != columns.size()) {
        Fault(statement.tablePosition,
              fmt::format("{} values for {} fields", statement.assignments.size(), columns.size()));
    }
    compiled.sql += ") VALUES (";
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i > 0) compiled.sql += ", ";
        compiled.sql +=
            ToType(Expr(*statement.assignments[i].value), columns[i]->type, columns[i]->name);
    }
    compiled.sql += ")";
    return compiled;
}

CompiledStatement Translator::TranslateUpdate(const Statement& statement) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    Scope scope;
    scope.sources.push_back({statement.table, &table, {}});
    scope_ = &scope;
    CompiledStatement compiled;
    compiled.kind = StatementKind::Update;
    compiled.sql =
        "UPDATE " + EngineName(table.name) + " AS " + EngineName(statement.table) + " SET ";
    for (std::size_t i = 0; i < statement.assignments.size(); ++i) {
        const Assignment& assignment = statement.assignments[i];
        const Column& column = FindColumn(table, assignment);
        if (i > 0) compiled.sql += ", ";
        compiled.sql += EngineName(column.name) + " = " +
                        ToType(Expr(*assignment.value), column.type, column.name);
    }
    compiled.sql += Where(statement.where);
    return compiled;
}

CompiledStatement Translator::TranslateDelete(const Statement& statement) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    Scope scope;
    scope.sources.push_back({statement.table, &table, {}});
    scope_ = &scope;
    CompiledStatement compiled;
    compiled.kind = StatementKind::Delete;
    compiled.sql = "DELETE FROM " + EngineName(table.name) + " AS " + EngineName(statement.table) +
                   Where(statement.where);
    return compiled;
}

std::string Translator::Where(const ExpressionPtr& condition) {
    return condition ? " WHERE " + Condition(*condition) : std::string();
}

CompiledStatement Compile(std::string_view text, const Catalog& catalog) {
    const Statement statement = Parse(text);
    return Translator(text, catalog, statement.parameters).Translate(statement);
}

} // namespace platform::dialect
