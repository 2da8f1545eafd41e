#include "core/forms/RecordForm.h"

#include <gmock/gmock.h>

#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>
#include <future>
#include <thread>
#include <utility>

#include "core/MessagePump.h"
#include "core/Session.h"
#include "core/binding/ComboList.h"
#include "core/binding/DateEdit.h"
#include "core/binding/MoneyEdit.h"
#include "core/binding/Tags.h"
#include "core/forms/ActionBar.h"
#include "core/forms/RecordAdditions.h"
#include "platform/database/StatementProbe.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::binding::SetTag;
using testing::ElementsAre;
using testing::IsEmpty;

/// A screen of work orders whose lists don't offer everything.
class SampleForm : public core::forms::RecordForm {
  public:
    SampleForm() : RecordForm({core::kWorkOrder, "WorkOrder", "IdWorkOrder"}) {
        setObjectName(QStringLiteral("frmSample"));
        auto* const page = new QVBoxLayout(this);
        Add<QLineEdit>(*page, "txtDescription", "_ShortDesc");
        Add<QLineEdit>(*page, "txtRep", "_Rep");
        Add<QComboBox>(*page, "cboVendor", "!IdVendor");
        Add<QComboBox>(*page, "cboStatus", "?Status");
        Add<core::binding::DateEdit>(*page, "dpOpened", "@DateOpened");
        Add<core::binding::MoneyEdit>(*page, "txtEstimate", "$Estimate");
        page->addWidget(new core::forms::ActionBar(this));
        Wire();
    }
    void Setup(std::int32_t id) {
        OpenRecord(
            id,
            [this] {
                FillVendors();
                core::binding::FillFromCommaList(Find<QComboBox>(*this, "cboStatus"),
                                                 "Open,Closed");
            },
            [this] { Find<QComboBox>(*this, "cboStatus").setCurrentIndex(0); });
    }
    bool refuses = false;

  protected:
    void ShowCaption() override { setWindowTitle(Find<QLineEdit>(*this, "txtDescription").text()); }
    std::vector<std::string> Errors() override {
        if (refuses) return {"No."};
        return {};
    }
    void Refresh(core::RecordKind kind) override {
        if (kind == core::kAccount) FillVendors();
    }

  private:
    template <class T>
    void Add(QVBoxLayout& page, const char* name, std::string_view tag) {
        auto* const control = new T(this);
        control->setObjectName(QLatin1String(name));
        SetTag(*control, tag);
        page.addWidget(control);
    }
    void FillVendors() {
        core::binding::FillList(core::kVendorAccount, Find<QComboBox>(*this, "cboVendor"),
                                {.addNone = true});
    }
};

class RecordFormTest : public ScreenTest {
  protected:
    RecordFormTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) VALUES (63, 'Al Fix', 'Vendor')");
        Run("INSERT INTO WorkOrder (IdWorkOrder, IdUnit, ShortDesc, IdVendor, Status, DateOpened, "
            "Estimate, Notes) VALUES (90, 20, 'Roof', 60, 'Waiting', 'soon', 12.3456, 'unseen')");
    }
    ~RecordFormTest() override { core::SetMessagePump({}); }

    static QPointer<SampleForm> Open(std::int32_t id) { return Show<SampleForm>(id); }
    /// Every field of the row that is set.
    static std::string Row() {
        platform::Recordset row;
        row.Open(core::App().Connection, "SELECT * FROM WorkOrder WHERE IdWorkOrder = 90");
        std::string text;
        for (std::size_t i = 0; !row.Eof() && i < row.FieldCount(); ++i)
            if (!row[i].IsNull()) text += row[i].Name() + "=" + row[i].AsText() + " ";
        return text;
    }
    static std::string Shown(const QWidget& form, const char* combo) {
        return platform::qt::FromScreen(Find<QComboBox>(form, combo).currentText());
    }
    static bool SaysDeleted(const QWidget& form) {
        const auto* const line = form.findChild<QLabel*>(QStringLiteral("lblDeleted"));
        return line && line->isVisible();
    }
    static void Broadcast(core::RecordKind kind) {
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    }
    /// A write of another program to the same file.
    static void Elsewhere(std::string_view sql) {
        platform::Connection other;
        other.Open(core::App().Connection.File());
        other.Execute(sql);
    }
};

TEST_F(RecordFormTest, ShowsAndKeepsWhatItsListsDoNotOffer) {
    const std::string before = Row();
    const auto form = Open(90);
    EXPECT_EQ(Shown(*form, "cboVendor"), "River Bank");
    EXPECT_EQ(Shown(*form, "cboStatus"), "Waiting");
    Broadcast(core::kAccount);
    EXPECT_FALSE(form->Dirty());
    EXPECT_EQ(Shown(*form, "cboVendor"), "River Bank") << "a list filled again keeps it too";
    Type(Find<QLineEdit>(*form, "txtRep"), "Jo");
    ClickAction(*form, "APPLY");
    ClickAction(*form, "CLOSE");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Rep FROM WorkOrder WHERE IdWorkOrder = 90"), "Jo");
    Run("UPDATE WorkOrder SET Rep = NULL WHERE IdWorkOrder = 90");
    EXPECT_EQ(Row(), before) << "of the rest nothing was written, cents of cents included";
}

TEST_F(RecordFormTest, WritesOnlyWhatWasTouched) {
    const auto form = Open(90);
    Type(Find<QLineEdit>(*form, "txtRep"), "Jo");
    Elsewhere(
        "UPDATE WorkOrder SET Status = 'Closed', Estimate = 99, Rep = 'Ann', "
        "ShortDesc = 'Roof and wall' WHERE IdWorkOrder = 90");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status & Estimate & Rep & ShortDesc FROM WorkOrder"),
              "Closed99JoRoof and wall");

    const auto untouched = Open(90);
    Elsewhere("UPDATE WorkOrder SET Rep = 'Ann' WHERE IdWorkOrder = 90");
    ClickAction(*untouched, "CLOSE");
    EXPECT_EQ(Ask("SELECT Rep FROM WorkOrder"), "Ann");
}

TEST_F(RecordFormTest, FollowsChangesWhereNothingWasTouched) {
    const auto form = Open(90);
    Run("UPDATE WorkOrder SET Status = 'Closed', Rep = 'Ann' WHERE IdWorkOrder = 90");
    Broadcast(core::kWorkOrder);
    EXPECT_EQ(Shown(*form, "cboStatus"), "Closed");
    EXPECT_FALSE(form->Dirty());

    Type(Find<QLineEdit>(*form, "txtRep"), "Jo");
    Run("UPDATE WorkOrder SET Status = 'Open', Rep = 'Bea', IdVendor = 63, Estimate = NULL "
        "WHERE IdWorkOrder = 90");
    Broadcast(core::kAccount);
    EXPECT_EQ(Shown(*form, "cboStatus"), "Open");
    EXPECT_EQ(Shown(*form, "cboVendor"), "Al Fix");
    EXPECT_EQ(Find<QLineEdit>(*form, "txtEstimate").text(), QString()) << "null shows as blank";
    EXPECT_EQ(Text(*form, "txtRep"), "Jo");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Status & Rep FROM WorkOrder"), "OpenJo");
}

TEST_F(RecordFormTest, ARecordDeletedElsewhereComesBackOnlyIfTheUserMeansIt) {
    const auto remove = [] {
        Run("DELETE * FROM WorkOrder WHERE IdWorkOrder = 90");
        Broadcast(core::kWorkOrder);
    };
    auto form = Open(90);
    EXPECT_FALSE(SaysDeleted(*form));
    remove();
    EXPECT_TRUE(SaysDeleted(*form));
    ClickAction(*form, "CANCEL");
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_EQ(Row(), "");

    Run("INSERT INTO WorkOrder (IdWorkOrder, IdUnit, ShortDesc, IdVendor, Status, DateOpened, "
        "Estimate, Notes) "
        "VALUES (90, 20, 'Roof', 60, 'Waiting', '05/01/2024', 12.3456, 'unseen')");
    form = Open(90);
    remove();
    ClickAction(*form, "CLOSE");
    EXPECT_THAT(Heard(), ElementsAre("Deleted: This work order was deleted while it was open here. "
                                     "Save it again?"));
    EXPECT_EQ(Row(), "") << "No leaves it deleted";
    EXPECT_TRUE(form && form->isVisible());
    Answer({true});
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Notes FROM WorkOrder"), "unseen") << "what the screen doesn't show too";
    EXPECT_EQ(Ask("SELECT IdVendor FROM WorkOrder"), "60");

    form = Open(90);
    Type(Find<QLineEdit>(*form, "txtRep"), "Jo");
    remove();
    Answer({});
    ClickAction(*form, "CLOSE");
    EXPECT_THAT(Heard(), IsEmpty()) << "the line says what Close does";
    EXPECT_EQ(Ask("SELECT Rep FROM WorkOrder WHERE IdWorkOrder = 90"), "Jo");

    form = Open(90);
    Type(Find<QLineEdit>(*form, "txtRep"), "Ann");
    Run("DELETE * FROM WorkOrder WHERE IdWorkOrder = 90"); // and nobody says so
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_EQ(Row(), "");
}

TEST_F(RecordFormTest, ARecordDeletedDuringItsSaveStaysDeleted) {
    const auto form = Open(90);
    Type(Find<QLineEdit>(*form, "txtRep"), "Ann");
    bool isDeleted = false;
    platform::SetStatementProbe([&] {
        if (!std::exchange(isDeleted, true)) Elsewhere("DELETE * FROM WorkOrder");
    });
    ClickAction(*form, "CLOSE");
    platform::SetStatementProbe({});
    EXPECT_THAT(Heard(), ElementsAre("Vestrel: The record was deleted in the meantime. Nothing was "
                                     "saved."));
    EXPECT_EQ(Row(), "");
    EXPECT_TRUE(form->Dirty());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard().size(), 1U) << "and now the user is asked";
}

TEST_F(RecordFormTest, ASecondClickNeverActsTwice) {
    core::SetMessagePump([] { QCoreApplication::processEvents(); });
    const auto press = [](QWidget& button) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QCoreApplication::postEvent(
                &button, new QMouseEvent(type, QPointF(3, 3), button.mapToGlobal(QPointF(3, 3)),
                                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        }
    };
    int wanted = 1;
    for (const int gap : {0, 20, 200, 600}) {
        for (const bool isHeld : {false, true}) {
            std::promise<void> holds;
            std::thread holder([&] {
                platform::Connection other;
                if (isHeld) other.Open(core::App().Connection.File());
                std::optional<platform::UnitOfWork> unit;
                if (isHeld) unit.emplace(other);
                holds.set_value();
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            });
            holds.get_future().wait();
            const auto form = Open(0);
            Type(Find<QLineEdit>(*form, "txtDescription"), "New");
            QPointer<QPushButton> close(&Find<QPushButton>(*form, "cmdClose"));
            press(*close);
            QTimer::singleShot(gap, close, [&] { press(*close); });
            for (int round = 0; round < 100 && form; ++round)
                QTest::qWait(10);
            holder.join();
            EXPECT_EQ(Ask("SELECT Count(*) FROM WorkOrder"), std::to_string(++wanted))
                << gap << (isHeld ? ", while another program holds the file" : "");
            EXPECT_THAT(Heard(), IsEmpty());
        }
    }
}

TEST_F(RecordFormTest, OtherRoomsFillItsMenusAndPages) {
    using namespace core::forms;
    std::vector<std::string> done;
    RegisterRecordMenu(RecordMenu::Reports, "sample", [&](const MenuFilling& filling) {
        const Subject subject = filling.subjects.front();
        if (subject.kind != core::kWorkOrder || subject.id == 0) return;
        QObject::connect(filling.menu.addAction(QStringLiteral("(&1) Costs")), &QAction::triggered,
                         [&done, subject, save = filling.save] {
                             if (save()) done.push_back("report " + std::to_string(subject.id));
                         });
    });
    RegisterRecordMenu(RecordMenu::Record, "sample", [](const MenuFilling& filling) {
        filling.menu.addAction(QStringLiteral("Print Receipt"));
    });
    const auto texts = [](const QMenu& menu) {
        std::vector<std::string> lines;
        for (const QAction* const action : menu.actions())
            lines.push_back(action->isSeparator() ? "-" : action->text().toStdString());
        return lines;
    };
    const auto form = Open(90);
    const QList<QAction*> bar = Find<QMenuBar>(*form, "mnuBar").actions();
    ASSERT_EQ(bar.size(), 2) << "nothing was registered for documents";
    EXPECT_THAT(texts(*bar[0]->menu()), ElementsAre("&Apply", "Print Receipt", "-", "&Close"));
    EXPECT_THAT(texts(*bar[1]->menu()), ElementsAre("(&1) Costs"));

    Type(Find<QLineEdit>(*form, "txtRep"), "Jo");
    form->refuses = true;
    bar[1]->menu()->actions().front()->trigger();
    EXPECT_THAT(done, IsEmpty()) << "a report shows what is stored";
    form->refuses = false;
    bar[1]->menu()->actions().front()->trigger();
    EXPECT_THAT(done, ElementsAre("report 90"));
    EXPECT_EQ(Ask("SELECT Rep FROM WorkOrder WHERE IdWorkOrder = 90"), "Jo");

    const auto fresh = Open(0);
    QMenu& none = *Find<QMenuBar>(*fresh, "mnuBar").actions()[1]->menu();
    EXPECT_THAT(texts(none), ElementsAre("None for this record"));
    EXPECT_FALSE(none.actions().front()->isEnabled());
    RegisterRecordMenu(RecordMenu::Reports, "sample", {});
    RegisterRecordMenu(RecordMenu::Record, "sample", {});
    EXPECT_EQ(Find<QMenuBar>(*Open(90), "mnuBar").actions().size(), 1);
}

} // namespace
} // namespace support
