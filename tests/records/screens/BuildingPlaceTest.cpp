#include "platform/dialogs/Desktop.h"
#include "records/screens/frmBuilding.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmBuilding;

/// Notes the web pages that are opened.
class DesktopNote : public platform::Desktop {
  public:
    explicit DesktopNote(std::string& pages) : pages_(pages) {}
    bool OpenWebPage(std::string_view address) override {
        pages_ += std::string(address) + "\n";
        return true;
    }
    bool WriteMail(std::string_view) override { return false; }
    bool OpenDocument(std::string_view) override { return false; }

  private:
    std::string& pages_;
};

/// The tables of zip codes and assessors' pages stand beside the program.
class BuildingPlaceTest : public ScreenTest {
  protected:
    BuildingPlaceTest() {
        platform::Connection references;
        references.Open(Folder() / "References.mdb", platform::OpenMode::Create);
        references.RunScript(
            "CREATE TABLE ZipCodes (Zip LONG, City TEXT, State TEXT, County TEXT);"
            "CREATE TABLE TaxURL (County TEXT, State TEXT, StateAbbr TEXT, URL TEXT)");
        references.Execute(
            "INSERT INTO ZipCodes (Zip, City, State, County) "
            "VALUES (97301, 'Salem', 'OR', 'Marion')");
        references.Execute(
            "INSERT INTO TaxURL (County, State, StateAbbr, URL) "
            "VALUES ('Marion', 'Oregon', 'OR', 'https://tax.example/?a=<<TaxAccount>>')");
        references.Close();
        core::SetAppPath(Folder().string());
        platform::SetDesktop(std::make_unique<DesktopNote>(pages_));
        form_ = new frmBuilding;
        form_->Setup(0, 0);
    }
    ~BuildingPlaceTest() override { platform::SetDesktop(nullptr); }

    QLineEdit& Box(const char* name) { return Find<QLineEdit>(*form_, name); }
    std::string LeaveZip(const char* zip, const char* city) {
        for (const char* const box : {"txtCounty", "txtState"})
            Box(box).clear();
        Box("txtCity").setText(QString::fromLatin1(city));
        Type(Box("txtZip"), zip);
        Q_EMIT Box("txtZip").editingFinished();
        return (Box("txtCity").text() + QLatin1Char('/') + Box("txtCounty").text() +
                QLatin1Char('/') + Box("txtState").text())
            .toStdString();
    }
    std::string PageOf(const char* account, const char* county, const char* state) {
        pages_.clear();
        Box("txtTaxAccount").setText(QString::fromLatin1(account));
        Box("txtCounty").setText(QString::fromLatin1(county));
        Box("txtState").setText(QString::fromLatin1(state));
        Q_EMIT Find<QLabel>(*form_, "lblTaxAccount").linkActivated(QStringLiteral("tax"));
        return pages_;
    }

    std::string pages_;
    QPointer<frmBuilding> form_;
};

TEST_F(BuildingPlaceTest, TheZipFillsWhatIsEmpty) {
    EXPECT_EQ(LeaveZip("97301", ""), "Salem/Marion/OR");
    EXPECT_EQ(LeaveZip("97301", "Keizer"), "Keizer/Marion/OR") << "a typed city stays";
    EXPECT_EQ(LeaveZip("SW1A 1AA", ""), "//");
    EXPECT_EQ(LeaveZip("11111", ""), "//");
    EXPECT_EQ(LeaveZip("", ""), "//");
}

TEST_F(BuildingPlaceTest, TheTaxAccountLeadsToTheAssessorsPage) {
    const std::string page = "https://tax.example/?a=R1\n";
    EXPECT_EQ(PageOf(" R1 ", " Marion ", " OR "), page);
    EXPECT_EQ(PageOf("R1", "Marion", "Oregon"), page);
    EXPECT_EQ(PageOf("R1", "Polk", "OR"), "");
    EXPECT_EQ(PageOf("R1", "O'Brien", "OR"), "");
    EXPECT_EQ(PageOf("", "Marion", "OR"), "https://tax.example/?a=\n");
}

} // namespace
} // namespace support
