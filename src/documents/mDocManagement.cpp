#include "documents/mDocManagement.h"

#include <algorithm>
#include <array>

#include <fmt/core.h>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "documents/AttachFile.h"
#include "documents/MergeSource.h"
#include "documents/MergeTags.h"
#include "documents/NewFile.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace documents {

namespace {

struct KindTest {
    core::RecordKind kind;
    std::string_view test;
};

constexpr std::array kTests = {
    KindTest{core::kAccount, "selAccount = True"},
    KindTest{core::kLease, "selLease = True"},
    KindTest{core::kMortgage, "selMortgage = True"},
    KindTest{core::kTenant, "selTenant = True"},
    KindTest{core::kWorkOrder, "selWO = True"},
    KindTest{core::kTransaction, "selTransaction = True"},
    KindTest{core::kMileage, "selMileage = True"},
    KindTest{core::kBuilding, "selBuilding = True"},
    KindTest{core::kUnit, "selUnit = True"},
    KindTest{core::kUnitWithBuilding, "selBuilding = True OR selUnit = True"},
};

/// Returns the kind that letters are merged for: a building through one of its units, whose id is
/// given.
core::RecordKind KindOfOwner(core::RecordKind kind) {
    return kind == core::kBuilding || kind == core::kUnitWithBuilding ? core::kUnit : kind;
}

/// Returns a description in a form usable in a file name.
std::string FileNamePart(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '/' || c == '\\' || c == '\0' || c == '\n'; }, '-');
    return text;
}

std::filesystem::path DocumentFolder() {
    const std::string& chosen = core::Config().DocDirectory;
    std::error_code ignored;
    if (!chosen.empty() && std::filesystem::is_directory(chosen, ignored)) return chosen;
    return core::App().AppPath + "Docs";
}

/// Writes the letter under the first free name.
std::filesystem::path WriteUnderFreeName(const DocTemplate& letter, const std::string& record,
                                         std::string_view text) {
    const std::string ending = std::filesystem::path(letter.filePath).extension().string();
    if (!core::Config().AssociateDocs) {
        return WriteNewFile(
            [&](int n) { return fmt::format("{}tmp_{}{}", core::App().AppPath, n, ending); }, 1,
            text);
    }
    const std::filesystem::path folder = DocumentFolder();
    const std::string stem = FileNamePart(letter.description) + " - " + FileNamePart(record);
    return WriteNewFile(
        [&](int n) {
            return folder / (n == 0 ? stem + ending : fmt::format("{}({}){}", stem, n, ending));
        },
        0, text);
}

void ShowMissing(const std::string& path) {
    platform::TheDialogs().ShowMessage(
        "Document Error",
        "An error occured opening the selected document.\n" + path +
            "\nCheck the specified file path and make sure the document exists.\n"
            "Press OK to continue.",
        platform::Icon::Exclamation);
}

void ShowUnopened(const std::string& place) {
    platform::TheDialogs().ShowMessage("Document Error",
                                       "No program opens this kind of file. " + place,
                                       platform::Icon::Information);
}

/// Returns the template if it is listed and its file exists; reports a missing file.
std::optional<DocTemplate> FindUsableTemplate(std::int32_t idDoc) {
    std::optional<DocTemplate> letter = FindDocTemplate(idDoc);
    if (letter && !platform::FileExists(letter->filePath)) {
        ShowMissing(letter->filePath);
        return std::nullopt;
    }
    return letter;
}

bool AgreedToMany(const DocTemplate& letter, std::size_t count) {
    return platform::TheDialogs().AskYesNo(
        "Confirm Letters",
        fmt::format("{0} records are selected. Make {0} letters from the template \"{1}\" and "
                    "open each of them?",
                    count, letter.description),
        platform::Icon::Question);
}

} // namespace

core::RecordKind DocKindOf(core::RecordKind kind) {
    return kind == core::kUnit ? core::kUnitWithBuilding : kind;
}

std::vector<DocTemplate> DocTemplatesOf(core::RecordKind kind) {
    const auto* const found = std::ranges::find(kTests, kind, &KindTest::kind);
    if (found == kTests.end()) return {};
    platform::Recordset rows =
        core::Read(fmt::format("SELECT IdDoc, Description, FilePath FROM Doc "
                               "WHERE {} ORDER BY Description ASC",
                               found->test));
    std::vector<DocTemplate> templates;
    for (; !rows.Eof(); rows.MoveNext()) {
        templates.push_back({rows["IdDoc"].AsLong(), platform::TextOf(rows["Description"]),
                             platform::TextOf(rows["FilePath"])});
    }
    return templates;
}

std::optional<DocTemplate> FindDocTemplate(std::int32_t idDoc) {
    platform::Recordset row =
        core::Read("SELECT Description, FilePath FROM Doc WHERE IdDoc = ?", {idDoc});
    if (row.Eof()) return std::nullopt;
    return DocTemplate{idDoc, platform::TextOf(row["Description"]),
                       platform::TextOf(row["FilePath"])};
}

MergedDocument MergeDocument(const DocTemplate& letter, core::RecordKind kind, std::int32_t id,
                             const std::optional<std::filesystem::path>& output) {
    std::string text = platform::ReadWholeFile(letter.filePath);
    MergedDocument document;
    std::string record;
    platform::Recordset fields;
    OpenMergeSource(fields, kind, id);
    if (fields.IsOpen() && !fields.Eof()) {
        document.merged = true;
        if (fields.HasField("Description")) record = platform::TextOf(fields["Description"]);
        MergeTags(text, fields, TextKindOf(letter.filePath, text));
    }
    if (output) {
        platform::WriteFileAtomically(*output, text);
        document.file = *output;
        return document;
    }
    document.file = WriteUnderFreeName(letter, record, text);
    if (core::Config().AssociateDocs) {
        std::string path = document.file.string();
        AttachFile(KindOfOwner(kind), id, path);
    }
    return document;
}

bool OpenDoc(core::RecordKind kind, std::int32_t id, std::int32_t idDoc) {
    const std::optional<DocTemplate> letter = FindUsableTemplate(idDoc);
    if (!letter) return false;
    const MergedDocument document = MergeDocument(*letter, kind, id);
    if (!platform::TheDesktop().OpenDocument(document.file.string()))
        ShowUnopened("The document was saved as\n" + document.file.string());
    return true;
}

int OpenDocs(core::RecordKind kind, std::span<const std::int32_t> ids, std::int32_t idDoc) {
    const std::optional<DocTemplate> letter = FindUsableTemplate(idDoc);
    if (!letter || ids.empty()) return 0;
    if (ids.size() > 1 && !AgreedToMany(*letter, ids.size())) return 0;
    int made = 0;
    bool opened = true;
    MergedDocument document;
    try {
        for (const std::int32_t id : ids) {
            document = MergeDocument(*letter, kind, id);
            ++made;
            // If no program opens one of them, no program opens the others of its type.
            opened = opened && platform::TheDesktop().OpenDocument(document.file.string());
        }
    } catch (const platform::Error& failure) {
        throw platform::Error(
            fmt::format("{} of {} letters were made.\n{}", made, ids.size(), failure.what()));
    }
    if (!opened)
        ShowUnopened(fmt::format("{}\n{}",
                                 made == 1 ? "The document is in" : "The documents are in",
                                 document.file.parent_path().string()));
    return made;
}

} // namespace documents
