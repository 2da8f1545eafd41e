#include "documents/DocOptions.h"

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"

namespace documents {

void SaveDocOptions(const DocOptions& options) {
    core::Execute("UPDATE Configuration SET DocDirectory = ?, AssociateDocs = ?",
                  {options.docDirectory, options.associateDocs});
    core::NotifyAll(core::kConfiguration, core::kRecordsChanged, 0);
}

} // namespace documents
