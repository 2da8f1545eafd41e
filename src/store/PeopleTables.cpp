#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

TableDefinition TenantTable() {
    return MakeTable("Tenant",
                     {{Long, "IdTenant"},
                      {Boolean, "Hide Selected"},
                      {Text,
                       "Status LastName FirstName Initial SpouseName MaritalStatus Phone AltPhone "
                       "Email Web"},
                      {Integer, "Kids FICO"},
                      {DateText, "DOB"},
                      {Text,
                       "SSN DLN DLState BankName BankRouting BankAccount CCType CCNum CCExp "
                       "CCCVN"},
                      {Boolean, "Eviction LawsuitPending Bankrupcy"},
                      {Memo, "Notes"}},
                     {"IdTenant"});
}

TableDefinition AccountTable() {
    return MakeTable("Account",
                     {{Long, "IdAccount"},
                      {Boolean, "Hide Selected"},
                      {Text, "AccountType ShowAs"},
                      {Boolean, "ShowAsIndividual"},
                      {Text,
                       "Company LastName FirstName Initial Address1 Address2 City State Zip Phone "
                       "FAX Mobile Email Web AccountNumber TaxIDFed TaxIDState"},
                      {Currency, "Balance"},
                      {Memo, "Notes"}},
                     {"IdAccount"});
}

TableDefinition ContactTable() {
    return MakeTable("Contact",
                     {{Long, "IdContact"},
                      {Integer, "dbType"},
                      {Long, "IdRelated"},
                      {Text,
                       "Description Company LastName FirstName Address1 Address2 City State Zip "
                       "Phone Mobile FAX Email Web"},
                      {Memo, "Notes"},
                      {Integer, "IconFlag"}},
                     {"IdContact", "IdRelated"});
}

TableDefinition OwnerLinkTable() {
    return MakeTable(
        "OwnerLink",
        {{Long, "IdOwnerLink IdBuilding IdAccount"}, {Double, "Percent"}, {Boolean, "IsPrimary"}},
        {"IdOwnerLink", "IdBuilding", "IdAccount"});
}

TableDefinition ManagerLinkTable() {
    return MakeTable("ManagerLink",
                     {{Long, "IdManagerLink IdBuilding IdAccount"},
                      {DateText, "DateStart"},
                      {Integer, "Term"},
                      {Text, "TermType FeeType"},
                      {Double, "FirstFee MonthlyFee"},
                      {Currency, "RepairLimit"},
                      {Boolean, "OnSite"}},
                     {"IdManagerLink", "IdBuilding", "IdAccount"});
}

TableDefinition IncidentTable() {
    return MakeTable("Incident",
                     {{Long, "IdIncident IdTenant"},
                      {DateText, "EntryDate"},
                      {Text, "Severity Description"},
                      {Memo, "Notes"}},
                     {"IdIncident", "IdTenant"});
}

} // namespace

std::vector<TableDefinition> PeopleTables() {
    return {TenantTable(),    AccountTable(),     ContactTable(),
            OwnerLinkTable(), ManagerLinkTable(), IncidentTable()};
}

} // namespace store
