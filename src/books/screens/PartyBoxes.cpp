#include "books/screens/PartyBoxes.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include "books/PartyChoice.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Text.h"

namespace books::screens {

using core::binding::FillList;
using core::binding::ReadCombo;

PartyBoxes::PartyBoxes(QComboBox& type, QComboBox& party, Nobody nobody, QObject* parent)
    : QObject(parent), type_(type), party_(party), nobody_(nobody) {
    const QSignalBlocker quiet(type_);
    core::binding::AddKind(type_, tr("Account"), core::kAccount);
    core::binding::AddKind(type_, tr("Tenant"), core::kTenant);
    LetNamesStand();
    connect(&type_, &QComboBox::currentIndexChanged, this, [this] { Fill(0); });
}

/// A typed name that happens to equal a later record's is still only a name: the box must neither
/// complete it nor look it up when it loses the focus.
void PartyBoxes::LetNamesStand() {
    if (!party_.isEditable()) return;
    party_.setInsertPolicy(QComboBox::NoInsert);
    party_.setCompleter(nullptr);
    disconnect(party_.lineEdit(), &QLineEdit::editingFinished, &party_, nullptr);
}

void PartyBoxes::Show(core::RecordKind type, std::int32_t id) {
    core::binding::SelectById(type_, core::KindNumber(type), {.selectFirst = true});
    ShowStored(id);
}

void PartyBoxes::ShowStored(std::int32_t id) {
    // A list without a selection selects its first row, which is "nobody" if that is offered.
    party_.setCurrentIndex(-1);
    Fill(id);
}

void PartyBoxes::ShowStored(std::int32_t id, std::string_view name) {
    Fill(0);
    core::ChoiceList list = ReadCombo(party_);
    list.SetText(name);
    if (id != 0) core::SelectById(list, id);
    core::binding::ShowInCombo(list, party_);
}

void PartyBoxes::Refresh(core::RecordKind kind) {
    if (kind != Type()) return;
    const core::ChoiceList before = ReadCombo(party_);
    FillList(kind, party_, {.addNone = nobody_ == Nobody::Offered});
    if (!party_.isEditable()) return;
    // A name that doesn't belong, or no longer belongs, to a record in the list stays a name.
    core::ChoiceList list = ReadCombo(party_);
    if (before.Selected() && core::GetSelectedId(list) == core::GetSelectedId(before)) return;
    list.SetText(before.Text());
    core::binding::ShowInCombo(list, party_);
}

/// Fills as much of the list as can be read.
void PartyBoxes::Fill(std::int32_t id) {
    core::forms::Guarded([&] {
        FillList(Type(), party_, {.selectedId = id, .addNone = nobody_ == Nobody::Offered});
    });
}

core::RecordKind PartyBoxes::Type() const {
    return core::binding::SelectedKind(type_);
}

std::int32_t PartyBoxes::Id() const {
    return PartyIdOf(ReadCombo(party_));
}

std::string PartyBoxes::Name() const {
    return platform::qt::FromScreen(party_.currentText());
}

} // namespace books::screens
