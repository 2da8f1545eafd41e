#include "core/ScratchSession.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "core/MessagePump.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/system/Clock.h"
#include "support/Books.h"

namespace {

using core::App;
using core::ScratchSession;
using platform::Date;

class Scratch : public tests::CoreRecords {
  protected:
    Scratch() : before_(support::Dump(App().Connection)) {}

    bool BooksAreAsBefore() const { return support::Dump(App().Connection) == before_; }
    static std::filesystem::path File() { return App().Connection.File(); }
    static void WriteMuch() {
        platform::UnitOfWork unit(App().Connection);
        core::Execute("DELETE * FROM Tenant");
        core::Execute("UPDATE Building SET Address = 'Elsewhere'");
        core::NextId();
        unit.Commit();
    }

    const Date later_{2025, 2, 28};
    std::vector<std::string> before_;
};

TEST_F(Scratch, KeepsWhatIsWrittenAwayFromTheBooks) {
    {
        const ScratchSession scratch(File(), later_);
        EXPECT_EQ(support::Dump(App().Connection), before_);
        WriteMuch();
        EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "0");
        EXPECT_EQ(platform::Today(), later_);
        EXPECT_TRUE(App().DbFile.empty());
    }
    EXPECT_TRUE(BooksAreAsBefore());
    EXPECT_EQ(platform::Today(), Date(2024, 5, 17));
    WriteMuch();
    EXPECT_FALSE(BooksAreAsBefore()) << "the session is the books' own again";
}

TEST_F(Scratch, EndsWithWhateverEndsTheRoutine) {
    const auto fail = [&](auto work) {
        try {
            const ScratchSession scratch(File(), later_);
            const platform::UnitOfWork unit(App().Connection);
            core::Execute("DELETE * FROM Tenant");
            work();
        } catch (const std::exception&) {
            return;
        }
        ADD_FAILURE() << "nothing was thrown";
    };
    fail([] { throw std::logic_error("mid-walk"); });
    fail([] { core::Execute("SELECT Nothing FROM Nowhere"); });
    fail([] { ScratchSession("nowhere.mdb", Date(2030, 1, 1)); });
    EXPECT_FALSE(core::InScratchSession());
    EXPECT_EQ(platform::Today(), Date(2024, 5, 17));
    EXPECT_FALSE(App().Connection.InUnitOfWork());
    EXPECT_TRUE(BooksAreAsBefore());
}

TEST_F(Scratch, IsNoticedByNobodyElse) {
    int heard = 0;
    int pumped = 0;
    const core::NotifyToken token([&](core::RecordKind, std::int16_t, std::int32_t) { ++heard; });
    core::SetMessagePump([&] { ++pumped; });
    {
        const ScratchSession scratch(File(), later_);
        core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
        platform::UnitOfWork unit(App().Connection);
        core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
        unit.Commit();
        core::LetMessagesRun();
        WriteMuch();
        std::thread([&] {
            EXPECT_FALSE(core::InScratchSession());
            EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "3");
            EXPECT_EQ(platform::Today(), Date(2024, 5, 17));
        }).join();
    }
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(pumped, 0);
    core::LetMessagesRun();
    core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(pumped, 1);
    core::SetMessagePump({});
}

TEST_F(Scratch, CopiesBooksThatAreOnlyReadOrBeingWritten) {
    const std::filesystem::path file = File();
    platform::UnitOfWork open(App().Connection);
    core::Execute("DELETE * FROM Tenant");
    {
        const ScratchSession scratch(file, later_);
        EXPECT_EQ(Ask("SELECT Count(*) FROM Tenant"), "3") << "what isn't committed isn't copied";
        WriteMuch();
    }
    open.Commit();
    App().Connection.Open(file, platform::OpenMode::ReadOnly);
    {
        const ScratchSession scratch(file, later_);
        EXPECT_FALSE(App().Connection.IsReadOnly());
        WriteMuch();
        EXPECT_EQ(Ask("SELECT Max(Address) FROM Building"), "Elsewhere");
    }
    EXPECT_TRUE(App().Connection.IsReadOnly());
    EXPECT_EQ(Ask("SELECT Max(Address) FROM Building"), "Oak Rd");
}

TEST_F(Scratch, StopsStatementsWhenAsked) {
    EXPECT_THROW(ScratchSession(File(), later_, [] { return true; }), platform::Error);
    bool stops = false;
    {
        const ScratchSession scratch(File(), later_, [&] { return stops; });
        for (int i = 0; i < 12; ++i) {
            core::Execute("INSERT INTO Room (IdRoom, IdUnit) SELECT IdRoom, IdUnit FROM Room");
        }
        stops = true;
        platform::UnitOfWork unit(App().Connection);
        EXPECT_THROW(core::Execute("UPDATE Room SET IdUnit = IdUnit + 1"), platform::DatabaseError);
    }
    EXPECT_FALSE(core::InScratchSession());
    EXPECT_TRUE(BooksAreAsBefore());
}

} // namespace
