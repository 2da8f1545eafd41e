#include <QClipboard>
#include <QRegularExpression>
#include <QScreen>

#include "shell/screens/frmAbout.h"
#include "shell/screens/frmSplash.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using shell::screens::frmAbout;
using shell::screens::frmSplash;

class AboutTest : public ScreenTest {};

bool ShowsVersion(const QWidget& form) {
    static const QRegularExpression version(QStringLiteral("^ v\\d+\\.\\d+\\.\\d+$"));
    return version.match(Find<QLabel>(form, "lblVersion").text()).hasMatch();
}

TEST_F(AboutTest, TellsTheVersionAndGoesWithOk) {
    const QPointer<frmAbout> form(new frmAbout);
    form->Setup();
    EXPECT_TRUE(ShowsVersion(*form));
    EXPECT_EQ(Portray(*form, "frmAbout"), Said{});
    support::ClickOn(Find<QPushButton>(*form, "cmdCopy"));
    static const QRegularExpression copied(QStringLiteral("^Vestrel v\\d+\\.\\d+\\.\\d+\n"));
    EXPECT_TRUE(copied.match(QApplication::clipboard()->text()).hasMatch())
        << QApplication::clipboard()->text().toStdString();
    EXPECT_TRUE(form->isVisible());
    support::ClickOn(Find<QPushButton>(*form, "cmdOk"));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(AboutTest, TheSplashTellsTheVersionInTheMiddleOfTheScreen) {
    frmSplash splash;
    splash.Setup();
    EXPECT_TRUE(ShowsVersion(splash));
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(splash.geometry().contains(splash.screen()->availableGeometry().center()));
    EXPECT_EQ(Portray(splash, "frmSplash"), Said{});
}

} // namespace
} // namespace support
