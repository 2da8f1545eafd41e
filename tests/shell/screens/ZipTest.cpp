#include "core/Configuration.h"
#include "shell/screens/frmConfig.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

/// The tables of zip codes stand beside the program.
class ZipTest : public ScreenTest {
  protected:
    ZipTest() {
        platform::Connection references;
        references.Open(Folder() / "References.mdb", platform::OpenMode::Create);
        references.RunScript(
            "CREATE TABLE ZipCodes (Zip LONG, City TEXT, State TEXT, County TEXT)");
        references.Execute(
            "INSERT INTO ZipCodes (Zip, City, State, County) "
            "VALUES (97301, 'Salem', 'OR', 'Marion')");
        references.Close();
        core::SetAppPath(Folder().string());
        form_ = new shell::screens::frmConfig;
        form_->Setup();
    }
    std::string LeaveZip(const char* zip, const char* city, const char* state) {
        Box("txtCity").setText(QString::fromLatin1(city));
        Box("txtState").setText(QString::fromLatin1(state));
        Type(Box("txtZip"), zip);
        Q_EMIT Box("txtZip").editingFinished();
        return (Box("txtCity").text() + QLatin1Char('/') + Box("txtState").text()).toStdString();
    }
    QLineEdit& Box(const char* name) { return Find<QLineEdit>(*form_, name); }

    QPointer<shell::screens::frmConfig> form_;
};

TEST_F(ZipTest, LeavingTheZipFillsOnlyWhatIsEmpty) {
    EXPECT_EQ(LeaveZip("97301", "", ""), "Salem/OR");
    EXPECT_EQ(LeaveZip("97301", "Keizer", ""), "Keizer/OR");
    EXPECT_EQ(LeaveZip("97301", "", "WA"), "Salem/WA");
    EXPECT_EQ(LeaveZip("11111", "", ""), "/");
    EXPECT_EQ(LeaveZip("97301-1234", "", ""), "/");
    EXPECT_EQ(LeaveZip("", "", ""), "/");
}

} // namespace
} // namespace support
