#include "alerts/screens/PicturePage.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>

#include <fmt/core.h>

#include "alerts/screens/FigurePanel.h"
#include "core/Configuration.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/qt/preview/Printers.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"

namespace alerts::screens {

using core::forms::Guarded;
using platform::Currency;
using platform::FormatMoney;
using platform::qt::ChartDepth;
using platform::qt::ChartShape;
using platform::qt::ToScreen;

namespace {

/// Longer names would leave no room for the bars.
constexpr int kLongestName = 26;
constexpr double kPrintMargin = 0.05; // of the page's width

QString Money(Currency amount) {
    return ToScreen(FormatMoney(amount));
}

QString Shortened(const std::string& name) {
    const QString text = ToScreen(name).simplified();
    return text.size() <= kLongestName ? text : text.left(kLongestName - 1) + QChar(0x2026);
}

QPushButton* MakeButton(QWidget& parent, const char* name, const QString& text) {
    auto* const button = new QPushButton(text, &parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

PicturePage::PicturePage(QWidget* parent)
    : QWidget(parent),
      copy_(MakeButton(*this, "cmdCopyPicture", tr("Copy as &Picture"))),
      print_(MakeButton(*this, "cmdPrintPicture", tr("P&rint Picture..."))),
      board_(new QWidget(this)),
      asOf_(new QLabel(board_)),
      occupancy_(new FigurePanel(QStringLiteral("Occupancy"), tr("Occupancy"), board_)),
      rent_(new FigurePanel(QStringLiteral("Rent"), tr("Rent this month"), board_)),
      flow_(new FigurePanel(QStringLiteral("Flow"), tr("Income and expenses of twelve months"),
                            board_)),
      debts_(new FigurePanel(QStringLiteral("Debts"), tr("Who owes most"), board_)) {
    Lay();
    Connect();
}

void PicturePage::Lay() {
    asOf_->setObjectName(QStringLiteral("lblAsOf"));
    asOf_->setTextFormat(Qt::PlainText);
    asOf_->setWordWrap(true);
    auto* const top = new QHBoxLayout;
    top->addStretch(1);
    top->addWidget(copy_);
    top->addWidget(print_);
    board_->setObjectName(QStringLiteral("picture"));
    board_->setAutoFillBackground(true);
    auto* const panels = new QGridLayout(board_);
    panels->addWidget(asOf_, 0, 0, 1, 2);
    panels->addWidget(occupancy_, 1, 0);
    panels->addWidget(rent_, 1, 1);
    panels->addWidget(flow_, 2, 0);
    panels->addWidget(debts_, 2, 1);
    panels->setColumnStretch(0, 1);
    panels->setColumnStretch(1, 1);
    panels->setRowStretch(1, 2);
    panels->setRowStretch(2, 3);
    flow_->Chart().setMinimumHeight(170);
    debts_->Chart().setMinimumHeight(150);
    auto* const scroll = new QScrollArea(this);
    scroll->setWidget(board_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(top);
    rows->addWidget(scroll, 1);
    connect(copy_, &QPushButton::clicked, this, [this] { Guarded([this] { Copy(); }); });
    connect(print_, &QPushButton::clicked, this, [this] { Guarded([this] { Print(); }); });
}

void PicturePage::Connect() {
    const auto opens = [this](FigurePanel& panel, std::string_view report) {
        const auto open = [this, report] {
            Guarded([&] { OpenReport(report, platform::Today()); });
        };
        connect(&panel, &FigurePanel::ReportAsked, this, open);
        return open;
    };
    for (const auto& [panel, report] :
         {std::pair(occupancy_, kOccupancyReport), std::pair(rent_, kRentReport)}) {
        connect(&panel->Chart(), &platform::qt::SeriesChart::LabelOpened, this,
                opens(*panel, report));
    }
    opens(*flow_, kFlowReport);
    opens(*debts_, kDebtsReport);
    connect(&flow_->Chart(), &platform::qt::SeriesChart::LabelOpened, this, [this](int month) {
        Guarded([&] {
            OpenReport(kFlowReport,
                       figures_.flow.months.at(static_cast<std::size_t>(month)).firstDay);
        });
    });
    connect(&debts_->Chart(), &platform::qt::SeriesChart::LabelOpened, this, [this](int debtor) {
        Guarded([&] {
            core::EditRecord(core::kLease,
                             figures_.debts.most.at(static_cast<std::size_t>(debtor)).idLease);
        });
    });
}

void PicturePage::Refresh() {
    figures_ = GetPortfolioPicture();
    const QString today = ToScreen(platform::FormatDate(platform::Today(), platform::kDateFormat));
    const QString company = ToScreen(core::Config().CompanyName).simplified();
    asOf_->setText(company.isEmpty() ? tr("As of %1").arg(today)
                                     : tr("%1, as of %2").arg(company, today));
    ShowOccupancy();
    ShowRent();
    ShowFlow();
    ShowDebts();
}

void PicturePage::ShowOccupancy() {
    const Occupancy& figure = figures_.occupancy;
    if (!figure.fault.empty()) return occupancy_->ShowOnly(ToScreen(figure.fault));
    if (figure.units == 0) return occupancy_->ShowOnly(tr("There are no units yet."));
    const std::int32_t vacant = figure.units - figure.occupied;
    occupancy_->ShowFigure(tr("%1 of %2 units have a running lease: %3.")
                               .arg(figure.occupied)
                               .arg(figure.units)
                               .arg(ToScreen(PercentText(Currency::FromUnits(figure.occupied),
                                                         Currency::FromUnits(figure.units)))));
    occupancy_->Chart().Show(
        {tr("Occupied %1").arg(figure.occupied), tr("Vacant %1").arg(vacant)},
        {{tr("Units"), {static_cast<double>(figure.occupied), static_cast<double>(vacant)}}},
        ChartShape::Rows, ChartDepth::Flat, false);
}

void PicturePage::ShowRent() {
    const MonthsRent& figure = figures_.rent;
    if (!figure.fault.empty()) return rent_->ShowOnly(ToScreen(figure.fault));
    const QString month = ToScreen(platform::FormatDate(figure.firstDay, "mmmm yyyy"));
    if (figure.charged.IsZero() && figure.collected.IsZero())
        return rent_->ShowOnly(tr("No rent was charged or collected in %1 yet.").arg(month));
    const QString share = ToScreen(PercentText(figure.collected, figure.charged));
    rent_->ShowFigure(share.isEmpty()
                          ? tr("%1, with subsidies and fees.").arg(month)
                          : tr("%1, with subsidies and fees: %2 of what was charged was collected.")
                                .arg(month, share));
    rent_->Chart().Show({tr("Charged %1").arg(Money(figure.charged)),
                         tr("Collected %1").arg(Money(figure.collected))},
                        {{month, {figure.charged.ToDouble(), figure.collected.ToDouble()}}},
                        ChartShape::Rows, ChartDepth::Flat, false);
}

void PicturePage::ShowFlow() {
    const YearsFlow& figure = figures_.flow;
    if (!figure.fault.empty()) return flow_->ShowOnly(ToScreen(figure.fault));
    QStringList labels;
    platform::qt::ChartSeries income{tr("Income"), {}};
    platform::qt::ChartSeries expenses{tr("Expenses"), {}};
    Currency earned;
    Currency spent;
    bool isEmpty = true;
    for (const MonthsFlow& month : figure.months) {
        labels << ToScreen(platform::FormatDate(month.firstDay, "mmm"));
        income.values.push_back(month.income.ToDouble());
        expenses.values.push_back(month.expenses.ToDouble());
        earned += month.income;
        spent += month.expenses;
        isEmpty = isEmpty && month.income.IsZero() && month.expenses.IsZero();
    }
    if (isEmpty) return flow_->ShowOnly(tr("No income and no expenses in the last twelve months."));
    flow_->ShowFigure(tr("Income %1, expenses %2, together %3.")
                          .arg(Money(earned), Money(spent), Money(earned - spent)));
    flow_->Chart().Show(labels, {std::move(income), std::move(expenses)}, ChartShape::Bars,
                        ChartDepth::Flat, true);
}

void PicturePage::ShowDebts() {
    const Debts& figure = figures_.debts;
    if (!figure.fault.empty()) return debts_->ShowOnly(ToScreen(figure.fault));
    if (figure.most.empty()) return debts_->ShowOnly(tr("Nobody owes anything."));
    QStringList labels;
    platform::qt::ChartSeries owed{tr("Owed"), {}};
    for (const Debtor& debtor : figure.most) {
        const std::string& name = debtor.tenant.empty() ? debtor.property : debtor.tenant;
        labels << Shortened(name) + QStringLiteral("  ") + Money(debtor.amount);
        owed.values.push_back(debtor.amount.ToDouble());
    }
    debts_->ShowFigure(tr("%1 is owed in all, deposits and fees included and credits taken off.")
                           .arg(Money(figure.total)));
    debts_->Chart().Show(labels, {std::move(owed)}, ChartShape::Rows, ChartDepth::Flat, false);
}

void PicturePage::OpenReport(std::string_view description, platform::Date month) const {
    const int index = reports::FindReportNamed(description);
    reports::ReportDef* const report = reports::FindReport(index);
    if (report == nullptr || !reports::HasReportViewer()) {
        platform::TheDialogs().ShowMessage(
            "Report", fmt::format("The report \"{}\" is not available.", description),
            platform::Icon::Exclamation);
        return;
    }
    report->SelectedYear = std::to_string(month.Year());
    if (report->DateRange == reports::DateRange::Select && !report->StartDate.IsSet())
        report->DateChoice = reports::DateRange::TrailingYear;
    reports::RunReport(index);
}

void PicturePage::Copy() {
    QApplication::clipboard()->setPixmap(board_->grab());
}

void PicturePage::Print() {
    if (isPrinting_) return;
    const QScopedValueRollback printing(isPrinting_, true);
    platform::PageSetup setup;
    setup.orientation = platform::PageOrientation::Landscape;
    const auto order = platform::qt::ThePrinterChooser().Ask(
        this, {.name = tr("Home page"), .setup = setup, .pageCount = 1, .currentPage = 0});
    if (!order) return;
    QPainter painter;
    if (!painter.begin(order->printer.get())) throw platform::Error("The printer takes no pages.");
    const QRectF page = painter.viewport();
    const double margin = page.width() * kPrintMargin;
    const QRectF area = page.adjusted(margin, margin, -margin, -margin);
    const double scale = std::min(area.width() / board_->width(), area.height() / board_->height());
    painter.translate(area.topLeft());
    painter.scale(scale, scale);
    // Paper is white, whatever the colours of the screen.
    board_->setPalette(QPalette(Qt::lightGray, Qt::white));
    board_->render(&painter);
    board_->setPalette(QPalette());
    painter.end();
}

} // namespace alerts::screens
