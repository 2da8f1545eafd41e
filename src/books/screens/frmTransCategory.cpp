#include "books/screens/frmTransCategory.h"

#include <QPushButton>
#include <QSignalBlocker>

#include "books/Categories.h"
#include "core/RecordKinds.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "ui_frmTransCategory.h"

namespace books::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

frmTransCategory::frmTransCategory(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmTransCategory>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    columns_ = {{{Ien::Income, ui_->lstIncome, ui_->cmdAddIncome},
                 {Ien::Expense, ui_->lstExpense, ui_->cmdAddExpense},
                 {Ien::Unclassified, ui_->lstUnclassified, ui_->cmdAddUnclassified}}};
    for (const Column& column : columns_) {
        connect(column.list, &QListWidget::currentRowChanged, this,
                [this, list = column.list] { ListChosen(*list); });
        connect(column.list, &QListWidget::itemClicked, this,
                [this, list = column.list] { ListChosen(*list); });
        connect(column.add, &QPushButton::clicked, this,
                [this, ien = column.ien] { Perform([&] { Add(ien); }); });
    }
    connect(ui_->cmdRemove, &QPushButton::clicked, this, [this] { Perform([this] { Remove(); }); });
    ui_->cmdAction->Apply().hide();
    ui_->cmdAction->Cancel().hide();
    // No button is the default: Enter can't know which of the three lists a new name is meant for.
    for (QPushButton* const button : findChildren<QPushButton*>())
        button->setAutoDefault(false);
    ui_->cmdAction->Close().setDefault(false);
    connect(ui_->cmdAction, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(ui_->cmdAction, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
}

frmTransCategory::~frmTransCategory() = default;

void frmTransCategory::Setup() {
    Guarded([this] { Fill(); });
    Open();
}

void frmTransCategory::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/,
                                    std::int32_t /*id*/) {
    if (kind == core::kTransCategory) Fill();
}

void frmTransCategory::Fill() {
    for (const Column& column : columns_) {
        const QSignalBlocker quiet(column.list);
        column.list->clear();
        for (const std::string& text : CategoriesOf(column.ien))
            column.list->addItem(ToScreen(text));
    }
    current_ = nullptr;
}

/// Only one list has a selected item: the one that Remove deletes.
void frmTransCategory::ListChosen(QListWidget& list) {
    current_ = &list;
    for (const Column& column : columns_) {
        if (column.list == &list) continue;
        const QSignalBlocker quiet(column.list);
        column.list->setCurrentRow(-1);
    }
}

void frmTransCategory::Add(Ien ien) {
    const std::string text = FromScreen(ui_->txtNew->text().trimmed());
    if (text.empty()) {
        platform::TheDialogs().ShowMessage("Whoa", "You must enter description of item to add",
                                           platform::Icon::Exclamation);
        return;
    }
    AddCategory({text, ien});
    ui_->txtNew->clear();
    ui_->txtNew->setFocus();
}

void frmTransCategory::Remove() {
    const QListWidgetItem* const item = current_ ? current_->currentItem() : nullptr;
    if (!item) {
        platform::TheDialogs().ShowMessage("Error", "No item selected for removal",
                                           platform::Icon::Critical);
        return;
    }
    const std::string text = FromScreen(item->text());
    const bool agreed = platform::TheDialogs().AskYesNo(
        "Whoa", "Are you sure you want to remove item '" + text + "'", platform::Icon::Question);
    if (agreed) RemoveCategory(text);
}

} // namespace books::screens
