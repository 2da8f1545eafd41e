#include "PlainPages.h"

#include <fmt/format.h>
#include <zlib.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace bench {

namespace {

constexpr const char* kTitles[8] = {"No",     "Date", "Building", "Unit",
                                    "Tenant", "Memo", "Amount",   "Balance"};
constexpr double kWidth = 648.0 / 8;

struct PdfLoop {
    std::FILE* file;
    std::vector<long> places;
    char content[200'000];
    std::size_t used = 0;
    std::vector<unsigned char> packed = std::vector<unsigned char>(250'000);

    void Text(double x, double y, const char* text) {
        used += static_cast<std::size_t>(
            std::snprintf(content + used, sizeof content - used, "1 0 0 1 %.2f %.2f Tm (", x, y));
        for (; *text; ++text) {
            if (*text == '(' || *text == ')' || *text == '\\') content[used++] = '\\';
            content[used++] = *text;
        }
        std::memcpy(content + used, ") Tj\n", 5);
        used += 5;
    }

    int Open() {
        places.push_back(std::ftell(file));
        std::fprintf(file, "%zu 0 obj\n", places.size());
        return static_cast<int>(places.size());
    }

    void Begin(int page) {
        used = 0;
        std::memcpy(content, "BT\n/F1 10 Tf\n", 13);
        used = 13;
        Text(72, 560, "Elm & Oak LLC");
        Text(620, 560, "02/29/2024");
        Text(72, 40, "Ledger");
        char number[32];
        std::snprintf(number, sizeof number, "Page %d", page);
        Text(680, 40, number);
        std::memcpy(content + used, "/F2 8 Tf\n", 9);
        used += 9;
        for (int i = 0; i < 8; ++i)
            Text(72 + kWidth * i, 530, kTitles[i]);
        std::memcpy(content + used, "/F1 8 Tf\n", 9);
        used += 9;
    }

    void End() {
        std::memcpy(content + used, "ET\n72 527 m 720 527 l S\n", 24);
        used += 24;
        uLongf size = packed.size();
        compress(packed.data(), &size, reinterpret_cast<unsigned char*>(content), used); // NOLINT
        const int object = Open();
        std::fprintf(file, "<</Length %lu/Filter/FlateDecode>>\nstream\n", size);
        std::fwrite(packed.data(), 1, size, file);
        std::fputs("\nendstream\nendobj\n", file);
        Open();
        std::fprintf(file, "<</Type/Page/Parent 1 0 R/Contents %d 0 R>>\nendobj\n", object);
    }
};

void PutEscaped(const char* text, std::FILE* file) {
    for (; *text; ++text) {
        switch (*text) {
            case '&':
                std::fputs("&amp;", file);
                break;
            case '<':
                std::fputs("&lt;", file);
                break;
            case '>':
                std::fputs("&gt;", file);
                break;
            default:
                std::putc(*text, file);
        }
    }
}

} // namespace

void FillRow(std::size_t number, PlainRow& row) {
    const auto put = [&row](std::size_t cell, auto format, auto... values) {
        *fmt::format_to_n(row.cells[cell], sizeof row.cells[cell] - 1, format, values...).out = 0;
    };
    const char* amount = number % 5 ? "" : "(";
    const char* end = number % 5 ? "" : ")";
    put(0, FMT_STRING("{}"), number);
    put(1, FMT_STRING("{:02}/{:02}/2024"), number % 12 + 1, number % 28 + 1);
    put(2, FMT_STRING("{} Elm Street"), number % 97 + 1);
    put(3, FMT_STRING("Unit {}"), number % 12 + 1);
    put(4, FMT_STRING("Tenant No {}"), number % 1'009);
    put(5, FMT_STRING("{}"), number % 3 ? "Rent" : "Late fee & costs");
    put(6, FMT_STRING("{}.{:02}"), number % 1'900, number % 100);
    put(7, FMT_STRING("{}{}.{:02}{}"), amount, number * 7 % 90'000, number % 100, end);
}

int WritePlainPdf(const char* path, std::size_t rows, const RowSource& source) {
    static PdfLoop pdf;
    pdf.file = std::fopen(path, "wb");
    std::fputs("%PDF-1.4\n", pdf.file);
    PlainRow row;
    constexpr std::size_t kRowsOfPage = 41;
    int pages = 0;
    for (std::size_t i = 0; i < rows; ++i) {
        if (i % kRowsOfPage == 0) pdf.Begin(++pages);
        source(i, row);
        const double y = 518 - 11.2 * static_cast<double>(i % kRowsOfPage);
        for (int column = 0; column < 8; ++column)
            pdf.Text(72 + kWidth * column, y, row.cells[column]);
        if (i % kRowsOfPage + 1 == kRowsOfPage || i + 1 == rows) pdf.End();
    }
    for (const long place : pdf.places)
        std::fprintf(pdf.file, "%010ld 00000 n \n", place);
    std::fclose(pdf.file);
    return pages;
}

void WritePlainHtml(const char* path, std::size_t rows, const RowSource& source) {
    std::FILE* file = std::fopen(path, "wb");
    std::fputs("<!DOCTYPE html><title>Ledger</title><table><thead><tr>", file);
    for (const char* title : kTitles)
        std::fprintf(file, "<th>%s</th>", title);
    std::fputs("</tr></thead><tbody>\n", file);
    PlainRow row;
    for (std::size_t i = 0; i < rows; ++i) {
        source(i, row);
        std::fputs("<tr>", file);
        for (int column = 0; column < 8; ++column) {
            std::fputs(column > 5 ? "<td class=\"r\">" : "<td>", file);
            PutEscaped(row.cells[column], file);
            std::fputs("</td>", file);
        }
        std::fputs("</tr>\n", file);
    }
    std::fputs("</tbody></table>\n", file);
    std::fclose(file);
}

} // namespace bench
