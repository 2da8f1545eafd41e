#include "store/References.h"

#include <algorithm>
#include <string>
#include <system_error>

#include <fmt/core.h>

#include "store/NewFile.h"
#include "store/Tables.h"

namespace store {

namespace {

struct TaxOffice {
    std::string_view county;
    std::string_view state;
    std::string_view stateAbbr;
    std::string_view query; ///< what follows the office's address
};

// The offices of the counties in which the sample has property, at addresses that belong to nobody.
constexpr TaxOffice kTaxOffices[] = {
    {"Lane", "Oregon", "OR", "property?account=<<taxaccount>>"},
    {"Benton", "Oregon", "OR", "assessor/search.html?id=<<TaxAccount>>"},
    {"Multnomah", "Oregon", "OR", "taxes/<<taxaccount>>"},
    {"Whatcom", "Washington", "WA", "parcel?number=<<taxaccount>>"},
    {"Pierce", "Washington", "WA", "parcel?number=<<taxaccount>>"},
    {"King", "Washington", "WA", "parcel?number=<<taxaccount>>"},
    {"Kootenai", "Idaho", "ID", "account/<<taxaccount>>/summary"},
    {"Ada", "Idaho", "ID", "account/<<taxaccount>>/summary"},
    {"Butte", "California", "CA", "roll?apn=<<taxaccount>>"},
    {"Los Angeles", "California", "CA", "roll?apn=<<taxaccount>>"},
    {"Larimer", "Colorado", "CO", "treasurer/<<taxaccount>>"},
    {"Saint Louis", "Minnesota", "MN", "tax?pin=<<taxaccount>>"},
    {"Washtenaw", "Michigan", "MI", "tax?pin=<<taxaccount>>"},
    {"Franklin", "Ohio", "OH", "auditor/<<taxaccount>>"},
    {"Hampshire", "Massachusetts", "MA", "bills?account=<<taxaccount>>"},
    {"Chittenden", "Vermont", "VT", "grandlist?span=<<taxaccount>>"},
};

/// Returns the host for an office: "los-angeles-ca" for "Los Angeles", "CA".
std::string HostOf(const TaxOffice& office) {
    std::string host = fmt::format("{}-{}", office.county, office.stateAbbr);
    std::transform(host.begin(), host.end(), host.begin(), [](char c) {
        if (c == ' ') return '-';
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return host;
}

void FillReferences(platform::Connection& connection) {
    platform::UnitOfWork work(connection);
    connection.RunScript(SchemaScript(ReferenceTables()));
    for (const ZipCode& each : ZipCodes()) {
        connection.Execute("INSERT INTO ZipCodes (Zip, City, State, County) VALUES (?, ?, ?, ?)",
                           {each.zip, each.city, each.state, each.county});
    }
    for (const TaxOffice& each : kTaxOffices) {
        connection.Execute("INSERT INTO TaxURL (County, State, StateAbbr, URL) VALUES (?, ?, ?, ?)",
                           {each.county, each.state, each.stateAbbr,
                            fmt::format("https://taxes.{}.example/{}", HostOf(each), each.query)});
    }
    work.Commit();
}

void MakeReferences(const std::filesystem::path& path) {
    NewFile file(path);
    platform::Connection connection;
    connection.Open(file.Draft(), platform::OpenMode::Create);
    FillReferences(connection);
    connection.Close();
    file.Publish();
}

} // namespace

void CreateReferences(const std::filesystem::path& directory) {
    const std::filesystem::path path = directory / kReferencesFile;
    try {
        MakeReferences(path);
    } catch (const platform::Error&) {
        // They already exist, or another program has made them at the same time.
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(path, ignored)) throw;
    }
}

} // namespace store
