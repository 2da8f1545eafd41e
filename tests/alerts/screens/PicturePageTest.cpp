#include <gmock/gmock.h>

#include <QClipboard>
#include <QPrinter>
#include <fstream>

#include "alerts/screens/PicturePage.h"
#include "core/EditRecord.h"
#include "platform/qt/charts/SeriesChart.h"
#include "platform/qt/preview/Printers.h"
#include "platform/system/Clock.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "support/screens/Screens.h"

namespace {

using platform::qt::FromScreen;
using platform::qt::SeriesChart;
using support::Find;
using testing::ElementsAre;
using testing::IsEmpty;

/// Prints into a file, or is cancelled by a user.
class FilePrinter : public platform::qt::PrinterChooser {
  public:
    FilePrinter(std::string file, int& asked) : file_(std::move(file)), asked_(asked) {}
    std::optional<platform::qt::PrintOrder> Ask(
        QWidget* /*owner*/, const platform::qt::PrintQuestion& /*question*/) override {
        ++asked_;
        if (file_.empty()) return std::nullopt;
        return platform::qt::PrintOrder{.printer = Usual(), .first = 0, .last = 0};
    }
    std::unique_ptr<QPrinter> Usual() override {
        auto printer = std::make_unique<QPrinter>();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(platform::qt::ToScreen(file_));
        return printer;
    }

  private:
    std::string file_;
    int& asked_;
};

class Picture : public support::ScreenTest {
  protected:
    Picture() {
        platform::SetToday(platform::Date(2024, 5, 17));
        std::filesystem::create_directories(core::App().ReportPath);
        for (const char* const name : {"Vacancy and turnover", "Rent charged and collected",
                                       "Cash flow by month", "Who owes what, by age"}) {
            const bool asksDates = name[0] == 'V';
            MakeFile(std::string("Reports/") + name + ".rpt",
                     std::string("[GENERAL]\nDESCRIPTION=") + name +
                         (asksDates ? "\nDATERANGE=SELECT\n" : "\nSELECTYEAR=TRUE\n"));
        }
        reports::LoadReportList();
        reports::SetReportViewer([this](int index) {
            const reports::ReportDef& report = *reports::FindReport(index);
            opened_.push_back(report.Description + ' ' + report.SelectedYear);
        });
        core::RegisterOpener(core::kLease, [this](const core::EditRequest& request) {
            opened_.push_back("lease " + std::to_string(request.id));
        });
    }
    ~Picture() override {
        reports::SetReportViewer({});
        core::RegisterOpener(core::kLease, {});
        platform::qt::SetPrinterChooser(nullptr);
    }

    static void AddBooks() {
        for (const auto* sql :
             {"UPDATE Lease SET Status = 'MTM' WHERE IdLease = 40",
              "INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status) VALUES (41, 21, 31, 'MTM')",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, "
              "Amount) VALUES (1, 40, 0, '05/01/2024', 1, 1, 950)",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, "
              "Amount) VALUES (2, 41, 90, '05/31/2024', 1, 1, 1000)",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, "
              "Amount) VALUES (3, 41, 90, '05/31/2024', 1, 2, -1000)",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, "
              "Amount) VALUES (4, 41, 0, '04/30/2024', 1, 0, 25.5)",
              "INSERT INTO RentLog (IdRentLog, IdLease, IdTransaction, DatePosted, Class, Flags, "
              "Amount) VALUES (5, 41, 0, '06/01/2024', 4, 0, 100)",
              "INSERT INTO Transactions (IdTransaction, DateEffective, IEN, Amount) "
              "VALUES (90, '05/31/2024', 0, 1000)",
              "INSERT INTO Transactions (IdTransaction, DateEffective, IEN, Amount) "
              "VALUES (91, '06/01/2023', 1, 80)",
              "INSERT INTO Transactions (IdTransaction, DateEffective, IEN, Amount) "
              "VALUES (92, '05/31/2023', 1, 7777)"})
            Run(sql);
    }
    void Show() {
        page_.resize(1000, 560);
        page_.show();
        page_.Refresh();
        support::SettleEvents();
    }
    std::string Sentence(const char* panel) {
        return FromScreen(Find<QLabel>(page_, (std::string("lbl") + panel).c_str()).text());
    }
    SeriesChart& Chart(const char* panel) {
        return Find<SeriesChart>(page_, (std::string("cht") + panel).c_str());
    }

    alerts::screens::PicturePage page_;
    std::vector<std::string> opened_;
};

TEST_F(Picture, TellsEachFigureInWordsAndOpensWhatIsBehindIt) {
    AddBooks();
    Show();
    EXPECT_EQ(Sentence("Occupancy"), "2 of 3 units have a running lease: 67 %.");
    EXPECT_EQ(Sentence("Rent"),
              "May 2024, with subsidies and fees: 51 % of what was charged was collected.");
    EXPECT_EQ(Sentence("Flow"), "Income 1,000.00, expenses 80.00, together 920.00.");
    EXPECT_EQ(Sentence("Debts"),
              "975.50 is owed in all, deposits and fees included and credits taken off.");
    for (const char* const panel : {"Occupancy", "Rent", "Flow", "Debts"})
        Find<QToolButton>(page_, (std::string("cmd") + panel).c_str()).click();
    EXPECT_THAT(opened_, ElementsAre("Vacancy and turnover 2024", "Rent charged and collected 2024",
                                     "Cash flow by month 2024", "Who owes what, by age 2024"));
    opened_.clear();
    SeriesChart& flow = Chart("Flow");
    flow.setFocus();
    QTest::keyClick(&flow, Qt::Key_Return); // the oldest month, of the year before
    for (int month = 0; month < 20; ++month)
        QTest::keyClick(&flow, Qt::Key_Right);
    QTest::keyClick(&flow, Qt::Key_Return);
    EXPECT_THAT(opened_, ElementsAre("Cash flow by month 2023", "Cash flow by month 2024"));
    opened_.clear();
    SeriesChart& debts = Chart("Debts");
    const int height = debts.viewport()->height();
    QPoint first;
    QPoint last;
    for (int y = height - 1; y >= 0; --y) {
        const QPoint at(debts.viewport()->width() / 2, y);
        if (debts.LabelAt(at) == 0) first = at;
        if (debts.LabelAt(at) == 1) last = at;
    }
    QTest::mouseClick(debts.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseClick(debts.viewport(), Qt::LeftButton, {}, last);
    EXPECT_THAT(opened_, ElementsAre("lease 40", "lease 41")) << "who owes most is on top";
}

TEST_F(Picture, SaysSoWhereThereIsNothingToDraw) {
    for (const char* const table : {"Lease", "Unit", "Building"})
        Run(std::string("DELETE FROM ") + table);
    Show();
    EXPECT_EQ(Sentence("Occupancy"), "There are no units yet.");
    EXPECT_EQ(Sentence("Rent"), "No rent was charged or collected in May 2024 yet.");
    EXPECT_EQ(Sentence("Flow"), "No income and no expenses in the last twelve months.");
    EXPECT_EQ(Sentence("Debts"), "Nobody owes anything.");
    for (const char* const panel : {"Occupancy", "Rent", "Flow", "Debts"})
        EXPECT_FALSE(Chart(panel).isVisible());
    EXPECT_THAT(support::Portray(page_, "picture-empty"), IsEmpty());
    core::App().Connection.RunScript("DROP TABLE RentLog");
    page_.Refresh();
    EXPECT_NE(Sentence("Rent"), "") << "says why";
    EXPECT_EQ(Sentence("Flow"), "No income and no expenses in the last twelve months.");
}

TEST_F(Picture, IsCopiedAndPrinted) {
    AddBooks();
    Run("UPDATE Tenant SET LastName = 'Featherstonehaugh-Cholmondeley <b>& Sons</b> of Upper Elm'");
    Show();
    EXPECT_THAT(support::LookFaults(page_, "picture-long"), IsEmpty());
    EXPECT_EQ(FromScreen(Find<QLabel>(Find<QWidget>(page_, "picture"), "lblAsOf").text()),
              "As of 05/17/2024")
        << "on the picture itself";
    Find<QPushButton>(page_, "cmdCopyPicture").click();
    EXPECT_GT(QApplication::clipboard()->image().width(), 500);

    int asked = 0;
    platform::qt::SetPrinterChooser(std::make_unique<FilePrinter>("", asked));
    Find<QPushButton>(page_, "cmdPrintPicture").click();
    EXPECT_EQ(asked, 1) << "and cancelled";
    platform::qt::SetPrinterChooser(std::make_unique<FilePrinter>(PathTo("picture.pdf"), asked));
    Find<QPushButton>(page_, "cmdPrintPicture").click();
    std::ifstream file(PathTo("picture.pdf"));
    std::string begin(5, ' ');
    file.read(begin.data(), 5);
    EXPECT_EQ(begin, "%PDF-");
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Picture, SaysThatAReportIsMissing) {
    std::filesystem::remove(PathTo("Reports/Cash flow by month.rpt"));
    reports::LoadReportList();
    AddBooks();
    Show();
    Find<QToolButton>(page_, "cmdFlow").click();
    EXPECT_THAT(Heard(),
                ElementsAre("Report: The report \"Cash flow by month\" is not available."));
}

} // namespace
