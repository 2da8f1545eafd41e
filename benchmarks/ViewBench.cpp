// The list of transactions in the main window, from the choice of all of them to its first page,
// against the engine's own C calls for the same statement.
#include <QApplication>
#include <QComboBox>
#include <optional>

#include <fmt/core.h>

#include "Measure.h"
#include "PaintWatch.h"
#include "PlainViews.h"
#include "WindowBooks.h"
#include "core/RecordKinds.h"
#include "core/grid/Grid.h"
#include "shell/Views.h"
#include "shell/screens/frmKestrom.h"
#include "support/TemporaryFolder.h"

namespace {

using bench::Cost;

constexpr int kPage = 100;

/// The main window on the transactions of the last days, of which there are none.
class OpenWindow {
  public:
    explicit OpenWindow(const std::filesystem::path& folder) {
        bench::OpenWindowBooks(folder);
        application_.emplace(argc_, argv_);
        window_.emplace(shell::screens::WindowServices{});
        window_->resize(1280, 800);
        window_->Setup({});
        window_->SetSelectedDb(core::kTransaction);
        QCoreApplication::processEvents();
    }

    double ShowAll() {
        auto& days = *window_->findChild<QComboBox*>(QStringLiteral("cboDays"));
        const bench::PaintWatch watch(*Grid().viewport());
        days.setCurrentIndex(days.count() - 1);
        watch.Wait();
        return Grid().Model().rowCount();
    }

    /// On until the list has read all its rows.
    double ReadAll() {
        core::grid::GridModel& model = Grid().Model();
        bool isRead = false;
        QObject::connect(&model, &core::grid::GridModel::AllRead, [&] { isRead = true; });
        const double rows = ShowAll();
        while (!isRead)
            QCoreApplication::processEvents();
        return rows;
    }

    /// Every cell as the list would show it.
    double ReadTexts() {
        const core::grid::GridModel& model = Grid().Model();
        const double rows = ShowAll();
        qsizetype letters = 0;
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column)
                letters += model.CellText(row, column).size();
        }
        return letters > 0 ? rows : 0;
    }

  private:
    core::grid::Grid& Grid() {
        return *window_->findChild<core::grid::Grid*>(QStringLiteral("grd"));
    }

    int argc_ = 1;
    char name_[6] = "bench";
    char* argv_[2] = {name_, nullptr};
    std::optional<QApplication> application_;
    std::optional<shell::screens::frmKestrom> window_;
};

/// The quickest of three, each in a process of its own.
template <class Work>
Cost Best(const std::filesystem::path& folder, Work work) {
    Cost best;
    for (int i = 0; i < 3; ++i) {
        OpenWindow* window = nullptr; // ends with its process
        const Cost cost = bench::InOwnProcess([&] { window = new OpenWindow(folder); },
                                              [&] { return work(*window); });
        if (i == 0 || cost.seconds < best.seconds) best = cost;
    }
    return best;
}

template <class Work>
double BestPlain(Work work) {
    double best = 1e9;
    for (int i = 0; i < 3; ++i)
        best = std::min(best, bench::InOwnProcess([] {}, work).seconds);
    return best;
}

void BenchRows(int transactions) {
    const support::TemporaryFolder folder;
    const auto books = folder.Path() / "books";
    bench::InOwnProcess([&] { bench::MakeWindowBooks(books, {.transactions = transactions}); },
                        [] { return 0.0; });
    const std::string statement =
        shell::BuildViewSql(core::kTransaction, {.days = 0}, shell::IdColumn::First);
    const auto file = books / "Vestrel.mdb";

    const Cost empty = Best(books, [](OpenWindow&) { return 0.0; });
    const Cost page = Best(books, [](OpenWindow& window) { return window.ShowAll(); });
    const Cost all = Best(books, [](OpenWindow& window) { return window.ReadAll(); });
    const Cost texts = Best(books, [](OpenWindow& window) { return window.ReadTexts(); });
    const double plainPage = BestPlain([&] { return bench::CountAndStep(file, statement, kPage); });
    const double plainCells = BestPlain([&] { return bench::StepAll(file, statement); });

    fmt::print(
        "{:.0f} transactions: first page {:.3f} s, all rows {:.3f} s, all texts {:.3f} s, "
        "{:.0f} MB; the engine alone {:.3f} s and {:.3f} s\n",
        page.rows, page.seconds, all.seconds, texts.seconds, all.peakMegabytes, plainPage,
        plainCells);
    bench::Report("  first page against counting and 100 rows", page.seconds / plainPage, 3);
    bench::Report("  all rows against stepping all of them", all.seconds / plainCells, 2);
    fmt::print("  every cell's text made, which no list ever needs {:>9.2f} times\n",
               texts.seconds / plainCells);
    bench::Report("  memory above the empty window", all.peakMegabytes - empty.peakMegabytes, 300,
                  "MB");
}

/// Without arguments both sizes; otherwise the numbers of rows that are named.
int Run(int argc, char** argv) {
    if (argc == 1) {
        BenchRows(100'000);
        BenchRows(1'000'000);
    }
    for (int i = 1; i < argc; ++i)
        BenchRows(std::atoi(argv[i]));
    return bench::ExitStatus();
}

} // namespace

int main(int argc, char** argv) {
    return bench::Guarded([&] { return Run(argc, argv); });
}
