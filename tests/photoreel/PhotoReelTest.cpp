#include "photoreel/frmPhotoReel.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QWheelEvent>
#include <fstream>

#include "documents/ShowList.h"
#include "photoreel/PictureCanvas.h"
#include "support/TemporaryFolder.h"
#include "support/screens/Screens.h"

namespace {

using photoreel::PictureCanvas;
using platform::qt::FromScreen;
using platform::qt::ToScreen;
using support::Find;

class PhotoReelTest : public testing::Test {
  protected:
    std::string Picture(const char* name, QColor color, QSize size = {800, 500}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        const std::string path = (folder_ / name).string();
        EXPECT_TRUE(image.save(ToScreen(path)));
        return path;
    }
    void Show(const documents::ShowList& list) {
        const std::string file = (folder_ / "pr.ini").string();
        std::ofstream(file) << documents::ShowListText(list);
        window_.Setup(file);
    }
    void ShowThree() {
        Show({"Vestrel Slide Show - 12 Elm St",
              {{"Red", Picture("red.jpg", Qt::red)},
               {"Moved", "/moved/moved.jpg"},
               {"Green", Picture("green.bmp", Qt::green)},
               {"Blue", Picture("blue.jpg", Qt::blue)}}});
    }
    std::string Caption() const { return FromScreen(Find<QLabel>(window_, "lblCaption").text()); }
    PictureCanvas& Canvas() { return Find<PictureCanvas>(window_, "picShow"); }
    void Turn(int angle) {
        QWheelEvent turn({5, 5}, {5, 5}, {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&Canvas(), &turn);
    }

    support::TemporaryFolder folder_;
    photoreel::frmPhotoReel window_;
};

const std::string kMoved = "\nSkipped Moved: This file isn't there any more.";

TEST_F(PhotoReelTest, GoesThroughThePicturesByKeysButtonsAndMouse) {
    ShowThree();
    EXPECT_EQ(window_.windowTitle(), QStringLiteral("Vestrel Slide Show - 12 Elm St"));
    EXPECT_EQ(Caption(), "Red (1 of 4)");
    QTest::keyClick(&Canvas(), Qt::Key_Right);
    EXPECT_EQ(Caption(), "Green (3 of 4)" + kMoved);
    EXPECT_EQ(Canvas().Shown().pixelColor(5, 5), QColor(Qt::green));
    QTest::mouseClick(&Canvas(), Qt::LeftButton);
    EXPECT_EQ(Caption(), "Blue (4 of 4)");
    support::ClickOn(Find<QPushButton>(window_, "cmdNext"));
    EXPECT_EQ(Caption(), "Red (1 of 4)") << "over the end";
    support::ClickOn(Find<QPushButton>(window_, "cmdPrevious"));
    EXPECT_EQ(Caption(), "Blue (4 of 4)");
    QTest::mouseClick(&Canvas(), Qt::RightButton);
    EXPECT_EQ(Caption(), "Green (3 of 4)");
    Turn(60);
    EXPECT_EQ(Caption(), "Green (3 of 4)") << "half a notch";
    Turn(60);
    EXPECT_EQ(Caption(), "Red (1 of 4)" + kMoved);
    QTest::keyClick(&Canvas(), Qt::Key_End);
    EXPECT_EQ(Caption(), "Blue (4 of 4)");
    QTest::keyClick(&Canvas(), Qt::Key_Home);
    EXPECT_EQ(Caption(), "Red (1 of 4)");
}

TEST_F(PhotoReelTest, SaysWhatIsWrongWhereNothingCanBeShown) {
    const std::string damaged = (folder_ / "damaged.gif").string();
    std::ofstream(damaged) << "no picture";
    Show({"Show", {{"A", "/moved/a.jpg"}, {"B", damaged}}});
    EXPECT_TRUE(Canvas().Shown().isNull());
    EXPECT_EQ(Canvas().Text(), QStringLiteral("None of the pictures can be shown."));
    EXPECT_EQ(Caption(),
              "Skipped A: This file isn't there any more.\n"
              "Skipped B: This picture can't be shown.");
    QTest::keyClick(&Canvas(), Qt::Key_Left);
    EXPECT_TRUE(Canvas().Shown().isNull());
}

TEST_F(PhotoReelTest, ShowsThatThereIsNothingWithoutAList) {
    for (const char* list : {"", "/no/such/pr.ini"}) {
        window_.Setup(list);
        EXPECT_EQ(Canvas().Text(), QStringLiteral("There are no pictures to show."));
        EXPECT_FALSE(Find<QPushButton>(window_, "cmdNext").isEnabled());
        QTest::keyClick(&Canvas(), Qt::Key_Right);
        QTest::keyClick(&Canvas(), Qt::Key_P);
        EXPECT_FALSE(window_.IsPlaying());
    }
}

TEST_F(PhotoReelTest, TakesTheWholeScreenAndPlays) {
    ShowThree();
    QTest::keyClick(&Canvas(), Qt::Key_F11);
    EXPECT_TRUE(window_.isFullScreen());
    EXPECT_FALSE(Find<QPushButton>(window_, "cmdNext").isVisible());
    EXPECT_TRUE(Find<QLabel>(window_, "lblCaption").isVisible());
    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_FALSE(window_.isFullScreen());
    EXPECT_TRUE(window_.isVisible());
    QTest::keyClick(&Canvas(), Qt::Key_P);
    EXPECT_TRUE(window_.IsPlaying());
    QTest::keyClick(&Canvas(), Qt::Key_Right);
    EXPECT_TRUE(window_.IsPlaying());
    support::ClickOn(Find<QPushButton>(window_, "cmdPlay"));
    EXPECT_FALSE(window_.IsPlaying());
    QTest::keyClick(&Canvas(), Qt::Key_Escape);
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(PhotoReelTest, ShrinksAPictureOfAHundredMegapixels) {
    Show({"Show", {{"Huge", Picture("huge.jpg", Qt::gray, {12000, 8500})}}});
    EXPECT_EQ(Caption(), "Huge (1 of 1)");
    EXPECT_LE(Canvas().Shown().width(), window_.screen()->size().width());
}

TEST_F(PhotoReelTest, LooksRight) {
    ShowThree();
    QTest::keyClick(&Canvas(), Qt::Key_Right);
    EXPECT_EQ(support::LookFaults(window_, "frmPhotoReel"), std::vector<std::string>{});
}

TEST(ListFileOf, FindsTheFileBehindItsSwitch) {
    using Words = std::vector<std::string>;
    EXPECT_EQ(photoreel::ListFileOf(Words{"/loadfile", "/a b/pr.ini"}), "/a b/pr.ini");
    EXPECT_EQ(photoreel::ListFileOf(Words{"/x", "/LoadFile=/a=b/pr.ini"}), "/a=b/pr.ini");
    EXPECT_EQ(photoreel::ListFileOf(Words{"/loadfile"}), "");
    EXPECT_EQ(photoreel::ListFileOf(Words{"/a/pr.ini"}), "");
    EXPECT_EQ(photoreel::ListFileOf(Words{}), "");
}

TEST(PhotoReelProgram, StandsUnderTheNameItIsStartedBy) {
    const QFileInfo program(QStringLiteral(VESTREL_PHOTOREEL));
    EXPECT_EQ(program.fileName(), QStringLiteral("PhotoReel.exe"));
    EXPECT_TRUE(program.isExecutable());
}

} // namespace
