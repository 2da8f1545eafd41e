#include "PlainPort.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

namespace fs = std::filesystem;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;
using Database = std::unique_ptr<sqlite3, CloseDatabase>;
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

constexpr std::size_t kBuffer = 1 << 18;

File OpenFile(const fs::path& path, const char* mode) {
    File file(std::fopen(path.c_str(), mode));
    if (!file) throw std::runtime_error("no file " + path.string());
    std::setvbuf(file.get(), nullptr, _IOFBF, kBuffer);
    return file;
}

Database OpenDatabase(const fs::path& path) {
    sqlite3* database = nullptr;
    if (sqlite3_open(path.c_str(), &database) != SQLITE_OK) {
        throw std::runtime_error("no database " + path.string());
    }
    return Database(database);
}

void Do(sqlite3* database, const std::string& sql) {
    if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
}

Statement Prepare(sqlite3* database, const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(database));
    }
    return Statement(statement);
}

enum class Kind { Text, Whole, Flag, Money };

std::vector<Kind> KindsOf(sqlite3_stmt* select) {
    std::vector<Kind> kinds;
    for (int i = 0; i < sqlite3_column_count(select); ++i) {
        const std::string type = sqlite3_column_decltype(select, i);
        kinds.push_back(type == "BOOLEAN"                      ? Kind::Flag
                        : type == "CURRENCY"                   ? Kind::Money
                        : type == "TEXT" || type == "DATETEXT" ? Kind::Text
                                                               : Kind::Whole);
    }
    return kinds;
}

void WriteText(std::FILE* out, const unsigned char* text) {
    putc_unlocked('"', out);
    for (; *text != 0; ++text) {
        if (*text == '"') putc_unlocked('"', out);
        putc_unlocked(*text, out);
    }
    putc_unlocked('"', out);
}

void WriteMoney(std::FILE* out, long long scaled) {
    if (scaled < 0) putc_unlocked('-', out);
    const long long size = scaled < 0 ? -scaled : scaled;
    std::fprintf(out, "%lld", size / 10'000);
    if (size % 10'000 == 0) return;
    char decimals[8];
    std::snprintf(decimals, sizeof decimals, "%04lld", size % 10'000);
    for (char* end = decimals + 3; *end == '0'; --end)
        *end = 0;
    std::fprintf(out, ".%s", decimals);
}

void WriteCell(std::FILE* out, sqlite3_stmt* row, int column, Kind kind) {
    if (sqlite3_column_type(row, column) == SQLITE_NULL) {
        std::fputs("\"\"", out);
    } else if (kind == Kind::Text) {
        WriteText(out, sqlite3_column_text(row, column));
    } else if (kind == Kind::Money) {
        WriteMoney(out, sqlite3_column_int64(row, column));
    } else if (kind == Kind::Flag) {
        std::fputs(sqlite3_column_int(row, column) != 0 ? "#TRUE#" : "#FALSE#", out);
    } else {
        std::fprintf(out, "%lld", static_cast<long long>(sqlite3_column_int64(row, column)));
    }
}

/// One item at `text`; returns where the next one begins, null at the end of the line. Its own
/// quotes are left out in place.
char* TakeItem(char* text, char*& item) {
    item = text;
    if (*text != '"') {
        char* const end = std::strpbrk(text, ",\r\n");
        if (end == nullptr || *end != ',') {
            if (end != nullptr) *end = 0;
            return nullptr;
        }
        *end = 0;
        return end + 1;
    }
    char* to = text;
    char* from = text + 1;
    for (; *from != 0; ++from) {
        if (*from == '"' && *++from != '"') break;
        *to++ = *from;
    }
    char* const next = *from == ',' ? from + 1 : nullptr;
    *to = 0;
    return next;
}

/// The line's items between its markers.
void Split(char* line, std::vector<char*>& items) {
    items.clear();
    for (char* next = line; next != nullptr;) {
        char* item = nullptr;
        next = TakeItem(next, item);
        items.push_back(item);
    }
}

void Bind(sqlite3_stmt* insert, int index, const char* item, Kind kind) {
    if (kind == Kind::Text) {
        sqlite3_bind_text(insert, index, item, -1, SQLITE_STATIC);
    } else if (*item == 0) {
        sqlite3_bind_null(insert, index);
    } else if (kind == Kind::Money) {
        sqlite3_bind_int64(insert, index,
                           static_cast<long long>(std::strtod(item, nullptr) * 10'000 +
                                                  (*item == '-' ? -0.5 : 0.5)));
    } else if (kind == Kind::Flag) {
        sqlite3_bind_int(insert, index, std::strcmp(item, "#TRUE#") == 0 ? 1 : 0);
    } else {
        sqlite3_bind_int64(insert, index, std::strtoll(item, nullptr, 10));
    }
}

struct Line {
    ~Line() { std::free(text); }
    bool Read(std::FILE* file) { return getline(&text, &size, file) > 0; }
    char* text = nullptr;
    std::size_t size = 0;
};

void Check(const fs::path& path, std::size_t fields) {
    const File file = OpenFile(path, "rb");
    Line line;
    std::vector<char*> items;
    while (line.Read(file.get())) {
        Split(line.text, items);
        const bool isRecord = std::strcmp(items[0], "Record") == 0;
        const bool isWhole =
            !isRecord || (items.size() == fields + 2 && std::strcmp(items.back(), "/Record") == 0);
        if (!isWhole) throw std::runtime_error("a bad record");
    }
}

} // namespace

double PlainExport(const fs::path& path, const fs::path& target) {
    const Database database = OpenDatabase(path);
    const Statement rows = Prepare(database.get(), "SELECT * FROM Transactions");
    const std::vector<Kind> kinds = KindsOf(rows.get());
    const File file = OpenFile(target, "wb");
    std::FILE* const out = file.get();
    std::fputs("\"Table\",\"Transactions\",\"/Table\"\r\n\"Fields\",", out);
    for (int i = 0; i < static_cast<int>(kinds.size()); ++i)
        std::fprintf(out, "\"%s\",", sqlite3_column_name(rows.get(), i));
    std::fputs("\"/Fields\"\r\n", out);
    double count = 0;
    for (; sqlite3_step(rows.get()) == SQLITE_ROW; ++count) {
        std::fputs("\"Record\",", out);
        for (int i = 0; i < static_cast<int>(kinds.size()); ++i) {
            WriteCell(out, rows.get(), i, kinds[static_cast<std::size_t>(i)]);
            putc_unlocked(',', out);
        }
        std::fputs("\"/Record\"\r\n", out);
    }
    std::fflush(out);
    fsync(fileno(out));
    return count;
}

double PlainImport(const fs::path& path, const fs::path& source) {
    const Database database = OpenDatabase(path);
    Do(database.get(), "PRAGMA synchronous = FULL");
    const Statement select = Prepare(database.get(), "SELECT * FROM Transactions");
    const std::vector<Kind> kinds = KindsOf(select.get());
    Check(source, kinds.size());
    std::string places = "?";
    for (std::size_t i = 1; i < kinds.size(); ++i)
        places += ",?";
    const Statement insert =
        Prepare(database.get(), "INSERT INTO Transactions VALUES (" + places + ")");
    Do(database.get(), "BEGIN IMMEDIATE");
    const File file = OpenFile(source, "rb");
    Line line;
    std::vector<char*> items;
    double count = 0;
    while (line.Read(file.get())) {
        Split(line.text, items);
        if (std::strcmp(items[0], "Record") != 0) continue;
        for (std::size_t i = 0; i < kinds.size(); ++i)
            Bind(insert.get(), static_cast<int>(i) + 1, items[i + 1], kinds[i]);
        if (sqlite3_step(insert.get()) != SQLITE_DONE) throw std::runtime_error("no insert");
        sqlite3_reset(insert.get());
        ++count;
    }
    Do(database.get(), "COMMIT");
    return count;
}

double PlainCopy(const fs::path& from, const fs::path& to) {
    const int source = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    const int target = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    std::vector<char> block(kBuffer);
    double bytes = 0;
    ssize_t got = 0;
    while ((got = read(source, block.data(), block.size())) > 0) {
        if (write(target, block.data(), static_cast<std::size_t>(got)) != got) {
            throw std::runtime_error("no copy");
        }
        bytes += static_cast<double>(got);
    }
    fsync(target);
    close(source);
    close(target);
    return bytes;
}

} // namespace bench
