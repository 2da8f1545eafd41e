#pragma once

#include <cstdint>
#include <string>

#include "platform/database/Connection.h"
#include "platform/values/Currency.h"

namespace core {

/// The settings of the books that are kept in memory: the fields of the one row of the table
/// Configuration that have these names. Percents are whole numbers (4 for 4 %).
struct ConfigValues {
    std::string CompanyName;
    std::string Address;
    std::string City;
    std::string State;
    std::string Zip;
    std::string Phone;
    std::string FAX;
    std::string Mobile;
    std::string Email;
    std::string Web;

    std::string DefaultCounty;
    std::string DefaultState;
    std::int32_t DefaultDepositAccount = 0;
    std::int32_t DefaultRentAccount = 0;
    std::int32_t DefaultMortgagee = 0;
    std::int32_t DefaultMortgagePmt = 0;

    std::string TermType;
    std::int16_t Term = 0;
    std::string ExpireOption;
    platform::Currency Discount;
    std::int16_t DiscountDays = 0;
    platform::Currency OneTimeFee;
    std::int16_t OneTimeDays = 0;
    platform::Currency DailyFee;
    std::int16_t DailyDays = 0;
    std::int16_t EvictDays = 0;
    platform::Currency BreakFee;
    std::int16_t NoticeDays = 0;

    bool ShowAllAccounts = false;
    std::int16_t KeepAlerts = 0;
    bool AssociateDocs = false;
    std::string DocDirectory;
    std::string FileDirectory;

    std::string CFAExp1;
    std::string CFAExp2;
    std::string CFAExp3;
    std::string CFAExp4;
    std::string NoteScoreTable;
    double NoteCreditWeight = 0;
    double NoteEquityWeight = 0;
    double NoteOnTimeWeight = 0;
    double CFASaleExpense = 0;
    double CFADownPayment = 0;
    double CFASaleCAP = 0;
    double CFAMgmtFee = 0;
    double CFAExpEscalator = 0;
    double CFARentIncEscalator = 0;
    double CFAVacancyRate = 0;
};

/// Returns the settings as last loaded.
ConfigValues& Config();

/// Reads the settings from the books. Without a row, or on failure, they stay as they were; a field
/// that is null or missing reads as its type's empty value.
void LoadConfiguration();

/// Gives books without settings the default ones, the first record identifier among them; opens the
/// connection on the process's database if it isn't open. Returns false on failure, and if there
/// are settings already, which are never changed.
bool CreateDefaultConfiguration(platform::Connection& connection);

} // namespace core
