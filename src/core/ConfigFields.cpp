#include "core/ConfigFields.h"

#include "core/Codes.h"
#include "core/Globals.h"
#include "core/IdStart.h"

namespace core {

std::vector<ConfigField> ConfigFields() {
    using C = ConfigValues;
    using platform::Currency;
    using platform::Value;
    const auto integer = [](std::int16_t value) { return Value(value); };
    const Value noLink = std::int32_t{0};
    const Value notSet;

    return {
        {"CompanyName", "Your Company Name", &C::CompanyName},
        {"Address", "123 Main Street", &C::Address},
        {"City", "Beverly Hills", &C::City},
        {"State", "CA", &C::State},
        {"Zip", "90210", &C::Zip},
        {"Phone", "800-555-1212", &C::Phone},
        {"FAX", "888-555-1212", &C::FAX},
        {"Mobile", "312-555-1212", &C::Mobile},
        {"Email", "office@vestrel.example", &C::Email},
        {"Web", "www.vestrel.example", &C::Web},
        {"TaxIDFed", "123-56-6789", {}},
        {"TaxIDState", "12345678", {}},
        {"NextId", MinutesSince2000(), {}},
        {"DefaultCounty", "", &C::DefaultCounty},
        {"DefaultState", "", &C::DefaultState},
        {"DefaultDepositAccount", noLink, &C::DefaultDepositAccount},
        {"DefaultRentAccount", noLink, &C::DefaultRentAccount},
        {"DefaultMortgageAccount", noLink, {}},
        {"DefaultMortgagee", noLink, &C::DefaultMortgagee},
        {"DefaultMortgagePmt", notSet, &C::DefaultMortgagePmt},
        {"DefaultCar", notSet, {}},
        {"TermType", kTermMonths, &C::TermType},
        {"Term", integer(12), &C::Term},
        {"ExpireOption", kLeaseMonthToMonth, &C::ExpireOption},
        {"Discount", Currency::FromUnits(50), &C::Discount},
        {"DiscountDays", integer(5), &C::DiscountDays},
        {"OneTimeFee", Currency::FromUnits(50), &C::OneTimeFee},
        {"OneTimeDays", integer(5), &C::OneTimeDays},
        {"DailyFee", Currency(), &C::DailyFee},
        {"DailyDays", integer(10), &C::DailyDays},
        {"EvictDays", integer(15), &C::EvictDays},
        {"BreakFee", Currency(), &C::BreakFee},
        {"NoticeDays", integer(30), &C::NoticeDays},
        {"ShowAllAccounts", false, &C::ShowAllAccounts},
        {"KeepAlerts", integer(15), &C::KeepAlerts},
        {"AssociateDocs", false, &C::AssociateDocs},
        {"DocDirectory", App().AppPath + "Docs", &C::DocDirectory},
        {"FileDirectory", App().AppPath + "Files", &C::FileDirectory},
        {"CFAExp1", "Landscape", &C::CFAExp1},
        {"CFAExp2", "Trash", &C::CFAExp2},
        {"CFAExp3", "Pest", &C::CFAExp3},
        {"CFAExp4", "Pool", &C::CFAExp4},
        {"NoteScoreTable", "500:20|725:15|875:12.5|1000:11", &C::NoteScoreTable},
        {"NoteCreditWeight", 1.0, &C::NoteCreditWeight},
        {"NoteEquityWeight", 10.0, &C::NoteEquityWeight},
        {"NoteOnTimeWeight", 10.0, &C::NoteOnTimeWeight},
        {"CFASaleExpense", 4.0, &C::CFASaleExpense},
        {"CFADownPayment", 10.0, &C::CFADownPayment},
        {"CFASaleCAP", 10.0, &C::CFASaleCAP},
        {"CFAMgmtFee", 0.0, &C::CFAMgmtFee},
        {"CFAExpEscalator", 4.0, &C::CFAExpEscalator},
        {"CFARentIncEscalator", 4.0, &C::CFARentIncEscalator},
        {"CFAVacancyRate", 5.0, &C::CFAVacancyRate},
    };
}

} // namespace core
