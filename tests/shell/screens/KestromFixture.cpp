#include "shell/screens/KestromFixture.h"

#include <QHeaderView>
#include <QToolBar>

#include "core/DailyRun.h"
#include "core/EditRecord.h"
#include "core/Startup.h"

namespace tests {

using platform::qt::FromScreen;

namespace {

constexpr std::array kKinds = {core::kAccount, core::kLease,     core::kMortgage,
                               core::kTenant,  core::kWorkOrder, core::kUnit};

} // namespace

KestromTest::KestromTest() {
    for (const auto* sql :
         {"UPDATE Configuration SET CompanyName = 'Elm & Sons'",
          "UPDATE Lease SET Status = 'MTM', RentStatus = 'Warning', Rent = 950.5 "
          "WHERE IdLease = 40",
          "INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status, RentStatus, Rent) "
          "VALUES (41, 21, 30, 'Notice', 'Late', 1200)",
          "INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status, RentStatus, Rent) "
          "VALUES (42, 22, 30, 'MTM', 'Paid', 800)",
          "INSERT INTO Lease (IdLease, IdUnit, IdTenant, Status, Rent, Hide) "
          "VALUES (43, 22, 30, 'MTM', 700, True)",
          "UPDATE Mortgage SET Status = 'Current', PmtStatus = 'Late' WHERE IdMortgage = 50",
          "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, Amount, "
          "IdBuilding) VALUES (90, '05/01/2024', 'Ann', 'River Bank', 12.5, 10)",
          "INSERT INTO Transactions (IdTransaction, DateEffective, DebitDesc, CreditDesc, Amount, "
          "IdBuilding) VALUES (91, '01/01/2023', 'Bob', 'River Bank', 99, 11)"}) {
        Run(sql);
    }
    core::LoadBooks();
    for (const core::RunStep step : {core::RunStep::Mortgages, core::RunStep::Leases})
        core::RegisterRunStep(step, nullptr);
    const auto opened = [this](const core::EditRequest& request) {
        log_.push_back(std::to_string(core::KindNumber(request.kind)) + " " +
                       std::to_string(request.id));
    };
    for (const core::RecordKind kind : kKinds)
        core::RegisterOpener(kind, opened);
    services_.hasEditor = core::HasEditor;
    services_.end.endProcess = [this] { log_.emplace_back("end"); };
}

KestromTest::~KestromTest() {
    window_.reset();
    for (const core::RecordKind kind : kKinds)
        core::RegisterOpener(kind, nullptr);
}

shell::screens::frmKestrom& KestromTest::Window() {
    if (!window_) {
        window_ = std::make_unique<shell::screens::frmKestrom>(services_);
        window_->Setup({});
        support::SettleEvents();
    }
    return *window_;
}

void KestromTest::Reopen() {
    Window().close();
    window_.reset();
    core::App().Connection.Open(Folder() / "Vestrel.mdb");
    Window();
}

void KestromTest::Go(const char* tag) {
    auto* const bar = Window().findChild<QToolBar*>(QStringLiteral("toolBar"));
    for (QAction* const action : bar->actions()) {
        if (action->property("tag").toString() != QLatin1String(tag)) continue;
        QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
        support::SettleEvents();
        return;
    }
    throw std::runtime_error(std::string("no category ") + tag);
}

core::grid::Grid& KestromTest::Grid() {
    return support::Find<core::grid::Grid>(Window(), "grd");
}

QAction& KestromTest::Item(const char* name) {
    auto* const item = Window().findChild<QAction*>(QLatin1String(name));
    if (item == nullptr) throw std::runtime_error(std::string("no item ") + name);
    return *item;
}

std::string KestromTest::Status() {
    return FromScreen(support::Find<QLabel>(Window(), "lblStatus").text());
}

void KestromTest::ClickCaption(const char* caption) {
    QHeaderView& header = *Grid().horizontalHeader();
    for (int column = 0; column < Grid().Model().columnCount(); ++column) {
        if (Grid().Model().Caption(column) != QLatin1String(caption)) continue;
        const QPoint middle(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                            header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, middle);
        return;
    }
    throw std::runtime_error(std::string("no column ") + caption);
}

std::string KestromTest::Column(const char* caption) {
    std::string text;
    const auto& model = Grid().Model();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.Caption(column) != QLatin1String(caption)) continue;
        for (int row = 0; row < model.rowCount(); ++row) {
            text += FromScreen(model.CellText(row, column)) + "\n";
        }
    }
    return text;
}

} // namespace tests
