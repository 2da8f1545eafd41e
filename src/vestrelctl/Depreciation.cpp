#include <cstdint>
#include <iostream>
#include <memory>

#include <fmt/core.h>

#include "books/clsDepreciation.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Csv.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

books::clsDepreciation ReadBuilding(std::int32_t idBuilding) {
    platform::Recordset building = core::Read(
        "SELECT Address, PurchDate, DeprBasis, DeprPeriod, DeprMethod FROM Building "
        "WHERE IdBuilding = ?",
        {idBuilding});
    if (building.Eof()) throw platform::Error(fmt::format("There is no building {}", idBuilding));
    books::clsDepreciation depreciation;
    depreciation.SetDescription(TextOf(building["Address"]));
    depreciation.SetStartDate(TextOf(building["PurchDate"]));
    depreciation.SetBasis(NumberOf(building["DeprBasis"]));
    depreciation.SetLife(NumberOf(building["DeprPeriod"]));
    depreciation.SetMethod(TextOf(building["DeprMethod"]));
    return depreciation;
}

void PrintDepreciation(std::int32_t idBuilding) {
    books::clsDepreciation depreciation = ReadBuilding(idBuilding);
    depreciation.Init();
    std::cout << R"("Period End","Beginning","Loss","Ending","Method")" << '\n';
    for (const books::DepreciationPeriod& period : depreciation.Schedule()) {
        std::string line;
        platform::AppendCsvCell(line, platform::Date::Parse(period.PeriodEnd));
        for (const platform::Value& value :
             {platform::Value(period.StartValue), platform::Value(period.Loss),
              platform::Value(period.EndValue), platform::Value(period.MethodUsed)}) {
            line += ',';
            platform::AppendCsvCell(line, value);
        }
        std::cout << line << '\n';
    }
}

} // namespace

void AddDepreciation(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("depreciation", "A building's depreciation schedule as CSV");
    auto id = std::make_shared<std::int32_t>(0);
    command->add_option("id", *id, "The building's IdBuilding")->required();
    command->callback([id, &options] {
        OpenDatabase(options, Purpose::Read);
        PrintDepreciation(*id);
    });
}

} // namespace vestrelctl
