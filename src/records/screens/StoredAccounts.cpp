#include "records/screens/StoredAccounts.h"

#include <QComboBox>
#include <QSignalBlocker>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/screens/ComboList.h"
#include "core/screens/Tags.h"
#include "platform/qt/Text.h"

namespace records::screens {

namespace {

void Offer(QComboBox& list, std::int32_t id) {
    if (id == 0 || list.findData(id) >= 0) return;
    const std::string name = core::GetDescription(core::kAccount, id);
    if (name.empty()) return;
    const QSignalBlocker quiet(list);
    list.addItem(platform::qt::ToScreen(name), id);
}

} // namespace

void FillAccountList(std::int16_t kind, QComboBox& list) {
    const std::int32_t id = core::screens::GetSelectedId(list);
    core::screens::FillList(kind, list, {.addNone = true});
    Offer(list, id);
    core::screens::SelectById(list, id);
}

void OfferStoredAccounts(std::initializer_list<QComboBox*> lists, platform::Recordset& row) {
    for (QComboBox* const list : lists) {
        const platform::Field field = row[core::screens::FieldOfTag(core::screens::TagOf(*list))];
        if (!field.IsNull()) Offer(*list, field.AsLong());
    }
}

} // namespace records::screens
