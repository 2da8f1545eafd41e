#include "records/screens/Contacts.h"

#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include "core/RecordKinds.h"
#include "core/binding/AddressBox.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/PanelCommand.h"
#include "platform/qt/Text.h"
#include "ui_Contacts.h"

namespace records::screens {

namespace {

using core::forms::Guarded;
using core::forms::PerformOn;
using platform::qt::ToScreen;

std::int32_t IdOf(const QListWidgetItem* item) {
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

/// Makes the key press the button while the list has the focus.
void AddShortcut(Qt::Key key, QWidget& list, QPushButton& button) {
    auto* const shortcut = new QShortcut(QKeySequence(key), &list);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &button, &QPushButton::click);
}

} // namespace

Contacts::Contacts(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::Contacts>()) {
    ui_->setupUi(this);
    setProperty("panel", true);
    setEnabled(false);
    Wire();
}

Contacts::~Contacts() = default;

void Contacts::Wire() {
    using core::binding::AddressKind;
    core::binding::WireControls(*this);
    fields_.KeepBlanks(*ui_->fields);
    core::binding::FillPlaceByZip(*ui_->txtZip, {ui_->txtCity, ui_->txtState});
    core::binding::OpenByIcon(*ui_->txtEmail, AddressKind::Mail);
    core::binding::OpenByIcon(*ui_->txtWeb, AddressKind::Web);
    core::binding::ConnectChanges(*ui_->fields, *this, [this] {
        if (showing_ || id_ == 0) return;
        changed_ = true;
        Q_EMIT Changed();
    });
    const auto on = [this](QPushButton& button, void (Contacts::*work)()) {
        connect(&button, &QPushButton::clicked, this,
                [this, work] { PerformOn(*this, [&] { (this->*work)(); }); });
    };
    on(*ui_->cmdAdd, &Contacts::Add);
    on(*ui_->cmdDelete, &Contacts::Remove);
    AddShortcut(Qt::Key_Insert, *ui_->lvwContacts, *ui_->cmdAdd);
    AddShortcut(Qt::Key_Delete, *ui_->lvwContacts, *ui_->cmdDelete);
    connect(ui_->lvwContacts, &QListWidget::currentItemChanged, this, &Contacts::MoveTo);
}

void Contacts::Load(core::RecordKind dbType, std::int32_t idRelated) {
    const RelatedOwner owner{dbType, idRelated};
    const std::int32_t selected = owner == owner_ ? id_ : 0;
    owner_ = owner;
    setEnabled(idRelated != 0);
    FillContacts(selected);
}

void Contacts::Write() const {
    if (!changed_ || id_ == 0) return;
    using core::binding::WriteFields;
    core::RowToWrite contact = OpenContact(id_, owner_);
    fields_.Write(*ui_->fields, contact.row,
                  contact.isNew ? WriteFields::All : WriteFields::Touched);
    contact.row.Update();
}

void Contacts::NoteWritten() {
    if (!changed_) return;
    changed_ = false;
    for (int i = 0; i < ui_->lvwContacts->count(); ++i) {
        QListWidgetItem* const item = ui_->lvwContacts->item(i);
        if (IdOf(item) == id_) item->setText(ui_->txtDescription->text());
    }
}

void Contacts::SaveCurrent() {
    Write();
    NoteWritten();
}

void Contacts::Add() {
    SaveCurrent();
    FillContacts(AddContact(owner_));
    ui_->txtDescription->setFocus();
    ui_->txtDescription->selectAll();
}

void Contacts::Remove() {
    if (id_ == 0 || !DeleteContact(id_)) return;
    changed_ = false;
    FillContacts(0);
}

/// Fields that can't be saved stay on the screen; once the list has finished moving, it returns to
/// their contact.
void Contacts::MoveTo(QListWidgetItem* to) {
    if (Guarded([this] { SaveCurrent(); })) {
        id_ = IdOf(to);
        Guarded([this] { ShowCurrent(); });
        return;
    }
    QMetaObject::invokeMethod(
        this, [this] { Guarded([this] { FillContacts(id_); }); }, Qt::QueuedConnection);
}

void Contacts::FillContacts(std::int32_t idSelected) {
    const bool stays = changed_ && idSelected == id_;
    {
        const QSignalBlocker quiet(ui_->lvwContacts);
        ui_->lvwContacts->clear();
        for (const core::Choice& contact : ListContacts(owner_)) {
            auto* const item = new QListWidgetItem(ToScreen(contact.text), ui_->lvwContacts);
            item->setData(Qt::UserRole, contact.id);
            if (contact.id == idSelected) ui_->lvwContacts->setCurrentItem(item);
        }
        if (!ui_->lvwContacts->currentItem()) ui_->lvwContacts->setCurrentRow(0);
    }
    if (stays) return;
    id_ = IdOf(ui_->lvwContacts->currentItem());
    ShowCurrent();
}

void Contacts::ShowCurrent() {
    showing_ = true;
    fields_.ShowBlanks(*ui_->fields);
    ui_->fields->setEnabled(id_ != 0);
    ui_->cmdDelete->setEnabled(id_ != 0);
    Guarded([this] {
        if (id_ == 0) return;
        core::RowToWrite contact = OpenContact(id_, owner_);
        fields_.Show(*ui_->fields, contact.row);
    });
    changed_ = false;
    showing_ = false;
}

} // namespace records::screens
