#include "documents/DocList.h"

#include <algorithm>
#include <filesystem>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "documents/AttachFile.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

constexpr std::string_view kPathTooLong =
    "The path for this file is too long.\n"
    "The maximum path length supported for an object is 255 characters.\n"
    "You will need to shorten your path or filename for this item to add\n"
    "it to the database.\n"
    "Press OK to continue.";

} // namespace

std::vector<DocRow> AllDocs() {
    platform::Recordset rows = core::Read("SELECT * FROM Doc ORDER BY Description");
    std::vector<DocRow> docs;
    for (; !rows.Eof(); rows.MoveNext()) {
        DocRow& doc = docs.emplace_back();
        doc.letter = {rows["IdDoc"].AsLong(), platform::TextOf(rows["Description"]),
                      platform::TextOf(rows["FilePath"])};
        for (std::size_t i = 0; i < kDocFlags.size(); ++i) {
            const platform::Field flag = rows[kDocFlags[i].field];
            doc.flags[i] = !flag.IsNull() && flag.AsBoolean();
        }
    }
    return docs;
}

std::int32_t AddDoc(const std::string& filePath) {
    if (platform::LeftCharacters(filePath, kLongestPath).size() < filePath.size()) {
        platform::TheDialogs().ShowMessage("Try Again", kPathTooLong, platform::Icon::Exclamation);
        return 0;
    }
    const std::int32_t id = core::NextId();
    core::Execute("INSERT INTO Doc (IdDoc,Description,FilePath) VALUES (?, ?, ?)",
                  {id, DescriptionOfFile(filePath), filePath});
    core::NotifyAll(core::kDocument, core::kRecordsChanged, id);
    return id;
}

void SetDocFlag(std::int32_t idDoc, std::size_t flag, bool isOn) {
    core::Execute(
        "UPDATE Doc SET " + std::string(kDocFlags.at(flag).field) + " = ? WHERE IdDoc = ?",
        {isOn, idDoc});
    core::NotifyAll(core::kDocument, core::kRecordsChanged, idDoc);
}

std::vector<std::string> UnlistedDocs(const std::string& folder) {
    const std::vector<DocRow> docs = AllDocs();
    std::vector<std::string> unlisted;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
        const std::string path = entry.path().string();
        const bool isListed = std::ranges::any_of(
            docs, [&](const DocRow& doc) { return doc.letter.filePath == path; });
        if (entry.path().extension() == ".rtf" && !isListed) unlisted.push_back(path);
    }
    std::ranges::sort(unlisted);
    return unlisted;
}

} // namespace documents
