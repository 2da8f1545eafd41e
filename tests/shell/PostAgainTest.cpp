#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <functional>

#include "mortgages/MortgageUpkeep.h"
#include "removal/DeleteRecord.h"
#include "shell/TakeBackFixture.h"

namespace {

using core::App;
using core::Posting;
using platform::DateAdd;
using platform::Interval;
using shell::DigestRow;
using shell::RunDigest;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::kMade;
using tests::TakingBack;
using Lines = std::vector<std::string>;

class PostingAgain : public TakingBack {};

TEST_F(PostingAgain, IsAsIfTheRowHadStayedWhileItsPartiesWereDeleted) {
    struct Party {
        core::RecordKind kind;
        const char* side;
    };
    for (const Party& party : {Party{core::kAccount, "Debit"}, Party{core::kAccount, "Credit"},
                               Party{core::kTenant, "Debit"}}) {
        SCOPED_TRACE(fmt::format("{} {}", core::KindNumber(party.kind), party.side));
        const auto live = [&](bool takesBack) {
            OpenFresh();
            const DigestRow row = RunAndFind(Posting::EventTransaction);
            const std::int32_t id =
                std::stoi(Ask(party.kind == core::kTenant ? "SELECT Max(IdTenant) FROM Tenant"
                                                          : "SELECT Max(IdAccount) FROM Account"));
            core::Execute(
                fmt::format("UPDATE Transactions SET {0}Type = {1}, {0}Id = {2} WHERE "
                            "IdTransaction = {3}",
                            party.side, core::KindNumber(party.kind), id, row.rowId));
            if (takesBack) Take(row);
            removal::RemoveRecord(party.kind, id, removal::Tell::Nobody);
            if (takesBack) Post(row);
            EXPECT_EQ(Ask(fmt::format("SELECT {}Id FROM Transactions WHERE IdTransaction = {}",
                                      party.side, row.rowId)),
                      "0");
            return Books();
        };
        EXPECT_EQ(live(true), live(false));
    }
}

TEST_F(PostingAgain, IsRefusedForAChargeThatAPayoffHasTakenIn) {
    const DigestRow payment = RunAndFind(Posting::LoanPayment);
    Take(payment);
    ASSERT_EQ(mortgages::PostPayoff(payment.recordId), mortgages::PayoffResult::Posted);
    EXPECT_THAT(Refused([&] { Post(payment); }), HasSubstr("the payoff of its mortgage"));
    core::Execute("DELETE * FROM MortgageLog WHERE Category = 'Mortgage Payoff'");
    EXPECT_EQ(Post(payment), 0);
}

/// How many of two programs do the work when both begin it at the same moment; the other finds that
/// it is done.
int DoneOfTwo(const std::function<void()>& work) {
    const std::string file = App().Connection.File();
    App().Connection.Close();
    std::array<int, 2> start{};
    EXPECT_EQ(pipe(start.data()), 0);
    std::array<pid_t, 2> programs{};
    for (pid_t& program : programs) {
        program = fork();
        if (program != 0) continue;
        int status = 2;
        try {
            App().Connection.Open(file);
            char sign = 0;
            if (read(start[0], &sign, 1) != 1) _exit(3);
            work();
            status = 0;
        } catch (const platform::ConflictError&) {
            status = 1;
        } catch (const std::exception&) {
            status = 2;
        }
        App().Connection.Close();
        _exit(status);
    }
    EXPECT_EQ(write(start[1], "!!", 2), 2);
    int done = 0;
    for (const pid_t program : programs) {
        int status = 0;
        waitpid(program, &status, 0);
        EXPECT_LE(WEXITSTATUS(status), 1) << "neither done nor refused";
        if (WEXITSTATUS(status) == 0) ++done;
    }
    close(start[0]);
    close(start[1]);
    App().Connection.Open(file);
    return done;
}

TEST_F(PostingAgain, AndTakingBackAreDoneOnceByTwoProgramsAtTheSameMoment) {
    const RunDigest digest = RunTo(DateAdd(Interval::Month, 2, kMade));
    const std::vector<DigestRow> rows(digest.Rows().begin(), digest.Rows().begin() + 12);
    const Lines before = Books();
    Lines taken;
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(DoneOfTwo([&] { shell::TakeBack(rows); }), 1);
        EXPECT_EQ(Ask("SELECT Count(*) FROM TakenBack"), std::to_string(rows.size()));
        if (taken.empty()) taken = Books();
        EXPECT_THAT(ChangedSince(taken), IsEmpty());
        EXPECT_EQ(DoneOfTwo([&] { shell::PostAgain(rows); }), 1);
        EXPECT_THAT(ChangedSince(before), IsEmpty());
    }
}

} // namespace
