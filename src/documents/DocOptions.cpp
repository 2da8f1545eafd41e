#include "documents/DocOptions.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"

namespace documents {

void SaveDocOptions(const DocOptions& options) {
    core::App().Connection.Execute("UPDATE Configuration SET DocDirectory = ?, AssociateDocs = ?",
                                   {options.docDirectory, options.associateDocs});
    core::NotifyAll(core::kConfiguration, core::kRecordsChanged, 0);
}

} // namespace documents
