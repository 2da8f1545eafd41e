#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/RecordKinds.h"

namespace documents {

/// A template of the list, as offered by a record's menu.
struct DocTemplate {
    std::int32_t id = 0; ///< `IdDoc`
    std::string description;
    std::string filePath;
};

/// Returns the templates for a kind of record, by description; empty for a kind without letters. A
/// building offers the templates of units too. Throws on failure.
std::vector<DocTemplate> DocTemplatesOf(core::RecordKind kind);

/// Returns the kind whose letters are offered for a kind: units share the letters of their
/// building; other kinds have their own.
core::RecordKind DocKindOf(core::RecordKind kind);

/// Returns the template of this id; nullopt if there is none.
std::optional<DocTemplate> FindDocTemplate(std::int32_t idDoc);

/// A merged letter that was written.
struct MergedDocument {
    std::filesystem::path file;
    /// Whether the record exists and filled the letter. If not, the template was copied unchanged.
    bool merged = false;
};

/// Merges a record into a copy of the template's file. Without `output` the copy gets a free name:
/// "tmp_1.rtf" in the program's directory or, if the settings associate documents with their
/// records, a name made of both descriptions in the document folder, and it is then attached to the
/// record. A file named by `output` is replaced. Nothing is opened. Throws platform::Error if the
/// template can't be read or the copy can't be written.
MergedDocument MergeDocument(const DocTemplate& letter, core::RecordKind kind, std::int32_t id,
                             const std::optional<std::filesystem::path>& output = {});

/// Merges a record into the template `idDoc` and opens the letter in its type's program. Returns
/// false if there is no such template, or its file is missing, which is reported in a message.
bool OpenDoc(core::RecordKind kind, std::int32_t id, std::int32_t idDoc);

/// Does the same for several records, a letter each, after a question that states their number.
/// Returns how many letters were written: 0 if the user declined. If a letter fails, throws
/// platform::Error with that number; the letters before it are kept.
int OpenDocs(core::RecordKind kind, std::span<const std::int32_t> ids, std::int32_t idDoc);

} // namespace documents
