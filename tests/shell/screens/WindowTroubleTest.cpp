#include <gmock/gmock.h>

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include "core/Globals.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "shell/screens/KestromFixture.h"
#include "support/screens/DoubleClick.h"
#include "support/screens/Gallery.h"

namespace {

using platform::qt::FromScreen;
using support::Find;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WindowTrouble : public tests::KestromTest {};

TEST_F(WindowTrouble, OpensOneNewRecordByADoubleClickOnAdd) {
    Go("TENANTS");
    for (QToolButton* const button : Window().findChildren<QToolButton*>()) {
        if (button->defaultAction() == &Item("mnuAdd")) support::DoubleClickOn(*button);
    }
    EXPECT_THAT(log_, ElementsAre("5 0"));
    EXPECT_FALSE(Item("mnuAdd").autoRepeat());
}

TEST_F(WindowTrouble, SaysAtTheTopThatTheNotesCannotBeSaved) {
    auto& line = Find<QLabel>(Window(), "lblNotesFault");
    EXPECT_FALSE(line.isVisible());
    core::App().DbPath = PathTo("gone/");
    support::Type(Find<QPlainTextEdit>(Window(), "mtxtNotes"), "Ring Ann");
    ASSERT_TRUE(QTest::qWaitFor([&] { return line.isVisible(); }));
    EXPECT_THAT(FromScreen(line.text()), HasSubstr("Notes.txt"));
    EXPECT_THAT(support::Portray(Window(), "frmKestrom-notes-fault"), IsEmpty());
    std::filesystem::create_directory(PathTo("gone"));
    support::TypeOn(Find<QPlainTextEdit>(Window(), "mtxtNotes"), "!");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !line.isVisible(); }));
    EXPECT_EQ(platform::ReadWholeFile(PathTo("gone/Notes.txt")), "Ring Ann!");
}

} // namespace
