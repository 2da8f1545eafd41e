#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

bool IsJoin(const BoundSource& source) {
    return source.kind != Source::Kind::Table && source.kind != Source::Kind::Derived;
}

std::string_view JoinWords(Source::Kind kind) {
    switch (kind) {
        case Source::Kind::Left:
            return " LEFT JOIN ";
        case Source::Kind::Right:
            return " RIGHT JOIN ";
        default:
            return " INNER JOIN ";
    }
}

} // namespace

void Emitter::EmitFrom(const BoundSelect& select) {
    for (std::size_t i = 0; i < select.from.size(); ++i) {
        sql_ += i == 0 ? " FROM " : ", ";
        // Joins are left-associative, so the first source needs no parentheses.
        if (i == 0) {
            EmitSource(*select.from[i]);
        } else {
            EmitJoined(*select.from[i]);
        }
    }
}

void Emitter::EmitJoined(const BoundSource& source) {
    const bool enclosed = IsJoin(source);
    if (enclosed) sql_ += '(';
    EmitSource(source);
    if (enclosed) sql_ += ')';
}

void Emitter::EmitSource(const BoundSource& source) {
    if (IsJoin(source)) {
        EmitSource(*source.left);
        sql_ += JoinWords(source.kind);
        EmitJoined(*source.right);
        sql_ += " ON ";
        Emit(*source.on);
        return;
    }
    if (source.kind == Source::Kind::Derived) {
        EmitNested(*source.query, ColumnNames::Numbered);
    } else {
        sql_ += EngineName(source.table);
        if (source.alias == source.table) return;
    }
    sql_ += " AS ";
    sql_ += EngineName(source.alias);
}

} // namespace platform::dialect
