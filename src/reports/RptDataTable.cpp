// The table mode of a [DATA] section: rows in columns, with groups and totals.

#include <memory>
#include <optional>

#include "platform/values/Format.h"
#include "reports/DataTable.h"
#include "reports/Queries.h"
#include "reports/Tags.h"
#include "reports/clsRptData.h"

namespace reports {

using platform::Currency;
using platform::PrintSurface;

namespace {

constexpr platform::PrintColor kGrandTotalRule = 0x400040;

/// A sum of totals, exact as long as all of them are money.
class GrandTotal {
  public:
    void Add(const platform::Value& total) {
        if (const auto* amount = std::get_if<Currency>(&total.Held())) {
            money_ += *amount;
        } else if (!total.IsNull()) {
            number_ += total.AsDouble();
            isMoney_ = false;
        }
    }
    platform::Value Sum() const {
        if (isMoney_) return money_;
        return number_ + money_.ToDouble();
    }

  private:
    Currency money_;
    double number_ = 0;
    bool isMoney_ = true;
};

/// Returns the rows of a one-column query as texts, as many as there are rows. They are joined and
/// split at carriage returns, so a value with a carriage return shifts the groups after it.
std::vector<std::string> GroupValues(platform::Recordset& rows) {
    const auto count = static_cast<std::size_t>(rows.RecordCount());
    std::string all;
    for (; !rows.Eof(); rows.MoveNext())
        all += TextOf(rows[0].Value()) + '\r';
    std::vector<std::string> values;
    std::size_t begin = 0;
    while (values.size() < count) {
        const auto end = all.find('\r', begin);
        values.push_back(all.substr(begin, end - begin));
        begin = end + 1;
    }
    return values;
}

} // namespace

/// One showing of a table with all its groups.
class clsRptData::TableRun {
  public:
    TableRun(const clsRptData& section, PrintSurface& page) : section_(section), page_(page) {}

    void Show() {
        ReadGroups();
        ReadTexts();
        page_.ApplyStyle("Table");
        for (std::size_t pass = 0; pass < passes_; ++pass)
            ShowGroup(pass);
        if (!someHadData_) PrintNoRecords(page_);
        ShowGrandTotal();
    }

  private:
    bool IsGrouped() const { return section_.SQLQuery.empty() && !section_.GroupField.empty(); }
    std::string Filter() const {
        return section_.SQLFilter.empty() ? std::string() : " WHERE " + section_.SQLFilter;
    }
    /// Returns the condition for a group. The value is quoted as text whatever the field's type,
    /// and a quote in it isn't doubled: a group named O'Brien prints nothing.
    std::string GroupTest(std::size_t pass) const {
        return " (" + section_.GroupField + " = '" + groups_[pass] + "')";
    }

    void ReadGroups() {
        if (!IsGrouped()) return;
        platform::Recordset rows;
        passes_ = 0;
        const std::string sql = "SELECT DISTINCT " + section_.GroupField + " FROM " +
                                section_.SQLTables + Filter() + " ORDER BY " + section_.GroupField;
        if (!OpenQuery(rows, section_.Expand(sql))) return;
        groups_ = GroupValues(rows);
        passes_ = groups_.size();
    }

    void ReadTexts() {
        head_ =
            IsGrouped() ? "Selected " + section_.GroupDesc + " = %GROUPNAME%" : section_.HeadText;
        if (!section_.TotalField.empty()) {
            foot_ = section_.FootText.empty() ? "Total " + section_.TotalDesc + " = %GROUPTOTAL%"
                                              : section_.FootText;
        }
        head_ = section_.Expand(head_);
        foot_ = section_.Expand(foot_);
    }

    void ShowGroup(std::size_t pass) {
        if (pass > 0) page_.Text("");
        std::string sql = section_.SQLQuery;
        if (sql.empty()) sql = section_.ComposeQuery(IsGrouped() ? GroupTest(pass) : std::string());
        sql = section_.Expand(sql);
        platform::Recordset rows;
        if (OpenQuery(rows, sql)) {
            someHadData_ = true;
            if (pass > 0 && section_.LineBetween) section_.DrawLine(page_, "-");
            ShowHead(pass);
            ShowRows(rows, sql);
            rows.Close();
        }
        ReadTotal(pass);
        ShowFoot();
    }

    void ShowHead(std::size_t pass) {
        if (!head_.empty()) {
            std::string text = head_;
            if (IsGrouped()) ReplaceTag(text, "%GROUPNAME%", groups_[pass]);
            PrintIn(page_, "TableGroupHeader", text);
        }
        page_.ApplyStyle("Table");
    }

    void ShowRows(platform::Recordset& rows, std::string_view sql) {
        if (!columns_) columns_ = ColumnsOf(rows, TextSizesOf(sql), page_.PrintWidth());
        page_.StartTable();
        page_.AddTableArray(columns_->format, columns_->captions,
                            std::make_unique<QueryRows>(rows));
        page_.Table().border = platform::TableBorder::BelowHeader;
        ApplyAttributes(page_.Table(), section_.Attributes, section_.ColWrap);
        StyleHeader(page_);
        page_.EndTable();
    }

    void ReadTotal(std::size_t pass) {
        if (section_.TotalField.empty() || !someHadData_ || !section_.SQLQuery.empty()) return;
        std::string sql = "SELECT SUM(" + section_.TotalField + ") AS Total FROM " +
                          section_.SQLTables + Filter();
        // Without a filter this AND makes a query that fails, and the total of the group before is
        // shown again: definitions must give a filter with a grouped total.
        if (IsGrouped()) sql += " AND" + GroupTest(pass);
        platform::Recordset rows;
        if (!OpenQuery(rows, section_.Expand(sql))) return;
        totalFormat_ =
            rows[0].Type() == platform::FieldType::Currency ? platform::kMoneyFormat : "";
        const platform::Value total = rows["Total"].Value();
        total_ = total.IsNull() ? platform::Value(0) : total;
        grandTotal_.Add(total);
    }

    void ShowFoot() {
        if (foot_.empty() || !someHadData_) return;
        std::string text = foot_;
        ReplaceTag(text, "%GROUPTOTAL%", platform::Format(total_, totalFormat_));
        PrintIn(page_, "TableGroupTotal", text);
        page_.ApplyStyle("Table");
    }

    void ShowGrandTotal() {
        if (section_.TotalField.empty() || passes_ <= 1 || !section_.ShowGrandTotal ||
            !section_.SQLQuery.empty()) {
            return;
        }
        page_.ApplyStyle("TinyText");
        page_.Text("");
        page_.Style().penWidth = 1;
        page_.Style().penColor = kGrandTotalRule;
        page_.Rule();
        page_.Style().penColor = 0;
        PrintIn(page_, "TableGroupTotal",
                "Grand Total " + section_.TotalDesc + " = " +
                    platform::Format(grandTotal_.Sum(), totalFormat_));
        page_.ApplyStyle("Table");
    }

    const clsRptData& section_;
    PrintSurface& page_;
    std::vector<std::string> groups_;
    std::size_t passes_ = 1;
    std::string head_;
    std::string foot_;
    std::optional<DataColumns> columns_;
    bool someHadData_ = false;
    platform::Value total_{""};
    std::string_view totalFormat_;
    GrandTotal grandTotal_;
};

void clsRptData::ShowTable(PrintSurface& page) const {
    TableRun(*this, page).Show();
}

} // namespace reports
