#include "documents/screens/FileObjects.h"

#include <QBuffer>
#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QSignalSpy>
#include <QSplitter>
#include <QVBoxLayout>

#include "core/forms/ActionBar.h"
#include "core/forms/Form.h"
#include "documents/AttachFile.h"
#include "documents/FileRows.h"
#include "documents/screens/FileListView.h"
#include "documents/screens/PicturePreview.h"
#include "support/KeepingDesktop.h"
#include "support/ScriptedChoosers.h"
#include "support/screens/Screens.h"

namespace {

using documents::screens::FileListView;
using documents::screens::FileObjects;
using documents::screens::PicturePreview;
using platform::qt::FromScreen;
using support::ClickOn;
using support::Find;
using support::Said;

/// A form with the panel in it, as the records' screens have it.
class PanelForm : public core::forms::Form {
  public:
    explicit PanelForm(const char* name) {
        setObjectName(QLatin1String(name));
        setWindowTitle(QStringLiteral("Files and Pictures"));
        auto* const page = new QVBoxLayout(this);
        panel = new FileObjects(this);
        panel->setObjectName(QStringLiteral("ucFOB"));
        page->addWidget(panel);
        page->addWidget(new core::forms::ActionBar(this));
        resize(700, 420);
    }
    void Show() { Open(); }

    FileObjects* panel;
};

class FileObjectsTest : public support::ScreenTest {
  protected:
    FileObjects& OpenOn(core::RecordKind kind, std::int32_t id, const char* name = "frmTest") {
        form_ = std::make_unique<PanelForm>(name);
        form_->setAttribute(Qt::WA_DeleteOnClose, false);
        form_->Show();
        form_->panel->SetRecord(kind, id);
        return *form_->panel;
    }
    void Attach(core::RecordKind kind, std::int32_t id, std::string path) {
        ASSERT_TRUE(documents::AttachFile(kind, id, path));
    }
    std::string MakePicture(const char* name, QSize size, const char* format = nullptr) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(0xC8, 0x8A, 0x4B));
        EXPECT_TRUE(image.save(platform::qt::ToScreen(PathTo(name)), format)) << name;
        return PathTo(name);
    }
    static std::vector<std::string> Listed(const FileObjects& panel) {
        const QAbstractItemModel& model = *Find<FileListView>(panel, "lvwFile").model();
        std::vector<std::string> lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            lines.push_back(FromScreen(model.index(row, 0).data().toString()));
        }
        return lines;
    }
    static std::string Property(const FileObjects& panel, const char* item) {
        const auto& list = Find<QTreeWidget>(panel, "lvwProperties");
        const auto found = list.findItems(QLatin1String(item), Qt::MatchExactly, 0);
        return found.isEmpty() ? "-" : FromScreen(found[0]->text(1));
    }
    static bool CanClick(const FileObjects& panel, const char* button) {
        return Find<QToolButton>(panel, button).isEnabled();
    }
    static void Drop(FileObjects& panel, const std::vector<std::string>& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& path : paths)
            urls << QUrl::fromLocalFile(platform::qt::ToScreen(path));
        data.setUrls(urls);
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
        QDragEnterEvent enter(QPoint(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&panel, &enter);
        if (!enter.isAccepted()) return;
        EXPECT_EQ(enter.dropAction(), Qt::LinkAction) << "nothing is moved away";
        QDropEvent drop(QPointF(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&panel, &drop);
        support::SettleEvents();
    }

    std::unique_ptr<PanelForm> form_;
};

TEST_F(FileObjectsTest, WaitsUntilItsRecordIsSaved) {
    const FileObjects& panel = OpenOn(core::kUnit, 0);
    for (const char* button : {"cmdAdd", "cmdOpen", "cmdDelete", "cmdSS"}) {
        EXPECT_FALSE(CanClick(panel, button)) << button;
    }
}

TEST_F(FileObjectsTest, AddsOpensAndDeletesAFile) {
    const support::KeepingDesktop desktop;
    MakeFile("lease.pdf", "text");
    const support::ScriptedChoosers choosers({PathTo("lease.pdf")});
    FileObjects& panel = OpenOn(core::kUnit, 20);
    ClickOn(Find<QToolButton>(panel, "cmdAdd"));
    EXPECT_EQ(Listed(panel), std::vector<std::string>{"lease"});
    EXPECT_EQ(Property(panel, "File Exists"), "Yes");
    EXPECT_EQ(Property(panel, "Database Item"), "12 Elm St B");

    FileListView& list = Find<FileListView>(panel, "lvwFile");
    QTest::keyClick(&list, Qt::Key_Return);
    const QPoint first = list.visualRect(list.currentIndex()).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(desktop.Opened(), (Said{PathTo("lease.pdf"), PathTo("lease.pdf")}));

    Answer({false, true});
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(Heard(),
              std::vector<std::string>{"Confirm Delete: Delete selected file link?\n\nlease"});
    EXPECT_EQ(Listed(panel).size(), 1U) << "No keeps it";
    ClickOn(Find<QToolButton>(panel, "cmdDelete"));
    EXPECT_TRUE(Listed(panel).empty());
    EXPECT_EQ(Ask("SELECT Count(*) FROM FileObject"), "0");
    EXPECT_TRUE(std::filesystem::exists(PathTo("lease.pdf"))) << "the file itself stays";
    EXPECT_FALSE(CanClick(panel, "cmdDelete"));
}

TEST_F(FileObjectsTest, TellsOfAFileThatHasMoved) {
    const support::KeepingDesktop desktop(false);
    Attach(core::kUnit, 20, "/gone/roof.jpg");
    FileObjects& panel = OpenOn(core::kUnit, 20);
    EXPECT_EQ(Property(panel, "File Exists"), "No");
    EXPECT_EQ(Property(panel, "Full Path"), "-");
    auto& preview = Find<PicturePreview>(panel, "picPreview");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return preview.Text().contains(QLatin1String("any more")); }));
    ClickOn(Find<QToolButton>(panel, "cmdOpen"));
    EXPECT_EQ(Heard(),
              std::vector<std::string>{"Error: This file can't be opened:\n/gone/roof.jpg"});
}

TEST_F(FileObjectsTest, TakesDroppedFilesButNoFolders) {
    MakeFile("a.txt");
    MakeFile("b.jpg");
    std::filesystem::create_directory(Folder() / "folder");
    FileObjects& panel = OpenOn(core::kTenant, 30);
    Drop(panel, {PathTo("a.txt"), PathTo("folder"), PathTo("b.jpg")});
    EXPECT_EQ(Listed(panel), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(Heard(), std::vector<std::string>{
                           "Error: A folder can't be attached. Please choose the files in it."});
    EXPECT_EQ(panel.SelectedId(), documents::FilesOf(core::kTenant, 30).at(1).id);

    for (QAction* const action : panel.findChildren<QAction*>()) {
        if (action->objectName() == QLatin1String("mnuAllowDandD")) action->trigger();
    }
    Drop(panel, {PathTo("a.txt")});
    EXPECT_EQ(Listed(panel).size(), 2U);
    form_ = nullptr;
    Drop(OpenOn(core::kTenant, 0, "frmOther"), {PathTo("a.txt")});
    EXPECT_EQ(Ask("SELECT Count(*) FROM FileObject"), "2");
}

TEST_F(FileObjectsTest, ShowsPicturesOfAnySizeAndSaysWhichItCannot) {
    Attach(core::kUnit, 20, MakePicture("small.jpg", {40, 30}));
    Attach(core::kUnit, 20, MakePicture("huge.jpg", {12000, 8500}));
    Attach(core::kUnit, 20, MakePicture("huge.bmp", {12000, 8500}));
    std::filesystem::copy(PathTo("small.jpg"), PathTo("cut.jpg"));
    std::filesystem::resize_file(PathTo("cut.jpg"), 100);
    Attach(core::kUnit, 20, PathTo("cut.jpg"));
    MakeFile("text.gif", "not a picture");
    Attach(core::kUnit, 20, PathTo("text.gif"));

    FileObjects& panel = OpenOn(core::kUnit, 20);
    auto& preview = Find<PicturePreview>(panel, "picPreview");
    const auto files = documents::FilesOf(core::kUnit, 20);
    const auto show = [&](std::size_t row) {
        panel.ShowFileObject(files[row].id);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return !preview.Shown().isNull() || !preview.Text().isEmpty(); }, 60000));
        return preview.Shown().size();
    };
    EXPECT_EQ(show(0), QSize(40, 30)) << "not enlarged";
    const QSize huge = show(1);
    EXPECT_LE(huge.width(), 1000);
    EXPECT_NEAR(huge.width() * 8500.0 / 12000.0, huge.height(), 1);
    for (const std::size_t row : {2U, 3U, 4U}) {
        EXPECT_TRUE(show(row).isEmpty()) << row;
        EXPECT_EQ(preview.Text(), QStringLiteral("This picture can't be shown.")) << row;
    }
}

TEST_F(FileObjectsTest, TakesAnotherDescriptionByKeyboard) {
    Attach(core::kUnit, 20, "/p/IMG_0001.pdf");
    FileObjects& panel = OpenOn(core::kUnit, 20);
    FileListView& list = Find<FileListView>(panel, "lvwFile");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_F2);
    auto* const box = list.findChild<QLineEdit*>();
    ASSERT_TRUE(box);
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("Ann's lease"));
    QTest::keyClick(box, Qt::Key_Return);
    support::SettleEvents();
    EXPECT_EQ(Listed(panel), std::vector<std::string>{"Ann's lease"});
    EXPECT_EQ(Ask("SELECT Description FROM FileObject"), "Ann's lease");
    EXPECT_TRUE(form_->isVisible()) << "Enter closed the form";
}

TEST_F(FileObjectsTest, FollowsTheRecordsFilesAndItsSelection) {
    Attach(core::kUnit, 20, "/p/a.txt");
    Attach(core::kUnit, 20, "/p/b.txt");
    Attach(core::kUnit, 21, "/p/c.txt");
    FileObjects& panel = OpenOn(core::kUnit, 20);
    const std::int32_t second = documents::FilesOf(core::kUnit, 20).at(1).id;
    panel.ShowFileObject(second);
    Attach(core::kUnit, 20, "/p/d.txt");
    EXPECT_EQ(Listed(panel), (std::vector<std::string>{"a", "b", "d"}));
    EXPECT_EQ(panel.SelectedId(), second);
    panel.SetRecord(core::kUnit, 21);
    EXPECT_EQ(Listed(panel), std::vector<std::string>{"c"});
    panel.SetShowAll(true);
    EXPECT_EQ(Listed(panel).size(), 4U);
}

TEST_F(FileObjectsTest, KeepsItsSplitsAndLookBetweenForms) {
    Attach(core::kUnit, 20, "/p/a.txt");
    FileObjects& panel = OpenOn(core::kUnit, 20, "frmOne");
    for (QAction* const action : panel.findChildren<QAction*>()) {
        if (action->objectName() == QLatin1String("mnuShowPath")) action->trigger();
    }
    auto& bar = Find<QSplitter>(panel, "picV");
    QSplitterHandle* const handle = bar.handle(1);
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, {}, middle);
    QTest::mouseMove(handle, middle - QPoint(bar.width() / 5, 0));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, middle);
    const double share = static_cast<double>(bar.sizes()[0]) / (bar.sizes()[0] + bar.sizes()[1]);
    EXPECT_LT(share, 0.4);

    FileObjects& again = OpenOn(core::kUnit, 20, "frmOne");
    EXPECT_EQ(Listed(again), std::vector<std::string>{"/p/a.txt"});
    const auto shareOf = [](const FileObjects& of) {
        const QList<int> sizes = Find<QSplitter>(of, "picV").sizes();
        return static_cast<double>(sizes[0]) / (sizes[0] + sizes[1]);
    };
    EXPECT_NEAR(shareOf(again), share, 0.02);
    FileObjects& other = OpenOn(core::kUnit, 20, "frmTwo");
    EXPECT_NEAR(shareOf(other), 0.5, 0.02);
    EXPECT_EQ(Listed(other), std::vector<std::string>{"a"});
}

TEST_F(FileObjectsTest, LooksRight) {
    Attach(core::kUnit, 20, MakePicture("front of the house.jpg", {1600, 1000}));
    MakeFile("lease.pdf", "text");
    Attach(core::kUnit, 20, PathTo("lease.pdf"));
    Attach(core::kUnit, 20, "/moved/inspection.doc");
    FileObjects& panel = OpenOn(core::kUnit, 20);
    auto& preview = Find<PicturePreview>(panel, "picPreview");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !preview.Shown().isNull(); }));
    EXPECT_EQ(support::LookFaults(*form_, "FileObjects"), std::vector<std::string>{});
}

} // namespace
