#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

#include "core/Configuration.h"
#include "core/CoreFixture.h"
#include "core/DailyRun.h"
#include "core/DayChange.h"
#include "core/EditRecord.h"
#include "core/MessagePump.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/RunHeard.h"
#include "platform/system/Clock.h"

namespace {

using Broadcast = tests::CoreBooks;
using OpeningRecords = tests::CoreBooks;
using testing::ElementsAre;

using Words = std::vector<std::string>;

core::NotifyListener Says(Words& words, const std::string& word) {
    return [&words, word](core::RecordKind, std::int16_t, std::int32_t) { words.push_back(word); };
}

TEST_F(Broadcast, ListenersComeAndGoWhileItRuns) {
    Words heard;
    std::unique_ptr<core::NotifyToken> leaver;
    std::unique_ptr<core::NotifyToken> removed;
    std::unique_ptr<core::NotifyToken> late;
    const core::NotifyToken first(Says(heard, "first"));
    const core::NotifyToken failing([&](core::RecordKind, std::int16_t, std::int32_t) {
        heard.emplace_back("failing");
        throw std::runtime_error("can't refresh");
    });
    leaver = std::make_unique<core::NotifyToken>([&](core::RecordKind, std::int16_t, std::int32_t) {
        heard.emplace_back("leaver");
        removed.reset();
        late = std::make_unique<core::NotifyToken>(Says(heard, "late"));
        leaver.reset();
    });
    removed = std::make_unique<core::NotifyToken>(Says(heard, "removed"));
    const core::NotifyToken last(Says(heard, "last"));

    core::NotifyAll(core::kLease, core::kRecordsChanged, 7);
    EXPECT_THAT(heard, ElementsAre("first", "failing", "leaver", "last"));
    heard.clear();
    core::NotifyAll(core::kLease, core::kRecordsChanged, 7);
    EXPECT_THAT(heard, ElementsAre("first", "failing", "last", "late"));
}

TEST_F(Broadcast, OfAUnitOfWorkComesOnceAndWhenItIsKept) {
    std::vector<core::RecordKind> heard;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t, std::int32_t) {
        EXPECT_FALSE(core::App().Connection.InUnitOfWork());
        heard.push_back(kind);
        // A listener may write too.
        platform::UnitOfWork own(core::App().Connection);
        own.Commit();
    });
    const auto announce = [](std::initializer_list<core::RecordKind> kinds) {
        for (const core::RecordKind kind : kinds)
            core::NotifyAll(kind, core::kRecordsChanged, 0);
    };
    {
        platform::UnitOfWork unit(core::App().Connection);
        announce({core::kLease, core::kUnit});
        {
            platform::UnitOfWork inner(core::App().Connection);
            announce({core::kRentLog, core::kLease});
            inner.Commit();
        }
        EXPECT_THAT(heard, ElementsAre());
        unit.Commit();
    }
    EXPECT_THAT(heard, ElementsAre(core::kUnit, core::kRentLog, core::kLease));
    {
        const platform::UnitOfWork rolledBack(core::App().Connection);
        announce({core::kTenant});
    }
    announce({core::kAccount});
    EXPECT_EQ(heard.size(), 4U);
    EXPECT_EQ(heard.back(), core::kAccount);
}

TEST_F(Broadcast, SettingsAreReadAgainBeforeAnyoneHearsOfThem) {
    Run("INSERT INTO Configuration (CompanyName) VALUES ('New name')");
    Words heard;
    const core::NotifyToken token([&](core::RecordKind, std::int16_t, std::int32_t) {
        heard.push_back(core::Config().CompanyName);
    });
    core::NotifyAll(core::kBuilding, core::kRecordsChanged, 0);
    core::NotifyAll(core::kConfiguration, core::kRecordsChanged, 0);
    EXPECT_THAT(heard, ElementsAre("", "New name"));
}

TEST(DailyRun, StepsRunInTheirOrderAndAFailedOneStopsNoOther) {
    using core::RunStep;
    core::RegisterRunStep(RunStep::Leases, [](core::RunListener& listener) {
        listener.Posted(core::kLease, 40, "Smith",
                        {{platform::Date(2024, 5, 17), "Rent", platform::Currency::FromUnits(9)}});
    });
    core::RegisterRunStep(RunStep::Mortgages, {});
    core::RegisterRunStep(RunStep::ScheduledEvents,
                          [](core::RunListener&) { throw std::runtime_error("no such table"); });
    tests::RunHeard heard;
    core::UpdateRecords(heard);
    EXPECT_THAT(heard.failed, ElementsAre("0 0 Scheduled events: no such table"));
    EXPECT_THAT(heard.posted, ElementsAre("2 40 Smith: Rent 05/17/2024 9"));
    EXPECT_NO_THROW(core::UpdateRecords());
    core::RegisterRunStep(RunStep::Leases, {});
    core::RegisterRunStep(RunStep::ScheduledEvents, {});
}

TEST(DayChange, IsNoticedOnceADayAndNeverAtTheFirstTick) {
    core::DayChange change;
    int runs = 0;
    const auto tickOn = [&](platform::Date day) {
        platform::SetToday(day);
        change.Tick([&] { ++runs; });
        return runs;
    };
    EXPECT_EQ(tickOn({2024, 2, 28}), 0);
    EXPECT_EQ(tickOn({2024, 2, 28}), 0);
    EXPECT_EQ(tickOn({2024, 2, 29}), 1);
    EXPECT_EQ(tickOn({2024, 2, 29}), 1);
    EXPECT_EQ(tickOn({2024, 2, 28}), 2); // the clock was set back
    platform::SetToday(std::nullopt);
}

TEST_F(OpeningRecords, TransactionsOpenWhereTheyWereMade) {
    using core::TransactionEditor;
    struct Case {
        std::string_view classAndFlags;
        TransactionEditor editor;
    };
    const Case cases[] = {
        {"NULL, NULL", TransactionEditor::Transaction},
        {"0, 0", TransactionEditor::Transaction},
        {"1, 0", TransactionEditor::RentPayment},
        {"2, 3", TransactionEditor::RentPayment},
        {"3, 0", TransactionEditor::RentPayment},
        {"3, 2", TransactionEditor::RentPayment},
        {"3, 3", TransactionEditor::Transaction},
        {"3, 4", TransactionEditor::Transaction},
        {"4, 0", TransactionEditor::Transaction},
        {"5, 3", TransactionEditor::MortgagePayment},
    };
    for (const Case& c : cases) {
        Run("DELETE * FROM Transactions");
        Run("INSERT INTO Transactions (IdTransaction, IdLease, Class, Flags) VALUES (8, 40, " +
            std::string(c.classAndFlags) + ")");
        EXPECT_EQ(core::FindTransactionPlace(8), (core::TransactionPlace{c.editor, 40, 0}))
            << c.classAndFlags;
    }
    EXPECT_EQ(core::FindTransactionPlace(0), core::TransactionPlace{});
    EXPECT_EQ(core::FindTransactionPlace(9), core::TransactionPlace{});
}

TEST_F(OpeningRecords, AnOpenRecordComesToTheFrontAndNewOnesAlwaysOpen) {
    Run("INSERT INTO Transactions (IdTransaction, Class, IdMortgage) VALUES (8, 5, 50)");
    Words events;
    core::SetMessagePump([&] { events.emplace_back("pump"); });
    core::RegisterOpenRecords([&](std::int32_t id) {
        events.push_back("look " + std::to_string(id));
        return id == 7;
    });
    core::RegisterOpener(core::kOwner, [&](const core::EditRequest& request) {
        EXPECT_EQ(request, (core::EditRequest{core::kOwner, request.id, 1, 2, 3}));
        events.push_back("open " + std::to_string(request.id));
    });
    core::RegisterTransactionOpener(
        core::TransactionEditor::MortgagePayment,
        [&](const core::EditRequest& request, const core::TransactionPlace& place) {
            events.push_back("pay " + std::to_string(request.id) + " of " +
                             std::to_string(place.idMortgage));
        });

    core::EditRecord(core::kOwner, 7, 1, 2, 3);
    core::EditRecord(core::kOwner, 0, 1, 2, 3);
    core::EditRecord(core::kOwner, 6, 1, 2, 3);
    core::EditRecord(core::kTransaction, 8);
    core::EditRecord(core::kInvoices, 0);
    EXPECT_THAT(events, ElementsAre("look 7", "open 0", "pump", "look 6", "open 6", "pump",
                                    "look 8", "pay 8 of 50", "pump", "pump"));
    core::SetMessagePump({});
    core::RegisterOpenRecords({});
    core::RegisterOpener(core::kOwner, {});
    core::RegisterTransactionOpener(core::TransactionEditor::MortgagePayment, {});
}

} // namespace
