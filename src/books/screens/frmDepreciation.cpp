#include "books/screens/frmDepreciation.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QShortcut>
#include <array>

#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/qt/Text.h"
#include "platform/qt/charts/SeriesChart.h"
#include "platform/values/Date.h"
#include "ui_frmDepreciation.h"

namespace books::screens {

using platform::qt::ChartDepth;
using platform::qt::ChartShape;
using platform::qt::ToScreen;

namespace {

struct ChartType {
    const char* name;
    ChartShape shape;
    ChartDepth depth;
};

constexpr std::array<ChartType, 10> kChartTypes = {{
    {"3D Bar", ChartShape::Bars, ChartDepth::Raised},
    {"2D Bar", ChartShape::Bars, ChartDepth::Flat},
    {"3D Line", ChartShape::Lines, ChartDepth::Raised},
    {"2D Line", ChartShape::Lines, ChartDepth::Flat},
    {"3D Area", ChartShape::Areas, ChartDepth::Raised},
    {"2D Area", ChartShape::Areas, ChartDepth::Flat},
    {"3D Step", ChartShape::Steps, ChartDepth::Raised},
    {"2D Step", ChartShape::Steps, ChartDepth::Flat},
    {"3D Combo", ChartShape::Combo, ChartDepth::Raised},
    {"2D Combo", ChartShape::Combo, ChartDepth::Flat},
}};
constexpr int kFlatBars = 1;

/// Amounts are right-aligned; the narrow columns next to them are centred so that the texts don't
/// touch.
Qt::Alignment AlignmentOf(int column) {
    constexpr int kFirstAmount = 2;
    constexpr int kMethod = 5;
    const bool isAmount = column >= kFirstAmount && column < kMethod;
    return (isAmount ? Qt::AlignRight : Qt::AlignHCenter) | Qt::AlignVCenter;
}

} // namespace

frmDepreciation::frmDepreciation(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmDepreciation>()) {
    ui_->setupUi(this);
    ui_->grd->verticalHeader()->hide();
    ui_->grd->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    for (const ChartType& type : kChartTypes)
        ui_->cboChartType->addItem(QLatin1String(type.name));
    ui_->cboChartType->setCurrentIndex(kFlatBars);
    Connect();
}

frmDepreciation::~frmDepreciation() = default;

void frmDepreciation::Connect() {
    connect(ui_->cboChartType, &QComboBox::currentIndexChanged, this, [this] { ShowChart(); });
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdHelp, &QPushButton::clicked, this, [this] { core::forms::ShowHelp(*this); });
    connect(ui_->cmdCopy, &QPushButton::clicked, this, &frmDepreciation::CopyClip);
    auto* const copy = new QShortcut(QKeySequence::Copy, ui_->grd);
    copy->setContext(Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &frmDepreciation::CopyClip);
}

void frmDepreciation::Setup(std::int32_t id, std::string_view description, double basis,
                            std::string_view startDate, std::string_view method, double life) {
    idBuilding_ = id;
    setWindowTitle(tr("Depreciation Schedule for ") + ToScreen(description));
    depreciation_.SetDescription(description);
    depreciation_.SetBasis(basis);
    depreciation_.SetStartDate(startDate);
    depreciation_.SetMethod(method);
    depreciation_.SetLife(life);
    depreciation_.Init();
    ShowGrid();
    ShowChart();
    Open();
}

void frmDepreciation::ShowGrid() {
    QTableWidget& grid = *ui_->grd;
    grid.setColumnCount(static_cast<int>(clsDepreciation::kColumns.size()));
    grid.setRowCount(depreciation_.Periods());
    for (int column = 0; column < grid.columnCount(); ++column) {
        auto* const title = new QTableWidgetItem(
            ToScreen(clsDepreciation::kColumns.at(static_cast<std::size_t>(column))));
        title->setTextAlignment(AlignmentOf(column));
        grid.setHorizontalHeaderItem(column, title);
    }
    for (int row = 0; row < grid.rowCount(); ++row) {
        const auto cells = depreciation_.GridRow(static_cast<std::size_t>(row));
        for (int column = 0; column < grid.columnCount(); ++column) {
            auto* const item =
                new QTableWidgetItem(ToScreen(cells.at(static_cast<std::size_t>(column))));
            item->setTextAlignment(AlignmentOf(column));
            grid.setItem(row, column, item);
        }
    }
    constexpr int kPadding = 14;
    grid.resizeColumnsToContents();
    for (int column = 0; column < grid.columnCount(); ++column)
        grid.setColumnWidth(column, grid.columnWidth(column) + kPadding);
    grid.horizontalHeader()->setStretchLastSection(true);
    grid.setCurrentCell(0, 0);
}

void frmDepreciation::ShowChart() {
    QStringList labels;
    platform::qt::ChartSeries values{tr("Ending Value"), {}};
    for (const DepreciationPeriod& period : depreciation_.Schedule()) {
        labels << QString::number(platform::Date::Parse(period.PeriodEnd).Year());
        values.values.push_back(period.EndValue.ToDouble());
    }
    const ChartType& type =
        kChartTypes.at(static_cast<std::size_t>(ui_->cboChartType->currentIndex()));
    ui_->chtValues->Show(labels, {values}, type.shape, type.depth, true);
}

void frmDepreciation::CopyClip() const {
    // The clipboard gets the cells and lines that spreadsheets read.
    QString text = ToScreen(depreciation_.GetClip());
    QApplication::clipboard()->setText(text.replace(u'|', u'\t').replace(u';', u'\n'));
}

bool frmDepreciation::BringToFront(std::int32_t id) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const form = qobject_cast<frmDepreciation*>(window);
        if (form == nullptr || form->BuildingId() != id || !form->isVisible()) continue;
        form->showNormal();
        form->raise();
        form->activateWindow();
        return true;
    }
    return false;
}

} // namespace books::screens
