#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

TableDefinition ConfigurationTable() {
    return MakeTable("Configuration",
                     {{Text,
                       "CompanyName Address City State Zip Phone FAX Mobile Email Web TaxIDFed "
                       "TaxIDState"},
                      {Counter, "NextId"},
                      {Text, "DefaultCounty DefaultState"},
                      {Long,
                       "DefaultDepositAccount DefaultRentAccount DefaultMortgageAccount "
                       "DefaultMortgagee DefaultMortgagePmt"},
                      {Text, "DefaultCar TermType"},
                      {Integer, "Term"},
                      {Text, "ExpireOption"},
                      {Currency, "Discount"},
                      {Integer, "DiscountDays"},
                      {Currency, "OneTimeFee"},
                      {Integer, "OneTimeDays"},
                      {Currency, "DailyFee"},
                      {Integer, "DailyDays EvictDays"},
                      {Currency, "BreakFee"},
                      {Integer, "NoticeDays"},
                      {Boolean, "ShowAllAccounts"},
                      {Integer, "KeepAlerts"},
                      {Boolean, "AssociateDocs"},
                      {Text,
                       "DocDirectory FileDirectory CFAExp1 CFAExp2 CFAExp3 CFAExp4 "
                       "NoteScoreTable"},
                      {Double,
                       "NoteCreditWeight NoteEquityWeight NoteOnTimeWeight CFASaleExpense "
                       "CFADownPayment CFASaleCAP CFAMgmtFee CFAExpEscalator CFARentIncEscalator "
                       "CFAVacancyRate"}});
}

} // namespace

std::vector<TableDefinition> SupportTables() {
    return {
        MakeTable("Doc",
                  {{Long, "IdDoc"},
                   {Text, "Description FilePath"},
                   {Boolean,
                    "selAccount selTransaction selLease selBuilding selTenant selWO selMortgage "
                    "selMileage selUnit"}},
                  {"IdDoc"}),
        MakeTable("FileObject",
                  {{Long, "IdFileObject"},
                   {Integer, "dbType"},
                   {Long, "IdOwner"},
                   {Text, "Description FilePath"},
                   {Boolean, "IsPic"}},
                  {"IdFileObject", "IdOwner"}),
        MakeTable("Alerts", {{DateText, "EntryDate"}, {Text, "Description"}}),
        MakeTable("StatusLog", {{Long, "IdUnit"}}, {"IdUnit"}),
        MakeTable("Analysis", {{Long, "IdAnalysis"}}, {"IdAnalysis"}),
        MakeTable("DiscNote", {{Long, "IdDiscNote"}}, {"IdDiscNote"}),
        MakeTable("Users", {{Long, "IdUser"}, {Text, "UserName"}}, {"IdUser"}),
        ConfigurationTable(),
    };
}

} // namespace store
