#include "dbmender/Diagnosis.h"

#include <fmt/core.h>

#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "platform/database/Connection.h"
#include "platform/database/FileDamage.h"
#include "platform/registry/Registry.h"
#include "platform/values/Errors.h"
#include "store/CreateDatabase.h"
#include "store/Tables.h"

namespace dbmender {

namespace fs = std::filesystem;

namespace {

/// Returns the first table or field that this database lacks; empty if it has all.
std::string MissingPart(const platform::dialect::Catalog& tables) {
    for (const store::TableDefinition& wanted : store::BooksTables()) {
        const auto* const table = tables.Find(wanted.name);
        if (table == nullptr) return "the table " + wanted.name;
        for (const store::FieldDefinition& field : wanted.fields) {
            if (table->Find(field.name) == nullptr) {
                return fmt::format("the field {} of the table {}", field.name, wanted.name);
            }
        }
    }
    return {};
}

} // namespace

Diagnosis Examine(const fs::path& folder, Depth depth) {
    Diagnosis found;
    found.folder = folder;
    std::error_code ignored;
    const auto as = [&](Condition condition) {
        found.condition = condition;
        return found;
    };
    if (!fs::is_directory(folder, ignored)) return as(Condition::NoFolder);
    if (!fs::is_regular_file(folder / store::kDatabaseFile, ignored)) {
        return as(Condition::NoFile);
    }
    const bool hasVersion = fs::exists(folder / store::kVersionFile, ignored);
    found.version = core::ReadDbVersion(folder.string());
    try {
        platform::Connection database;
        database.Open(folder / store::kDatabaseFile, platform::OpenMode::ReadOnly);
        found.detail = MissingPart(database.Tables());
        if (depth == Depth::WholeFile) {
            std::string damage = platform::FileDamage(folder / store::kDatabaseFile);
            if (!damage.empty()) {
                found.detail = std::move(damage);
                return as(Condition::Damaged);
            }
        }
    } catch (const platform::Error& failure) {
        found.detail = failure.what();
        return as(Condition::NotADatabase);
    }
    const bool isWhole = found.detail.empty();
    if (!hasVersion && isWhole) return as(Condition::NoVersion);
    if (found.version < core::App().DbVersionRequired) return as(Condition::TooOld);
    return as(isWhole ? Condition::Ready : Condition::Incomplete);
}

Diagnosis ExamineRegistered(const std::string& dbName) {
    core::App().DbName = dbName;
    core::FindDatabase(nullptr);
    const std::string& folder = core::App().DbPath;
    if (!folder.empty()) return Examine(folder, Depth::WholeFile);
    Diagnosis unknown;
    unknown.condition =
        platform::TheRegistry().IsDamaged() ? Condition::SettingsDamaged : Condition::NotRegistered;
    return unknown;
}

bool HasNoBooks(const std::string& dbName) {
    return ExamineRegistered(dbName).condition == Condition::NotRegistered;
}

std::string Explain(const Diagnosis& diagnosis) {
    const std::string folder = diagnosis.folder.string();
    const std::string file = (diagnosis.folder / store::kDatabaseFile).string();
    const int required = core::App().DbVersionRequired;
    switch (diagnosis.condition) {
        case Condition::Ready:
            return diagnosis.version > required
                       ? fmt::format(
                             "The database {} was made for a newer Vestrel, with version "
                             "{}. It can be used.",
                             file, diagnosis.version)
                       : fmt::format("The database {} is in order.", file);
        case Condition::NotRegistered:
            return "Vestrel does not know yet where your database is.";
        case Condition::SettingsDamaged:
            return "The settings of this computer are damaged, so Vestrel no longer knows where "
                   "your database is. The database itself is not affected: choose its folder.";
        case Condition::NoFolder:
            return fmt::format("The folder {} is missing.", folder);
        case Condition::NoFile:
            return fmt::format("The folder {} holds no database.", folder);
        case Condition::NotADatabase:
            return fmt::format("The file {} can't be read as a database: {}.", file,
                               diagnosis.detail);
        case Condition::NoVersion:
            return fmt::format(
                "The database {} has all its tables, but its version file is missing.", file);
        case Condition::TooOld:
            return diagnosis.version == 0
                       ? fmt::format(
                             "The version of the database {} is not known, and {} is missing "
                             "in it.",
                             file, diagnosis.detail)
                       : fmt::format(
                             "The database {} has version {}, and this Vestrel needs "
                             "version {}.",
                             file, diagnosis.version, required);
        case Condition::Incomplete:
            return fmt::format("The database {} is damaged: {} is missing.", file,
                               diagnosis.detail);
        case Condition::Damaged:
            return fmt::format(
                "The database {} is damaged: {}. Restore a backup of it if you have one.", file,
                diagnosis.detail);
    }
    return {};
}

} // namespace dbmender
