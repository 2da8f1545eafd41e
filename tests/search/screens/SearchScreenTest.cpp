#include <gmock/gmock.h>

#include "core/EditRecord.h"
#include "search/screens/ResultList.h"
#include "search/screens/frmSearch.h"
#include "support/screens/Screens.h"

namespace {

using platform::qt::FromScreen;
using search::screens::frmSearch;
using search::screens::ResultList;
using support::Find;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class SearchScreen : public support::ScreenTest {
  protected:
    SearchScreen() {
        for (int id = 200; id < 220; ++id) {
            Run("INSERT INTO Tenant (IdTenant, LastName, FirstName, Status) VALUES (" +
                std::to_string(id) + ", 'Goldmann', 'No. " + std::to_string(id) + "', 'Current')");
        }
        for (const core::RecordKind kind : {core::kTenant, core::kLease}) {
            core::RegisterOpener(kind, [this](const core::EditRequest& request) {
                opened_.push_back(std::to_string(core::KindNumber(request.kind)) + ' ' +
                                  std::to_string(request.id));
            });
        }
        finder_.SetItems({{"Commands", "show", "Pay Rent", "Database", ""}});
        box_ = new frmSearch(finder_, [this](std::size_t item) {
            opened_.push_back("item " + std::to_string(item));
        });
        box_->Setup();
        support::SettleEvents();
        while (finder_.IsStale())
            support::SettleEvents();
    }
    ~SearchScreen() override {
        for (const core::RecordKind kind : {core::kTenant, core::kLease})
            core::RegisterOpener(kind, {});
        delete box_;
    }

    QLineEdit& Box() { return Find<QLineEdit>(*box_, "txtSearch"); }
    ResultList& List() { return Find<ResultList>(*box_, "lvw"); }
    void Search(std::string_view text) {
        support::Type(Box(), text);
        Settle();
    }
    void Settle() {
        support::SettleEvents();
        while (finder_.IsStale())
            support::SettleEvents();
        support::SettleEvents();
    }
    /// The rows as they show: headings, titles with a blank before them; ">" before the current
    /// one.
    std::vector<std::string> Rows() {
        std::vector<std::string> rows;
        for (int group = 0; group < List().topLevelItemCount(); ++group) {
            const QTreeWidgetItem* const heading = List().topLevelItem(group);
            rows.push_back(FromScreen(heading->text(0)));
            for (int i = 0; i < heading->childCount(); ++i) {
                const QTreeWidgetItem* const row = heading->child(i);
                rows.push_back((row == List().currentItem() ? ">" : " ") +
                               FromScreen(row->text(0)));
            }
        }
        return rows;
    }
    std::string Status() { return FromScreen(Find<QLabel>(*box_, "lblStatus").text()); }

    search::Finder finder_{core::App().Connection};
    QPointer<frmSearch> box_;
    std::vector<std::string> opened_;
};

TEST_F(SearchScreen, FindsAsOneTypesAndOpensByKeysAlone) {
    EXPECT_TRUE(Box().hasFocus());
    EXPECT_THAT(Status(), StartsWith("Type some words"));
    support::Type(Box(), "smi");
    EXPECT_THAT(Rows(), ElementsAre("Tenants", ">Smith, John Q", "Leases", " Smith, 12 Elm St B"));
    EXPECT_EQ(Status(), "2 results");
    QTest::keyClick(&Box(), Qt::Key_Down);
    EXPECT_THAT(Rows(), ElementsAre("Tenants", " Smith, John Q", "Leases", ">Smith, 12 Elm St B"))
        << "headings are skipped";
    QTest::keyClick(&Box(), Qt::Key_Down);
    QTest::keyClick(&Box(), Qt::Key_Down);
    QTest::keyClick(&Box(), Qt::Key_Return);
    QTest::keyClick(&Box(), Qt::Key_Return);
    support::SettleEvents();
    EXPECT_THAT(opened_, ElementsAre("2 40")) << "once, whatever the second key says";
    EXPECT_FALSE(box_) << "the box closes";
}

TEST_F(SearchScreen, OpensItemsAndWhatIsDoubleClicked) {
    Search("pay");
    EXPECT_THAT(Rows(), ElementsAre("Commands", ">Pay Rent"));
    const QRect row = List().visualItemRect(List().currentItem());
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, row.center());
    support::SettleEvents();
    EXPECT_THAT(opened_, ElementsAre("item 0"));
}

TEST_F(SearchScreen, ShowsMoreOfAGroupWhenAsked) {
    Search("gold");
    ASSERT_EQ(Rows().size(), 8U);
    EXPECT_EQ(Rows().back(), " Show more...");
    QTest::keyClick(&Box(), Qt::Key_PageDown);
    QTest::keyClick(&Box(), Qt::Key_Return);
    EXPECT_EQ(Rows().size(), 21U);
    EXPECT_EQ(Rows()[7], ">Goldmann, No. 213") << "the first of the others";
    EXPECT_THAT(opened_, IsEmpty());
    Search("goldm");
    EXPECT_EQ(Rows().size(), 8U) << "of another search only the first again";
}

TEST_F(SearchScreen, FollowsTheBooksWhileItIsOpen) {
    Search("smith");
    Run("DELETE FROM Lease WHERE IdLease = 40");
    core::NotifyAll(core::kLease, core::kRecordsChanged, 40);
    Settle();
    EXPECT_THAT(Rows(), ElementsAre("Tenants", ">Smith, John Q"));
    Run("DELETE FROM Tenant WHERE IdTenant = 30"); // nobody tells of it
    support::TypeOn(Box(), " ");
    Settle();
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(Status(), "Nothing has all of these words.");
}

TEST_F(SearchScreen, SaysThatARecordWasDeletedSinceItWasFound) {
    Search("smith");
    Run("DELETE FROM Tenant WHERE IdTenant = 30"); // nobody tells of it
    QTest::keyClick(&Box(), Qt::Key_Return);
    support::SettleEvents();
    EXPECT_THAT(Heard(), ElementsAre(StartsWith("No Record Found: ")));
    EXPECT_THAT(opened_, IsEmpty());
}

TEST_F(SearchScreen, LetsTheIndexGoWhenItCloses) {
    Run("UPDATE Tenant SET Phone = '555-0100'");
    core::NotifyAll(core::kTenant, core::kRecordsChanged, 0);
    while (!finder_.IsReading())
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    QTest::keyClick(&Box(), Qt::Key_Escape);
    support::SettleEvents();
    EXPECT_FALSE(finder_.IsReading());
    search::Finder other(core::App().Connection); // of another program
    while (!other.Step()) {
    }
    EXPECT_EQ(other.Notice(), "");
}

TEST_F(SearchScreen, SaysWhatKeepsTheIndexFromItsFile) {
    delete box_;
    finder_.~Finder();
    std::filesystem::remove(search::Finder::IndexFile(core::App().Connection));
    std::filesystem::create_directory(search::Finder::IndexFile(core::App().Connection));
    new (&finder_) search::Finder(core::App().Connection);
    box_ = new frmSearch(finder_, {});
    box_->Setup();
    Search("smith");
    EXPECT_EQ(Rows().size(), 4U);
    const auto& notice = Find<QLabel>(*box_, "lblNotice");
    EXPECT_TRUE(notice.isVisible());
    EXPECT_THAT(FromScreen(notice.text()), HasSubstr("can't be used because"));
}

TEST_F(SearchScreen, LooksAndTabsAsItShould) {
    Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (300, 'The Extraordinarily "
        "Long Named Gold and Silver Bullion Savings and Loan Association of the Northwest', "
        "'Bank')");
    EXPECT_THAT(support::Portray(*box_, "frmSearch-empty"), IsEmpty());
    Search("gold");
    EXPECT_THAT(support::Portray(*box_, "frmSearch"), IsEmpty());
    Search("nothing of this");
    EXPECT_THAT(support::LookFaults(*box_, "frmSearch-nothing"), IsEmpty());
    Box().setText(QString(12'000, QLatin1Char('"'))); // pasted
    Settle();
    EXPECT_THAT(Rows(), IsEmpty());
    QTest::keyClick(&Box(), Qt::Key_Escape);
    support::SettleEvents();
    EXPECT_FALSE(box_);
}

} // namespace
