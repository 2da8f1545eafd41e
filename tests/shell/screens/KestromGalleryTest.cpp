#include <gmock/gmock.h>

#include <QLineEdit>
#include <QTabWidget>
#include <QWindow>

#include "core/Startup.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "shell/screens/BooksRun.h"
#include "shell/screens/KestromFixture.h"

namespace support {
namespace {

using testing::IsEmpty;

constexpr int kUnits = 12;

/// The main window on a sample portfolio that has waited for eleven days.
class KestromGallery : public tests::KestromTest {
  protected:
    KestromGallery() {
        const platform::Date today(2026, 11, 21);
        const platform::Date before = platform::DateAdd(platform::Interval::Day, -11, today);
        core::App().Connection.Close();
        shell::RegisterLogic();
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, before);
        core::App().DbPath = PathTo("sample/");
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        platform::SetToday(today);
        core::LoadBooks();
        shell::screens::RunBooks(digest_);
    }

    /// A picture of the window at the size of a small screen, and what is wrong with it.
    std::vector<std::string> Portrait(shell::screens::frmKestrom& window, const char* view) {
        const bool isScaled = window.devicePixelRatioF() > 1;
        window.resize(QSize(1280, 800) / window.devicePixelRatioF());
        return Portray(window, std::string("frmKestrom-") + view + (isScaled ? "-150" : ""));
    }

    shell::RunDigest digest_;
};

TEST_F(KestromGallery, FitsASmallScreen) {
    shell::screens::frmKestrom window(services_);
    window.Setup(digest_);
    EXPECT_THAT(Portrait(window, "home"), IsEmpty());
    support::Find<QTabWidget>(window, "tabHome").setCurrentIndex(1);
    EXPECT_THAT(Portrait(window, "picture"), IsEmpty());
    struct View {
        core::RecordKind kind;
        const char* name;
    };
    for (const View& view :
         {View{core::kAccount, "accounts"}, View{core::kTransaction, "ledger"},
          View{core::kLease, "leases"}, View{core::kUnit, "units"}, View{core::kTenant, "tenants"},
          View{core::kMortgage, "mortgages"}, View{core::kWorkOrder, "workorders"}}) {
        window.SetSelectedDb(view.kind);
        EXPECT_THAT(Portrait(window, view.name), IsEmpty());
    }
    window.SetSelectedDb(core::kLease);
    support::Type(support::Find<QLineEdit>(window, "txtSearch"), "no such tenant");
    SettleEvents();
    EXPECT_THAT(Portrait(window, "nothing"), IsEmpty());
}

} // namespace
} // namespace support
