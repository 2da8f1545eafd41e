#include "reports/ShippedFixture.h"

#include <algorithm>

#include "core/Configuration.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Conversions.h"
#include "reports/CatalogueReader.h"
#include "reports/LineGrammar.h"
#include "reports/ReportRun.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"

namespace tests {

namespace fs = std::filesystem;
using platform::Currency;
using platform::Date;

namespace {

const Date kToday(2026, 6, 15);
constexpr int kUnits = 12;

fs::path ShippedFolder() {
    fs::path folder = VESTREL_TEST_DATA;
    folder /= "../../share/Reports";
    return folder;
}

std::vector<std::string> Cells(std::string_view line) {
    std::vector<std::string> cells;
    while (true) {
        const auto bar = line.find('|');
        cells.emplace_back(line.substr(0, bar));
        if (bar == std::string_view::npos) return cells;
        line.remove_prefix(bar + 1);
    }
}

} // namespace

std::unique_ptr<support::TemporaryFolder> Shipped::books_;

void Shipped::SetUpTestSuite() {
    books_ = std::make_unique<support::TemporaryFolder>();
    shell::RegisterLogic();
    shell::MakeSamplePortfolio(*books_ / "sample", kUnits, kToday);
}

void Shipped::TearDownTestSuite() {
    books_.reset();
}

Shipped::Shipped() {
    platform::SetToday(kToday);
    core::App().DbPath = platform::AddBackslash((*books_ / "sample").string());
    core::App().DbFile = core::App().DbPath + "Vestrel.mdb";
    core::App().Connection.Open(core::App().DbFile);
    core::LoadConfiguration();
    reports::ChooseForRecord(report, 0);
    report.SelectedYear = "2025";
}

std::vector<fs::path> Shipped::Files() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(ShippedFolder()))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

FlowLines Shipped::Run(const std::string& file) {
    const fs::path path = ShippedFolder() / file;
    const auto text = reports::ReadDefinition(path);
    if (!text) throw std::runtime_error("no shipped report " + file);
    report.Kind =
        path.extension() == ".rcpt" ? reports::ReportKind::Receipt : reports::ReportKind::Report;
    reports::ReadCatalogueKeys(*text, report);
    reports::ReportRun run(report, path);
    platform::FixedMetrics metrics;
    FlowLines flow;
    platform::PrintSurface page(metrics, nullptr, &flow);
    run.Draw(page);
    return flow;
}

Currency Shipped::Sum(const std::string& sql) {
    const auto value = core::App().Connection.Scalar(sql);
    return !value || value->IsNull() ? Currency() : value->AsCurrency();
}

std::vector<Currency> Shipped::Amounts(const FlowLines& flow, std::string_view label,
                                       std::size_t column) {
    std::vector<Currency> amounts;
    for (const std::string& line : flow.lines) {
        if (!line.starts_with("row ")) continue;
        const auto cells = Cells(std::string_view(line).substr(4));
        if (cells[0] == label && column < cells.size())
            amounts.push_back(platform::StrToMoney(cells[column]));
    }
    return amounts;
}

Currency Shipped::Amount(const FlowLines& flow, std::string_view label, std::size_t column) {
    const auto amounts = Amounts(flow, label, column);
    EXPECT_FALSE(amounts.empty()) << label;
    return amounts.empty() ? Currency() : amounts.back();
}

std::vector<std::vector<std::string>> Shipped::TableRows(const FlowLines& flow,
                                                         std::string_view firstCaption) {
    std::vector<std::vector<std::string>> rows;
    bool counts = false;
    for (const std::string& line : flow.lines) {
        if (line.starts_with("head ")) {
            counts = Cells(std::string_view(line).substr(5))[0] == firstCaption;
        } else if (!line.starts_with("row ")) {
            counts = false;
        } else if (counts) {
            rows.push_back(Cells(std::string_view(line).substr(4)));
        }
    }
    return rows;
}

Currency Shipped::ColumnSum(const FlowLines& flow, std::string_view firstCaption,
                            std::size_t column) {
    Currency sum;
    for (const auto& cells : TableRows(flow, firstCaption))
        sum += platform::StrToMoney(cells.at(column));
    return sum;
}

Currency Shipped::Total(const FlowLines& flow, std::string_view line) {
    for (const std::string& printed : flow.lines) {
        if (printed.starts_with(line)) return platform::StrToMoney(printed.substr(line.size()));
    }
    ADD_FAILURE() << "no line " << line;
    return {};
}

Currency Shipped::Figure(const FlowLines& flow, std::string_view place) {
    if (const auto minus = place.rfind(" - "); minus != std::string_view::npos)
        return Figure(flow, place.substr(0, minus)) - Figure(flow, place.substr(minus + 3));
    if (const auto plus = place.rfind(" + "); plus != std::string_view::npos)
        return Figure(flow, place.substr(0, plus)) + Figure(flow, place.substr(plus + 3));
    if (place.starts_with("p ")) return Total(flow, place);
    const auto mark = place.find_first_of("#@");
    const std::string_view name = place.substr(0, mark);
    if (mark == std::string_view::npos) return Amount(flow, name);
    const std::string column(place.substr(mark + 1));
    if (place[mark] == '@') return Amount(flow, name, std::stoul(column));
    if (!column.empty()) return ColumnSum(flow, name, std::stoul(column));
    return Currency::FromUnits(static_cast<std::int64_t>(TableRows(flow, name).size()));
}

} // namespace tests
