#include "platform/database/PreparedStatement.h"

#include <sqlite3.h>

#include "platform/database/EngineFailure.h"

namespace platform {

namespace {

std::string_view BytesOf(const void* data, int size) {
    if (data == nullptr) return {};
    return {static_cast<const char*>(data), static_cast<std::size_t>(size)};
}

} // namespace

PreparedStatement::PreparedStatement(sqlite3* database, std::string_view sql) {
    const int result = sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement_, nullptr);
    if (result != SQLITE_OK) ThrowEngineError(database);
}

PreparedStatement::~PreparedStatement() {
    sqlite3_finalize(statement_);
}

void PreparedStatement::Bind(int index, const Cell& cell, TextLife life) {
    const auto keep = life == TextLife::UntilReset ? SQLITE_STATIC : SQLITE_TRANSIENT;
    // The engine takes a null pointer for a null, and the pointer of an empty text may well be
    // null.
    const char* bytes = cell.bytes.empty() ? "" : cell.bytes.data();
    int result = SQLITE_OK;
    switch (cell.kind) {
        case Cell::Kind::Null:
            result = sqlite3_bind_null(statement_, index);
            break;
        case Cell::Kind::Integer:
            result = sqlite3_bind_int64(statement_, index, cell.integer);
            break;
        case Cell::Kind::Real:
            result = sqlite3_bind_double(statement_, index, cell.real);
            break;
        case Cell::Kind::Text:
            result =
                sqlite3_bind_text64(statement_, index, bytes, cell.bytes.size(), keep, SQLITE_UTF8);
            break;
        case Cell::Kind::Blob:
            result = sqlite3_bind_blob64(statement_, index, bytes, cell.bytes.size(), keep);
            break;
    }
    if (result != SQLITE_OK) ThrowEngineError(sqlite3_db_handle(statement_));
}

bool PreparedStatement::Step() {
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) ThrowEngineError(sqlite3_db_handle(statement_));
    return false;
}

void PreparedStatement::Reset() {
    sqlite3_reset(statement_);
}

int PreparedStatement::ColumnCount() const {
    return sqlite3_column_count(statement_);
}

Cell PreparedStatement::Column(int index) const {
    switch (sqlite3_column_type(statement_, index)) {
        case SQLITE_INTEGER:
            return Cell::OfInteger(sqlite3_column_int64(statement_, index));
        case SQLITE_FLOAT:
            return Cell::OfReal(sqlite3_column_double(statement_, index));
        case SQLITE_TEXT: {
            const void* text = sqlite3_column_text(statement_, index);
            return Cell::OfText(BytesOf(text, sqlite3_column_bytes(statement_, index)));
        }
        case SQLITE_BLOB: {
            const void* blob = sqlite3_column_blob(statement_, index);
            return {Cell::Kind::Blob, 0, 0, BytesOf(blob, sqlite3_column_bytes(statement_, index))};
        }
        default:
            return {};
    }
}

} // namespace platform
