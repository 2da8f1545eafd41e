#include "platform/database/dialect/Syntax.h"

namespace platform::dialect {

namespace {

void PrintAlias(std::string& out, std::string_view alias) {
    if (!alias.empty()) out.append(" AS [").append(alias).append("]");
}

template <typename List, typename PrintOne>
void PrintList(std::string& out, std::string_view before, const List& list, PrintOne printOne) {
    for (const auto& each : list) {
        out += before;
        printOne(each);
        before = ", ";
    }
}

void PrintClause(std::string& out, std::string_view word, const ExpressionPtr& condition) {
    if (!condition) return;
    out += word;
    Print(out, *condition);
}

void Print(std::string& out, const Select& select) {
    out += select.distinct ? "SELECT DISTINCT" : "SELECT";
    if (!select.top.empty()) out.append(" TOP ").append(select.top);
    if (select.topIsPercent) out += " PERCENT";
    PrintList(out, " ", select.items, [&](const SelectItem& item) {
        Print(out, *item.expression);
        PrintAlias(out, item.alias);
    });
    PrintList(out, " FROM ", select.from, [&](const auto& source) { Print(out, *source); });
    PrintClause(out, " WHERE ", select.where);
    PrintList(out, " GROUP BY ", select.groupBy, [&](const auto& each) { Print(out, *each); });
    PrintClause(out, " HAVING ", select.having);
}

} // namespace

void Print(std::string& out, const Query& query) {
    for (std::size_t i = 0; i < query.selects.size(); ++i) {
        if (i > 0) out += query.keepsEqualRows[i - 1] ? " UNION ALL " : " UNION ";
        Print(out, query.selects[i]);
    }
    PrintList(out, " ORDER BY ", query.orderBy, [&](const OrderItem& item) {
        Print(out, *item.expression);
        if (item.descending) out += " DESC";
    });
}

void Print(std::string& out, const Source& source) {
    std::string_view join;
    switch (source.kind) {
        case Source::Kind::Table:
            out.append("[").append(source.table).append("]");
            return PrintAlias(out, source.alias);
        case Source::Kind::Derived:
            out += '(';
            Print(out, *source.query);
            out += ')';
            return PrintAlias(out, source.alias);
        case Source::Kind::Inner:
            join = " INNER JOIN ";
            break;
        case Source::Kind::Left:
            join = " LEFT JOIN ";
            break;
        case Source::Kind::Right:
            join = " RIGHT JOIN ";
            break;
    }
    out += '(';
    Print(out, *source.left);
    out += join;
    Print(out, *source.right);
    out += " ON ";
    Print(out, *source.on);
    out += ')';
}

} // namespace platform::dialect
