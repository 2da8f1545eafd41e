#include "records/screens/StoredLinks.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "platform/qt/Text.h"

namespace records::screens {

using core::binding::GetSelectedId;

namespace {

void Offer(QComboBox& list, std::int32_t id, const QString& text) {
    if (id == 0 || text.isEmpty() || list.findData(id) >= 0) return;
    const QSignalBlocker quiet(list);
    list.addItem(text, id);
}

void OfferAccount(QComboBox& list, std::int32_t id) {
    Offer(list, id, platform::qt::ToScreen(core::GetDescription(core::kAccount, id)));
}

/// A unit without a label has no description.
void OfferUnit(QComboBox& list, std::int32_t id) {
    const QString text = platform::qt::ToScreen(core::GetDescription(core::kUnit, id));
    Offer(list, id, text.isEmpty() ? QComboBox::tr("Unit no. %1").arg(id) : text);
}

std::int32_t StoredId(const QComboBox& list, platform::Recordset& row) {
    const platform::Field field = row[core::binding::FieldOfTag(core::binding::TagOf(list))];
    return field.IsNull() ? 0 : field.AsLong();
}

} // namespace

void FillAccountList(std::int16_t kind, QComboBox& list, NoneRow none) {
    const std::int32_t id = GetSelectedId(list);
    core::binding::FillList(kind, list, {.addNone = none == NoneRow::Yes});
    OfferAccount(list, id);
    core::binding::SelectById(list, id);
}

void OfferStoredAccounts(std::initializer_list<QComboBox*> lists, platform::Recordset& row) {
    for (QComboBox* const list : lists)
        OfferAccount(*list, StoredId(*list, row));
}

void FillUnitList(QComboBox& list, NoneRow none, std::int32_t proposed) {
    const std::int32_t id = proposed == 0 ? GetSelectedId(list) : proposed;
    core::binding::FillList(core::kUnit, list, {.selectedId = id, .addNone = none == NoneRow::Yes});
    OfferUnit(list, id);
    core::binding::SelectById(list, id);
}

void OfferStoredUnit(QComboBox& list, platform::Recordset& row) {
    OfferUnit(list, StoredId(list, row));
}

} // namespace records::screens
