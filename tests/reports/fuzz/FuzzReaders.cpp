// Feeds both readers of report definitions with mutated definitions. Built with sanitizers by
// scripts/fuzz-readers.sh; a fault ends the program, so reaching the count is the result.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "reports/CatalogueReader.h"
#include "reports/Encoding.h"
#include "reports/ReportError.h"
#include "reports/ReportFile.h"

namespace {

using Random = std::mt19937_64;

constexpr auto kPieces = std::to_array<const char*>({"[GENERAL]",
                                                     "[HEADER]",
                                                     "[DATA]",
                                                     "[TEXT]",
                                                     "[LOOP]",
                                                     "[ENDLOOP]",
                                                     "[FOOTER]",
                                                     "\n",
                                                     "\r\n",
                                                     "\r",
                                                     "=",
                                                     "==",
                                                     "#",
                                                     "%",
                                                     "|",
                                                     ";",
                                                     ",",
                                                     "\t",
                                                     "TRUE",
                                                     "-1",
                                                     "99999999999",
                                                     "1e308",
                                                     "0x10",
                                                     "SCALE=",
                                                     "LOCATE=1,2,3,4,5",
                                                     "FONTSIZE=",
                                                     "MAXRECORDS=",
                                                     "SELECTITEM=",
                                                     "APPEND=",
                                                     "TABLECOLBOLD=1,,2",
                                                     "DETAILLEVEL=SUMMARY",
                                                     "FORMATCURRENCY=",
                                                     "\xEF\xBB\xBF",
                                                     "\xC3",
                                                     "\xF4\x90\x80\x80",
                                                     "\xED\xA0\x80",
                                                     "\xE2\x82\xAC"});

std::size_t Below(Random& random, std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
}

void Mutate(Random& random, std::string& text, const std::vector<std::string>& corpus) {
    const std::size_t at = Below(random, text.size() + 1);
    switch (Below(random, 7)) {
        case 0:
            text.insert(at, 1, static_cast<char>(Below(random, 256)));
            break;
        case 1:
            if (at < text.size()) text[at] = static_cast<char>(Below(random, 256));
            break;
        case 2:
            text.erase(at, Below(random, 40));
            break;
        case 3:
            text.insert(at, kPieces.at(Below(random, kPieces.size())));
            break;
        case 4: { // a part of another definition
            const std::string& other = corpus[Below(random, corpus.size())];
            if (!other.empty())
                text.insert(at, other.substr(Below(random, other.size()), Below(random, 200)));
            break;
        }
        case 5: // two lines change places with their keys
            if (const auto end = text.find('\n', at); end != std::string::npos)
                text = text.substr(end + 1) + text.substr(0, end + 1);
            break;
        default:
            text.resize(at);
            break;
    }
    constexpr std::size_t kLongest = 6000;
    if (text.size() > kLongest) text.resize(kLongest);
}

struct Totals {
    std::size_t inputs = 0;
    std::size_t faults = 0;
    std::size_t sections = 0;
};

void Feed(const std::string& text, Totals& totals) {
    const std::string read = reports::IsUtf8(text) ? text : reports::FromWindows1252(text);
    if (!reports::IsUtf8(read)) std::abort();
    for (const auto kind : {reports::ReportKind::Report, reports::ReportKind::Receipt}) {
        reports::ReportDef report;
        report.Kind = kind;
        reports::ReadCatalogueKeys(read, report);
        if (report.SelectItem < core::kNone || report.Icon < 0 || report.Icon > 8) std::abort();
    }
    ++totals.inputs;
    try {
        totals.sections += reports::ReadReport(read).Sections.size();
    } catch (const reports::ReportError& fault) {
        if (fault.Line() < 1) std::abort();
        ++totals.faults;
    }
}

} // namespace

/// FuzzReaders FOLDER COUNT [SEED]
int main(int argc, char** argv) {
    if (argc < 3) return 2;
    std::vector<std::string> corpus = {""};
    for (const auto& entry : std::filesystem::directory_iterator(argv[1])) {
        std::ifstream file(entry.path());
        corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    const std::size_t count = std::strtoull(argv[2], nullptr, 10);
    Random random(argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1);
    Totals totals;
    while (totals.inputs < count) {
        std::string text = corpus[Below(random, corpus.size())];
        for (std::size_t changes = 1 + Below(random, 12); changes > 0; --changes)
            Mutate(random, text, corpus);
        Feed(text, totals);
    }
    std::printf(
        "%zu inputs, each to both readers: %zu runs ended with a line's fault, %zu sections\n",
        totals.inputs, totals.faults, totals.sections);
    return 0;
}
