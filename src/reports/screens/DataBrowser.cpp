#include "reports/screens/DataBrowser.h"

#include <QFontDatabase>
#include <QKeyEvent>

#include "core/Globals.h"
#include "core/forms/ErrorRoll.h"
#include "core/grid/Grid.h"
#include "platform/qt/Text.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "ui_DataBrowser.h"

namespace reports::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

/// Returns a message's colour adapted to the palette: pure blue and red are too dark in a dark
/// window.
QColor ReadableColor(ConsoleColor color, const QPalette& palette) {
    constexpr int kDark = 128;
    const bool isDark = palette.color(QPalette::Window).lightness() < kDark;
    switch (color) {
        case ConsoleColor::Good:
            return isDark ? QColor(0x7F, 0xB2, 0xFF) : QColor(0, 0, 0xFF);
        case ConsoleColor::Bad:
            return isDark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xFF, 0, 0);
        case ConsoleColor::Plain:
            break;
    }
    return palette.color(QPalette::WindowText);
}

} // namespace

DataBrowser::DataBrowser(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::DataBrowser>()) {
    ui_->setupUi(this);
    ui_->txtSQL->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui_->split->setStretchFactor(1, 1);
    core::grid::SetupGrid(*ui_->grd);
    ui_->lblReason->hide();
    const auto on = [this](QPushButton* button, void (DataBrowser::*work)()) {
        connect(button, &QPushButton::clicked, this,
                [this, work] { Guarded([&] { (this->*work)(); }); });
    };
    on(ui_->cmdExecute, &DataBrowser::Execute);
    on(ui_->cmdTables, &DataBrowser::ShowTables);
    on(ui_->cmdPrint, &DataBrowser::Print);
    ui_->txtSQL->installEventFilter(this);
}

DataBrowser::~DataBrowser() = default;

/// Handles Ctrl+Enter, which the box would take as a line end.
bool DataBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->txtSQL && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        if (isEnter && key.modifiers().testFlag(Qt::ControlModifier)) {
            ui_->cmdExecute->click();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void DataBrowser::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    const bool isOpen = core::App().Connection.IsOpen();
    Say(isOpen ? "Database connected" : "Database not connected", ConsoleColor::Plain);
}

void DataBrowser::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) ShowColor();
}

void DataBrowser::Execute() {
    ui_->cmdPrint->setEnabled(false);
    const std::string text = FromScreen(ui_->txtSQL->toPlainText());
    ConsoleAnswer answer = ExecuteInConsole(text);
    const bool hasRows = answer.rows.IsOpen() && answer.rows.RecordCount() > 0;
    if (hasRows) lastQuery_ = text;
    Show(std::move(answer));
    ui_->cmdPrint->setEnabled(hasRows && HasReportViewer());
}

void DataBrowser::ShowTables() {
    ui_->cmdPrint->setEnabled(false);
    Show(ListTablesInConsole());
}

void DataBrowser::Show(ConsoleAnswer answer) {
    Say(answer.message, answer.color, answer.reason);
    if (!answer.rows.IsOpen()) return;
    core::grid::LoadGrid(*ui_->grd, std::move(answer.rows));
    core::grid::AutoSizeGrid(*ui_->grd, 0, core::grid::Sizing::FitText);
}

void DataBrowser::Print() {
    WriteConsoleReport(lastQuery_);
    reports::RunReport(kScratchReport);
}

void DataBrowser::Say(const std::string& message, ConsoleColor color, const std::string& reason) {
    color_ = color;
    ui_->lblResult->setText(ToScreen(message));
    ui_->lblReason->setText(ToScreen(reason));
    ui_->lblReason->setVisible(!reason.empty());
    ShowColor();
}

void DataBrowser::ShowColor() {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, ReadableColor(color_, colors));
    ui_->lblResult->setPalette(colors);
}

} // namespace reports::screens
