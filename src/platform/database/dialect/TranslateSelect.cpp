#include <algorithm>
#include <charconv>

#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

bool IsText(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

/// The table of a query that takes its rows from just one.
const Source* OnlyTable(const Select& select) {
    if (select.from.size() != 1 || select.from[0]->kind != Source::Kind::Table) return nullptr;
    return select.from[0].get();
}

} // namespace

TranslatedSelect Translator::TranslateSelect(const Select& select) {
    TranslatedSelect translated;
    for (const auto& source : select.from)
        AddSources(*source);
    std::string from;
    for (const auto& source : select.from) {
        from += from.empty() ? " FROM " : ", ";
        const bool joined = select.from.size() > 1 && source->kind != Source::Kind::Table &&
                            source->kind != Source::Kind::Derived;
        const std::string sql = SourceSql(*source);
        from += joined ? "(" + sql + ")" : sql;
    }
    for (const SelectItem& item : select.items)
        TranslateItem(item, translated);

    translated.tail = std::move(from);
    if (select.where) translated.tail += " WHERE " + Condition(*select.where);
    std::string_view separator = " GROUP BY ";
    for (const ExpressionPtr& expression : select.groupBy) {
        const Typed group = Expr(*expression);
        translated.tail += separator;
        translated.tail += group.sql;
        if (group.IsText()) translated.tail += kTextCollation;
        separator = ", ";
    }
    if (select.having) translated.tail += " HAVING " + Condition(*select.having);

    const Source* table = OnlyTable(select);
    const bool standsForRows =
        table != nullptr && !select.distinct && select.groupBy.empty() && !scope_->hasAggregate;
    if (standsForRows) {
        translated.table = scope_->sources[0].table->name;
        translated.rowNumber = EngineName(table->alias) + ".rowid";
    }
    return translated;
}

void Translator::TranslateItem(const SelectItem& item, TranslatedSelect& translated) {
    const Expression& expression = *item.expression;
    if (expression.kind == ExpressionKind::Star) return ExpandStar(expression, translated);
    TranslatedItem entry{Expr(expression), std::string(item.alias), {}};
    if (expression.kind == ExpressionKind::Column) {
        entry.source = expression.text;
        if (entry.name.empty()) entry.name = expression.text;
    }
    if (entry.name.empty()) entry.name = fmt::format("Expr{}", unnamed_++);
    translated.items.push_back(std::move(entry));
}

void Translator::ExpandStar(const Expression& star, TranslatedSelect& translated) {
    // The same name from two tables would hide one of the fields: both then carry their table's.
    const auto isShared = [&](std::string_view name, const ScopeSource& own) {
        return std::any_of(scope_->sources.begin(), scope_->sources.end(),
                           [&](const ScopeSource& other) {
                               return &other != &own && other.table != nullptr &&
                                      other.table->Find(name) != nullptr;
                           });
    };
    bool any = false;
    for (const ScopeSource& source : scope_->sources) {
        if (!star.table.empty() && !EqualIgnoringCase(star.table, source.alias)) continue;
        any = true;
        const auto add = [&](const std::string& name, FieldType type) {
            std::string shown =
                isShared(name, source) ? fmt::format("{}.{}", source.alias, name) : name;
            translated.items.push_back(
                {MakeTyped(EngineName(source.alias) + "." + EngineName(name), type),
                 std::move(shown), name});
        };
        if (source.table != nullptr) {
            for (const Column& column : source.table->columns)
                add(column.name, column.type);
        } else {
            for (const ResultColumn& column : source.columns)
                add(column.name, column.type);
        }
    }
    if (!any) Fault(star.position, "There is no table to take all fields of");
}

TranslatedQuery Translator::TranslateQuery(const Query& query, RowNumber rowNumber,
                                           const std::vector<const Column*>& targets) {
    std::vector<TranslatedSelect> selects;
    Scope* const outer = scope_;
    std::vector<Scope> scopes(query.selects.size());
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        scopes[i].outer = outer;
        scope_ = &scopes[i];
        selects.push_back(TranslateSelect(query.selects[i]));
        if (selects[i].items.size() != selects[0].items.size()) {
            Fault(query.selects[i].position, "The parts of a union need as many columns each");
        }
    }
    scope_ = &scopes[0];

    TranslatedQuery result;
    const std::size_t count = selects[0].items.size();
    for (std::size_t column = 0; column < count; ++column) {
        std::optional<FieldType> type;
        for (const TranslatedSelect& select : selects) {
            type = CommonType(type, select.items[column].value.type);
        }
        result.columns.push_back({selects[0].items[column].name, type.value_or(FieldType::Text)});
    }

    if (!targets.empty()) FitTargets(result, targets, query.selects[0].position);
    for (std::size_t i = 0; i < selects.size(); ++i) {
        if (i > 0) result.sql += query.keepsEqualRows[i - 1] ? " UNION ALL " : " UNION ";
        AppendSelect(query, i, selects[i], rowNumber, result);
    }
    result.sql += Order(query, result.columns);
    if (selects.size() == 1 && !query.selects[0].top.empty()) {
        result.sql += fmt::format(" LIMIT {}", query.selects[0].top);
    }
    scope_ = outer;
    return result;
}

void Translator::FitTargets(TranslatedQuery& query, const std::vector<const Column*>& targets,
                            std::size_t position) const {
    if (query.columns.size() != targets.size()) {
        Fault(position,
              fmt::format("{} columns for {} fields", query.columns.size(), targets.size()));
    }
    for (std::size_t i = 0; i < targets.size(); ++i) {
        query.columns[i] = {targets[i]->name, targets[i]->type};
    }
}

void Translator::NoteAggregate(std::size_t position) {
    if (scope_ == nullptr) Fault(position, "There are no rows to sum up");
    scope_->hasAggregate = true;
}

void Translator::AppendSelect(const Query& query, std::size_t part, const TranslatedSelect& select,
                              RowNumber rowNumber, TranslatedQuery& result) {
    const Select& syntax = query.selects[part];
    const bool isUnion = query.selects.size() > 1;
    // The engine limits whole unions only.
    const bool limitsPart = isUnion && !syntax.top.empty();
    if (limitsPart) result.sql += "SELECT * FROM (";
    result.sql += syntax.distinct ? "SELECT DISTINCT " : "SELECT ";
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        const auto& [name, type] = result.columns[i];
        if (i > 0) result.sql += ", ";
        result.sql += ToType(select.items[i].value, type, name);
        if ((syntax.distinct || isUnion) && IsText(type)) result.sql += kTextCollation;
        if (rowNumber == RowNumber::Omit) result.sql += " AS " + EngineName(name);
    }
    if (rowNumber == RowNumber::Append && !isUnion && !select.table.empty()) {
        result.table = select.table;
        for (const TranslatedItem& item : select.items)
            result.sources.push_back(item.source);
        result.sql += ", " + select.rowNumber;
    }
    result.sql += select.tail;
    if (limitsPart) result.sql += fmt::format(" LIMIT {})", syntax.top);
}

TranslatedQuery Translator::NestedQuery(const Query& query) {
    return TranslateQuery(query, RowNumber::Omit);
}

std::string Translator::Order(const Query& query, const std::vector<ResultColumn>& columns) {
    std::string sql;
    for (const OrderItem& item : query.orderBy) {
        sql += sql.empty() ? " ORDER BY " : ", ";
        sql += OrderTerm(*item.expression, columns);
        if (item.descending) sql += " DESC";
    }
    return sql;
}

std::string Translator::OrderTerm(const Expression& expression,
                                  const std::vector<ResultColumn>& columns) {
    std::size_t position = 0;
    if (expression.kind == ExpressionKind::Number) {
        const char* const end = expression.text.data() + expression.text.size();
        const auto read = std::from_chars(expression.text.data(), end, position);
        if (read.ptr != end || position < 1 || position > columns.size()) {
            Fault(expression.position, fmt::format("There is no column {}", expression.text));
        }
    } else if (expression.kind == ExpressionKind::Column && expression.table.empty()) {
        for (std::size_t i = 0; i < columns.size() && position == 0; ++i) {
            if (EqualIgnoringCase(columns[i].name, expression.text)) position = i + 1;
        }
    }
    if (position > 0) {
        const bool text = IsText(columns[position - 1].type);
        return fmt::format("{}{}", position, text ? kTextCollation : "");
    }
    const Typed value = Expr(expression);
    return value.IsText() ? value.sql + std::string(kTextCollation) : value.sql;
}

} // namespace platform::dialect
