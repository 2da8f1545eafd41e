#include "records/FillChoices.h"

#include "core/Lists.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace records {

void FillChoices(core::ChoiceList& list, const ChoiceSource& source, std::int32_t selectedId) {
    if (selectedId == 0) selectedId = core::GetSelectedId(list);
    list.Clear();
    list.Add(source.none, 0);
    platform::Recordset rows = core::Read(source.sql, source.parameters);
    for (; !rows.Eof(); rows.MoveNext()) {
        list.Add(platform::TextOf(rows["Description"]), rows["Id"].AsLong());
    }
    core::SelectById(list, selectedId, {.selectFirst = true});
}

} // namespace records
