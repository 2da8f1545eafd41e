#include "shell/screens/ViewPanel.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTimer>

#include "core/RecordKinds.h"
#include "core/Settings.h"
#include "core/binding/ComboList.h"
#include "core/binding/PeriodBox.h"
#include "core/forms/ErrorRoll.h"
#include "core/grid/Grid.h"
#include "platform/qt/Text.h"
#include "shell/ViewTexts.h"
#include "ui_ViewPanel.h"

namespace shell::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr int kUsualDays = 90;
constexpr int kManyRows = 20'000; // from here on a search waits for a pause in the typing
constexpr int kTypingPauseMs = 250;

void Fill(QComboBox& combo, std::span<const Choice> items, int selected) {
    const QSignalBlocker quiet(combo);
    combo.clear();
    for (const Choice& item : items)
        combo.addItem(ToScreen(item.text), item.id);
    combo.setCurrentIndex(selected);
}

} // namespace

ViewPanel::ViewPanel(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::ViewPanel>()), search_(new QTimer(this)) {
    ui_->setupUi(this);
    ui_->fraLedger->hide();
    core::grid::SetupGrid(*ui_->grd);
    search_->setSingleShot(true);
    FillChoices();
    Connect();
}

ViewPanel::~ViewPanel() = default;

void ViewPanel::FillChoices() {
    core::binding::FillPeriods(*ui_->cboDays, kUsualDays);
    std::vector<Choice> fields;
    for (const std::string_view field : FilterFields())
        fields.push_back({std::string(field), 0});
    Fill(*ui_->cboFilter, fields, 0);
    Fill(*ui_->cboFilterItem, std::vector<Choice>{{"All", 0}}, 0);
    ui_->chkShowHidden->setChecked(false);
}

void ViewPanel::Connect() {
    const auto reload = [this](int row) {
        if (row >= 0 && !loading_) core::forms::Guarded([this] { Reload(Cause::Choice); });
    };
    for (QComboBox* const combo : {ui_->cboView, ui_->cboDays, ui_->cboFilterItem}) {
        connect(combo, &QComboBox::currentIndexChanged, this, reload);
    }
    connect(ui_->chkShowHidden, &QCheckBox::toggled, this, [reload] { reload(0); });
    connect(ui_->cboFilter, &QComboBox::currentIndexChanged, this, [this](int row) {
        if (row >= 0 && !loading_) core::forms::Guarded([this] { FilterFieldChanged(); });
    });

    connect(ui_->grd, &core::grid::Grid::HeaderClicked, this, &ViewPanel::Sort);
    connect(ui_->grd, &core::grid::Grid::SelectionMoved, this, [this] {
        selectedId_ = ui_->grd->SelectedId();
        const QItemSelection rows = ui_->grd->selectionModel()->selection();
        if (!rows.isEmpty()) selectedRow_ = rows.front().top();
        Q_EMIT SelectionMoved();
    });
    connect(ui_->grd, &core::grid::Grid::RowChosen, this, &ViewPanel::RecordChosen);
    connect(ui_->grd, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
        Q_EMIT MenuAsked(ui_->grd->viewport()->mapToGlobal(position));
    });

    connect(ui_->txtSearch, &QLineEdit::textChanged, this, &ViewPanel::SearchChanged);
    connect(search_, &QTimer::timeout, this, &ViewPanel::Narrow);
    ui_->txtSearch->installEventFilter(this);
}

void ViewPanel::ShowKind(core::RecordKind kind) {
    kind_ = kind;
    selectedId_ = 0;
    const std::string_view tag = ViewTag(kind);
    ui_->grd->setProperty("tag", ToScreen(tag));
    {
        const QScopedValueRollback loading(loading_, true);
        ui_->txtSearch->clear();
        ui_->fraGeneral->setVisible(kind != core::kTransaction);
        ui_->fraLedger->setVisible(kind == core::kTransaction);
        std::vector<Choice> words;
        for (const std::string& word : ViewWords(kind))
            words.push_back({word, 0});
        Fill(*ui_->cboView, words, 0);
        state_ = LoadViewState(tag);
        core::binding::SelectByText(*ui_->cboView, state_.view, {.selectFirst = true});
    }
    Reload(Cause::Choice);
}

void ViewPanel::Remember() const {
    if (ViewTag(kind_).empty()) return;
    ViewState left = state_;
    left.view = FromScreen(ui_->cboView->currentText());
    std::vector<platform::RegistryText> texts = ViewStateTexts(ViewTag(kind_), left);
    if (auto widths = core::grid::ColumnWidthsText(*ui_->grd)) texts.push_back(*widths);
    core::SetRegStrings(texts);
}

void ViewPanel::Release() {
    ui_->grd->Model().SetRows({});
    ui_->grd->SetEmptyText({});
}

ViewFilter ViewPanel::Filter() const {
    return {.status = FromScreen(ui_->cboView->currentText()),
            .showHidden = ui_->chkShowHidden->isChecked(),
            .days = ui_->cboDays->currentData().toInt(),
            .field = FromScreen(ui_->cboFilter->currentText()),
            .item = Choice{FromScreen(ui_->cboFilterItem->currentText()),
                           ui_->cboFilterItem->currentData().toInt()}};
}

void ViewPanel::FilterFieldChanged() {
    Fill(*ui_->cboFilterItem, FilterItems(FromScreen(ui_->cboFilter->currentText())), 0);
    Reload(Cause::Choice);
}

void ViewPanel::Sort(const QString& caption) {
    core::forms::Guarded([&] {
        ClickHeader(state_, FromScreen(caption));
        Reload(Cause::Choice);
    });
}

void ViewPanel::FindText() {
    ui_->txtSearch->setFocus(Qt::ShortcutFocusReason);
    ui_->txtSearch->selectAll();
}

void ViewPanel::CopyRows() const {
    ui_->grd->CopySelection();
}

std::string ViewPanel::PrintSql() const {
    return BuildViewSql(kind_, Filter(), IdColumn::Omitted);
}

QString ViewPanel::Status() const {
    return ToScreen(StatusText(kind_, count_, state_));
}

QString ViewPanel::NarrowedStatus() const {
    return ToScreen(NarrowedText(ui_->grd->Model().rowCount(), count_));
}

core::grid::Grid& ViewPanel::List() const {
    return *ui_->grd;
}

void ViewPanel::SearchChanged() {
    if (loading_) return;
    search_->start(count_ > kManyRows ? kTypingPauseMs : 0);
}

bool ViewPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != ui_->txtSearch || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Escape:
            ui_->txtSearch->clear();
            ui_->grd->setFocus(Qt::OtherFocusReason);
            return true;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            ui_->grd->setFocus(Qt::OtherFocusReason);
            return true;
        default:
            return false;
    }
}

} // namespace shell::screens
