#include <algorithm>
#include <charconv>

#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

/// What the rows of a union are called where they are ordered.
constexpr std::string_view kUnion = "Union";

/// All fields of two tables may hold the same name, where one would hide the other: both then carry
/// their table's.
void TellSharedNamesApart(std::vector<TranslatedItem>& items) {
    std::vector<std::size_t> shared;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isShared = std::ranges::any_of(items, [&](const TranslatedItem& other) {
            return !items[i].starOf.empty() && !other.starOf.empty() &&
                   other.starOf != items[i].starOf && EqualIgnoringCase(other.name, items[i].name);
        });
        if (isShared) shared.push_back(i);
    }
    for (const std::size_t i : shared)
        items[i].name = fmt::format("{}.{}", items[i].starOf, items[i].name);
}

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
    if (scope_->sources.size() > 1) TellSharedNamesApart(translated.items);

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
    TranslatedItem entry{Expr(expression), std::string(item.alias), {}, {}};
    if (expression.kind == ExpressionKind::Column) {
        entry.source = expression.text;
        if (entry.name.empty()) entry.name = expression.text;
    }
    if (entry.name.empty()) entry.name = fmt::format("Expr{}", unnamed_++);
    translated.items.push_back(std::move(entry));
}

void Translator::ExpandStar(const Expression& star, TranslatedSelect& translated) {
    bool any = false;
    for (const ScopeSource& source : scope_->sources) {
        if (!star.table.empty() && !EqualIgnoringCase(star.table, source.alias)) continue;
        any = true;
        const auto add = [&](const std::string& name, FieldType type) {
            translated.items.push_back(
                {MakeTyped(EngineName(source.alias) + "." + EngineName(name), type), name, name,
                 source.alias});
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
    scope_ = scopes.data();

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
    const bool isUnion = selects.size() > 1;
    for (std::size_t i = 0; i < selects.size(); ++i) {
        if (i > 0) result.sql += query.keepsEqualRows[i - 1] ? " UNION ALL " : " UNION ";
        AppendSelect(query, i, selects[i], isUnion ? RowNumber::Omit : rowNumber, result);
    }
    Scope unionRows{{{kUnion, nullptr, result.columns}}, outer};
    if (isUnion) {
        scope_ = &unionRows;
        // The engine orders a union by its columns alone.
        const bool byColumns = std::ranges::all_of(query.orderBy, [&](const OrderItem& item) {
            return OrderPosition(*item.expression, result.columns) > 0;
        });
        if (!byColumns) {
            result.sql = fmt::format("SELECT * FROM ({}) AS {}", result.sql, EngineName(kUnion));
        }
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

std::size_t Translator::OrderPosition(const Expression& expression,
                                      const std::vector<ResultColumn>& columns) const {
    if (expression.kind == ExpressionKind::Number) {
        std::size_t position = 0;
        const char* const end = expression.text.data() + expression.text.size();
        const auto read = std::from_chars(expression.text.data(), end, position);
        if (read.ptr != end || position < 1 || position > columns.size()) {
            Fault(expression.position, fmt::format("There is no column {}", expression.text));
        }
        return position;
    }
    if (expression.kind != ExpressionKind::Column || !expression.table.empty()) return 0;
    const auto found = std::ranges::find_if(columns, [&](const ResultColumn& column) {
        return EqualIgnoringCase(column.name, expression.text);
    });
    return found == columns.end() ? 0 : static_cast<std::size_t>(found - columns.begin()) + 1;
}

std::string Translator::OrderTerm(const Expression& expression,
                                  const std::vector<ResultColumn>& columns) {
    if (const std::size_t position = OrderPosition(expression, columns); position > 0) {
        const bool text = IsText(columns[position - 1].type);
        return fmt::format("{}{}", position, text ? kTextCollation : "");
    }
    const Typed value = Expr(expression);
    return value.IsText() ? value.sql + std::string(kTextCollation) : value.sql;
}

} // namespace platform::dialect
