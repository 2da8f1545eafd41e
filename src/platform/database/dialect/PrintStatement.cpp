#include "platform/database/dialect/Syntax.h"

namespace platform::dialect {

namespace {

void PrintField(std::string& out, const Assignment& assignment) {
    if (!assignment.table.empty()) out.append("[").append(assignment.table).append("].");
    out.append("[").append(assignment.column).append("]");
}

void PrintInsert(std::string& out, const Statement& statement) {
    out.append("INSERT INTO [").append(statement.table).append("]");
    const char* separator = " (";
    for (const Assignment& assignment : statement.assignments) {
        if (assignment.column.empty()) break;
        out += separator;
        PrintField(out, assignment);
        separator = ", ";
    }
    if (*separator == ',') out += ')';
    if (statement.query) {
        out += ' ';
        return Print(out, *statement.query);
    }
    separator = " VALUES (";
    for (const Assignment& assignment : statement.assignments) {
        out += separator;
        Print(out, *assignment.value);
        separator = ", ";
    }
    out += ')';
}

void PrintUpdate(std::string& out, const Statement& statement) {
    out.append("UPDATE [").append(statement.table).append("]");
    const char* separator = " SET ";
    for (const Assignment& assignment : statement.assignments) {
        out += separator;
        PrintField(out, assignment);
        out += " = ";
        Print(out, *assignment.value);
        separator = ", ";
    }
}

} // namespace

std::string Print(const Statement& statement) {
    std::string out;
    switch (statement.kind) {
        case Statement::Kind::Select:
            Print(out, *statement.query);
            break;
        case Statement::Kind::Insert:
            PrintInsert(out, statement);
            break;
        case Statement::Kind::Update:
            PrintUpdate(out, statement);
            break;
        case Statement::Kind::Delete:
            out.append("DELETE FROM [").append(statement.table).append("]");
            break;
    }
    if (statement.where) {
        out += " WHERE ";
        Print(out, *statement.where);
    }
    return out;
}

} // namespace platform::dialect
