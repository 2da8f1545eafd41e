#include "platform/database/TextIndex.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <cerrno>
#include <string_view>
#include <system_error>

#include "platform/database/EngineFailure.h"
#include "platform/database/IndexTerms.h"
#include "platform/database/PreparedStatement.h"
#include "platform/system/Paths.h"

namespace platform {

namespace {

/// A user at a search box doesn't wait long for another program.
constexpr int kBusyMs = 500;

constexpr const char* kTables =
    "CREATE TABLE texts (key INTEGER PRIMARY KEY, mark INTEGER, title TEXT, detail TEXT, "
    "target TEXT, words TEXT);"
    "CREATE VIRTUAL TABLE found USING fts5(words, content='texts', content_rowid='key', "
    "prefix='2 3', tokenize='unicode61 remove_diacritics 2')";

using TextLife = PreparedStatement::TextLife;

/// Makes the file only if it isn't there: closing a file that the engine has open would release the
/// engine's locks on it.
void MakeIfMissing(const std::filesystem::path& file) {
    const int error = MakePrivateFile(file);
    if (error == 0 || error == EEXIST) return;
    throw DatabaseError(std::generic_category().message(error), SQLITE_CANTOPEN);
}

std::unique_ptr<SQLite::Database> OpenIndexFile(const std::string& file) {
    try {
        return std::make_unique<SQLite::Database>(
            file, SQLite::OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, kBusyMs);
    } catch (const SQLite::Exception& failure) {
        throw DatabaseError(failure.what(), failure.getErrorCode());
    }
}

std::string Quoted(std::string_view form, bool isWhole) {
    std::string quoted = "\"";
    for (const char letter : form) {
        // A zero would end the expression.
        quoted += letter == '\0' ? ' ' : letter;
        if (letter == '"') quoted += '"';
    }
    return quoted + (isWhole ? "\"" : "\"*");
}

std::uint64_t AsMark(const Cell& cell) {
    return static_cast<std::uint64_t>(cell.integer);
}

} // namespace

std::string MatchExpression(std::span<const SearchWord> words) {
    std::string singles;
    for (const SearchWord& word : words) {
        if (word.forms.size() != 1) continue;
        if (!singles.empty()) singles += ' ';
        singles += Quoted(word.forms.front(), word.isWhole);
    }
    std::string expression;
    for (const SearchWord& word : words) {
        if (word.forms.size() < 2) continue;
        // Beside a bracket the engine needs its AND, which fails on a word without letters. Before
        // a form of the first group, such a word isn't a condition.
        const std::string before = expression.empty() && !singles.empty() ? singles + ' ' : "";
        expression += expression.empty() ? "(" : " AND (";
        for (std::size_t i = 0; i < word.forms.size(); ++i)
            expression += (i > 0 ? " OR " : "") + before + Quoted(word.forms[i], word.isWhole);
        expression += ')';
    }
    return expression.empty() ? singles : expression;
}

TextIndex::TextIndex() : database_(OpenIndexFile(":memory:")) {
    MakeTables();
}

TextIndex::TextIndex(const std::filesystem::path& file, std::int32_t layout) : layout_(layout) {
    MakeIfMissing(file);
    database_ = OpenIndexFile(file.string());
    try {
        SetUp();
    } catch (const DatabaseError& failure) {
        if (!IsDamage(failure)) throw;
        Empty();
    }
}

TextIndex::~TextIndex() = default;

void TextIndex::SetUp() {
    // A power cut may cost the last changes, not the soundness of the file.
    Command("PRAGMA synchronous = NORMAL");
    Command("PRAGMA temp_store = MEMORY");
    const bool hasTables = HasTables();
    if (sqlite3_db_readonly(database_->getHandle(), "main") != 0)
        throw DatabaseError("The search index is read-only.", SQLITE_READONLY);
    if (hasTables) return;
    PreparedStatement tables(database_->getHandle(), "SELECT Count(*) FROM sqlite_master");
    const bool isEmpty = tables.Step() && tables.Column(0).integer == 0;
    tables.Reset();
    if (isEmpty) {
        MakeTables();
    } else {
        Empty();
    }
}

bool TextIndex::HasTables() const {
    PreparedStatement version(database_->getHandle(), "PRAGMA user_version");
    if (!version.Step() || version.Column(0).integer != layout_) return false;
    PreparedStatement tables(
        database_->getHandle(),
        "SELECT Count(*) FROM sqlite_master WHERE name IN ('texts', 'found') AND type = 'table'");
    return tables.Step() && tables.Column(0).integer == 2;
}

/// Another program may have made them in the meantime.
void TextIndex::MakeTables() {
    Begin();
    try {
        if (!HasTables()) {
            Command(kTables);
            Command(("PRAGMA user_version = " + std::to_string(layout_)).c_str());
        }
        Commit();
    } catch (...) {
        RollBack();
        throw;
    }
}

bool TextIndex::IsDamage(const DatabaseError& failure) {
    switch (failure.Code() & 0xFF) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        case SQLITE_ERROR: // a table that isn't what it was made as
            return true;
        default:
            return false;
    }
}

std::string TextIndex::ReasonOf(const DatabaseError& failure) {
    switch (failure.Code() & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "another program is using it";
        case SQLITE_READONLY:
            return "it is read-only";
        case SQLITE_FULL:
            return "the disk is full";
        default:
            return failure.what();
    }
}

void TextIndex::Empty() {
    DropStatements();
    RollBack();
    sqlite3* const handle = database_->getHandle();
    // In place, under the engine's locks: another program may have the file open.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
    const int result = sqlite3_exec(handle, "VACUUM", nullptr, nullptr, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_RESET_DATABASE, 0, nullptr);
    if (result != SQLITE_OK) ThrowEngineError(handle);
    MakeTables();
}

void TextIndex::Command(const char* sql) {
    if (sqlite3_exec(database_->getHandle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowEngineError(database_->getHandle());
}

void TextIndex::DropStatements() {
    for (auto* const statement : {&put_, &putWords_, &remove_, &readWords_, &dropWords_, &find_})
        statement->reset();
    terms_.reset();
}

PreparedStatement& TextIndex::Use(std::unique_ptr<PreparedStatement>& statement, const char* sql) {
    if (!statement) statement = std::make_unique<PreparedStatement>(database_->getHandle(), sql);
    return *statement;
}

std::vector<TextIndex::Known> TextIndex::Keys(std::int64_t first, std::int64_t last) {
    PreparedStatement keys(database_->getHandle(),
                           "SELECT key, mark FROM texts WHERE key BETWEEN ? AND ? ORDER BY key");
    keys.Bind(1, Cell::OfInteger(first), TextLife::Passing);
    keys.Bind(2, Cell::OfInteger(last), TextLife::Passing);
    std::vector<Known> known;
    while (keys.Step())
        known.push_back({keys.Column(0).integer, AsMark(keys.Column(1))});
    return known;
}

void TextIndex::Begin() {
    Command("BEGIN IMMEDIATE");
}

void TextIndex::Commit() {
    Command("COMMIT");
}

void TextIndex::RollBack() noexcept {
    if (sqlite3_get_autocommit(database_->getHandle()) == 0)
        sqlite3_exec(database_->getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void TextIndex::Put(const IndexedText& text) {
    DropWords(text.key);
    PreparedStatement& put = Use(put_, "INSERT OR REPLACE INTO texts VALUES (?, ?, ?, ?, ?, ?)");
    const StatementRun run(put);
    put.Bind(1, Cell::OfInteger(text.key), TextLife::Passing);
    put.Bind(2, Cell::OfInteger(static_cast<std::int64_t>(text.mark)), TextLife::Passing);
    put.Bind(3, Cell::OfText(text.title), TextLife::UntilReset);
    put.Bind(4, Cell::OfText(text.detail), TextLife::UntilReset);
    put.Bind(5, Cell::OfText(text.target), TextLife::UntilReset);
    put.Bind(6, Cell::OfText(text.words), TextLife::UntilReset);
    put.Step();
    PreparedStatement& words = Use(putWords_, "INSERT INTO found (rowid, words) VALUES (?, ?)");
    const StatementRun runWords(words);
    words.Bind(1, Cell::OfInteger(text.key), TextLife::Passing);
    words.Bind(2, Cell::OfText(text.words), TextLife::UntilReset);
    words.Step();
}

void TextIndex::Remove(std::int64_t key) {
    DropWords(key);
    PreparedStatement& remove = Use(remove_, "DELETE FROM texts WHERE key = ?");
    const StatementRun run(remove);
    remove.Bind(1, Cell::OfInteger(key), TextLife::Passing);
    remove.Step();
}

/// The engine must be given the words that it is to remove.
void TextIndex::DropWords(std::int64_t key) {
    PreparedStatement& read = Use(readWords_, "SELECT words FROM texts WHERE key = ?");
    const StatementRun run(read);
    read.Bind(1, Cell::OfInteger(key), TextLife::Passing);
    if (!read.Step()) return;
    PreparedStatement& drop =
        Use(dropWords_, "INSERT INTO found (found, rowid, words) VALUES ('delete', ?, ?)");
    const StatementRun runDrop(drop);
    drop.Bind(1, Cell::OfInteger(key), TextLife::Passing);
    drop.Bind(2, read.Column(0), TextLife::Passing);
    drop.Step();
}

TextIndex::View::View(TextIndex& index) : index_(index) {
    index_.Command("BEGIN");
}

TextIndex::View::~View() {
    sqlite3_exec(index_.database_->getHandle(), "COMMIT", nullptr, nullptr, nullptr);
    index_.RollBack();
}

std::optional<std::vector<SearchWord>> TextIndex::WrittenOut(std::span<const SearchWord> words) {
    if (!terms_) terms_ = std::make_unique<IndexTerms>(database_->getHandle());
    return terms_->WrittenOut(words);
}

void TextIndex::Find(std::span<const SearchWord> words, std::int64_t first,
                     const std::function<bool(const Match& match)>& take) {
    const std::string expression = MatchExpression(words);
    if (expression.empty()) return;
    // One statement reads the words and the texts: the file is locked and checked only once.
    PreparedStatement& find = Use(find_,
                                  "SELECT key, title, detail, target FROM found CROSS JOIN texts "
                                  "ON key = found.rowid WHERE found MATCH ? AND found.rowid >= ? "
                                  "ORDER BY found.rowid");
    const StatementRun run(find);
    find.Bind(1, Cell::OfText(expression), TextLife::UntilReset);
    find.Bind(2, Cell::OfInteger(first), TextLife::Passing);
    while (find.Step()) {
        if (!take({find.Column(0).integer, find.Column(1).bytes, find.Column(2).bytes,
                   find.Column(3).bytes}))
            return;
    }
}

} // namespace platform
