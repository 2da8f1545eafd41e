#include "records/RelatedLists.h"

#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"

namespace {

using core::EditRequest;
using records::RelatedList;
using records::RelatedOwner;

class RelatedListsTest : public tests::CoreRecords {
  protected:
    RelatedListsTest() {
        for (const auto* sql : {
                 "UPDATE Lease SET Status = 'MTM', DateActive = '02/01/2024', Rent = 950, "
                 "RentStatus = 'Due', [Option] = False WHERE IdLease = 40",
                 "INSERT INTO Lease (IdLease, IdUnit, IdTenant, DateActive) "
                 "VALUES (41, 20, 31, '03/01/2024')",
                 "INSERT INTO Lease (IdLease, IdUnit, IdTenant, DateActive) "
                 "VALUES (42, 21, 31, '03/01/2024')",
                 "UPDATE Account SET Phone = '555', AccountNumber = 'N1' WHERE IdAccount = 61",
                 "INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount, [Percent], IsPrimary) "
                 "VALUES (90, 10, 61, 60.5, True)",
                 "INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount) VALUES (91, 10, 999)",
                 "INSERT INTO ManagerLink (IdManagerLink, IdBuilding, IdAccount, DateStart, Term, "
                 "TermType, FeeType, OnSite) "
                 "VALUES (92, 10, 61, '01/01/2024', 2, 'Year(s)', 'Fixed', True)",
                 "INSERT INTO Content (IdContent, IdUnit, Description, [Value]) "
                 "VALUES (93, 20, 'Bob''s \"red\" sofa', 12.5)",
                 "UPDATE Mortgage SET Status = 'Current', CurrentI = 0.0625 WHERE IdMortgage = 50",
                 "INSERT INTO SvcContract (IdSvcContract, IdBuilding, IdAppliance, SvcType) "
                 "VALUES (94, 10, 0, 'Lawn')",
                 "INSERT INTO SvcContract (IdSvcContract, IdBuilding, IdAppliance, SvcType) "
                 "VALUES (95, 11, 70, 'Stove')",
                 "INSERT INTO SvcContract (IdSvcContract, IdBuilding, IdAppliance, SvcType) "
                 "VALUES (96, 11, 0, 'Pests')",
                 "INSERT INTO Incident (IdIncident, IdTenant, EntryDate, Severity, Description) "
                 "VALUES (97, 30, '12/31/2023', '1 - Caution', 'Older')",
                 "INSERT INTO Incident (IdIncident, IdTenant, EntryDate, Severity, Description) "
                 "VALUES (98, 30, '01/02/2024', '2 - Warning', 'Newer')",
                 "INSERT INTO WOItem (IdWOItem, IdWorkOrder, EntryDate, Description) "
                 "VALUES (99, 100, '01/02/2024', 'Called')",
             }) {
            Run(sql);
        }
    }
    static const RelatedList& Tab(core::RecordKind ownerKind, std::string_view caption) {
        for (const RelatedList& list : records::TabbedLists(ownerKind)) {
            if (list.caption == caption) return list;
        }
        throw std::runtime_error("no such list");
    }
    /// All cells, including the id, separated by "|"; a line each.
    static std::string Rows(const RelatedList& list, const RelatedOwner& owner) {
        platform::Recordset rows = records::OpenRelated(list, owner);
        if (!rows.IsOpen()) return "failed";
        std::string text;
        for (; !rows.Eof(); rows.MoveNext()) {
            for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
                const platform::Value value = rows[i].Value();
                text += (i == 0 ? "" : "|") + (value.IsNull() ? "" : value.AsText());
            }
            text += "\n";
        }
        return text;
    }
};

TEST_F(RelatedListsTest, EachTabShowsWhatHangsFromItsOwnerAlone) {
    const RelatedOwner building{core::kBuilding, 10};
    const RelatedOwner unit{core::kUnit, 20};
    EXPECT_EQ(Rows(Tab(core::kBuilding, "Owners"), building),
              "91||||False\n"
              "90|Al Owner|N1|60.5|True\n")
        << "a link whose account was deleted is shown, so that it can be removed";
    EXPECT_EQ(Rows(Tab(core::kBuilding, "Managers"), building),
              "92|Al Owner|555|01/01/2024|Year(s)|2|Fixed|True\n");
    EXPECT_EQ(Rows(Tab(core::kBuilding, "Mortgages"), building),
              "50|Current||||120000.25|6.25|\n"
              "51|||||||\n");
    EXPECT_EQ(Rows(Tab(core::kBuilding, "Svc Contracts"), building),
              "94||||Lawn\n"
              "95||||Stove\n")
        << "the contract of an appliance in one of its units, whatever building it names";
    EXPECT_EQ(Rows(Tab(core::kUnit, "Leases"), unit),
              "41||O'Brien, Ann |03/01/2024|||False\n"
              "40|MTM|Smith, John Q|02/01/2024|950|Due|False\n")
        << "the newest first";
    EXPECT_EQ(Rows(Tab(core::kUnit, "Appliances"), unit), "70|Stove|Ace|||\n");
    EXPECT_EQ(Rows(Tab(core::kUnit, "Rooms"), unit), "80|Kitchen|||False|False\n");
    EXPECT_EQ(Rows(Tab(core::kUnit, "Content"), unit), "93|Bob's \"red\" sofa||||12.5\n");
}

TEST_F(RelatedListsTest, TheTabsStandInTheirOrder) {
    std::string captions;
    for (const core::RecordKind kind : {core::kBuilding, core::kUnit, core::kTenant}) {
        for (const RelatedList& list : records::TabbedLists(kind))
            captions += std::string(list.caption) + "=" + std::string(list.gridKey) + " ";
        captions += "; ";
    }
    EXPECT_EQ(captions,
              "Owners=frmBuilding.OwnerLink Managers=frmBuilding.ManagerLink "
              "Mortgages=frmBuilding.Mortgage Svc Contracts=frmBuilding.SvcContract ; "
              "Leases=frmUnit.Lease Appliances=frmBuilding.Appliance Rooms=frmBuilding.Room "
              "Content=frmBuilding.Content ; ; ");
}

TEST_F(RelatedListsTest, SingleListsAreThoseOfTenantsWorkOrdersAndAppliances) {
    EXPECT_EQ(Rows(*records::SingleList(core::kTenant), {core::kTenant, 30}),
              "98|01/02/2024|2 - Warning|Newer\n"
              "97|12/31/2023|1 - Caution|Older\n");
    EXPECT_EQ(Rows(*records::SingleList(core::kWorkOrder), {core::kWorkOrder, 100}),
              "99|01/02/2024|Called\n");
    EXPECT_EQ(Rows(*records::SingleList(core::kAppliance), {core::kAppliance, 70}),
              "95||||Stove\n");
    EXPECT_EQ(records::SingleList(core::kBuilding), nullptr);
}

TEST_F(RelatedListsTest, AListThatCantBeReadThrows) {
    core::App().Connection.Close();
    EXPECT_THROW(records::OpenRelated(Tab(core::kUnit, "Rooms"), {core::kUnit, 20}),
                 platform::DatabaseError);
}

TEST_F(RelatedListsTest, ARecordOpensWithItsOwnerAsParent) {
    EXPECT_EQ(records::RelatedRequest(Tab(core::kUnit, "Rooms"), {core::kUnit, 20}, 0),
              (EditRequest{.kind = core::kRoom, .parent1 = 20}));
    EXPECT_EQ(
        records::RelatedRequest(Tab(core::kBuilding, "Svc Contracts"), {core::kBuilding, 10}, 94),
        (EditRequest{.kind = core::kSvcContract, .id = 94, .parent1 = 10}));
    EXPECT_EQ(
        records::RelatedRequest(*records::SingleList(core::kAppliance), {core::kAppliance, 70}, 0),
        (EditRequest{.kind = core::kSvcContract, .parent1 = 10, .parent3 = 70}))
        << "a contract of an appliance is one of its building";
}

} // namespace
