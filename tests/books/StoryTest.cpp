#include <algorithm>
#include <array>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include "books/AutoEvent.h"
#include "books/BooksFixture.h"
#include "books/SaveTransaction.h"
#include "books/ScheduledEvents.h"
#include "core/Preferences.h"
#include "core/RunHeard.h"
#include "platform/values/Conversions.h"
#include "support/StoryPlayer.h"
#include "support/Words.h"

namespace {

using books::Trip;
using support::Event;

/// Lives through stories of transactions and events, from 05/17/2024 on. `Field = value` are fields
/// of event 7; the ledger's rows are `date | description | amount`, in the order they were posted.
/// The events of a story:
///
///   event N every P days|weeks|months|years, last run DATE   never run without it
///   event N on day D, last run DATE
///   event N for account|tenant ID, category X                of no category without it
///   run events                answers what was posted, and what failed
///   run event N               today
///   post payment, without events      the payment of BooksFixture.h; `save payment` as its editor
///   save payment; edit payment N
///
/// and what a payment may be given: `amount A`, `category X` (or `category` for none), `description
/// X`, `check X`, `class C`, `flags F`, `credit ID`, `building ID`, `to itself`, `with a trip`.
class BooksStory : public tests::BooksTest,
                   public testing::WithParamInterface<support::Story>,
                   protected support::StoryPlayer {
  protected:
    BooksStory() {
        core::Preferences().ConfirmDelete = false;
        On("event ", AddEventOf);
        On("run events", [](const Event&) {
            tests::RunHeard heard;
            books::RunDueEvents(heard);
            Lines lines = std::move(heard.posted);
            std::ranges::copy(heard.failed, std::back_inserter(lines));
            return lines;
        });
        On("run event ", [](const Event& event) {
            books::RunAutoEvent(std::stoi(event.rest), platform::Today());
        });
        On("post payment", [](const Event& event) {
            books::PostTransaction(Entered(event), event.Added("without events")
                                                       ? books::Triggers::Skip
                                                       : books::Triggers::Fire);
        });
        On("save payment",
           [](const Event& event) { books::AddTransaction(Entered(event), TripOf(event)); });
        On("edit payment ", [](const Event& event) {
            books::EditTransaction(std::stoi(event.rest), Entered(event), Payment(), TripOf(event));
        });
        On("ask before deleting", [](const Event&) { core::Preferences().ConfirmDelete = true; });
    }
    ~BooksStory() override { core::Preferences() = {}; }

    void Set(const std::string& field, const std::string& value) override {
        Run("UPDATE AutoEvent SET " + field + " = " + value + " WHERE IdAutoEvent = 7");
    }
    std::string Get(const std::string& field) override {
        return Ask("SELECT " + field + " FROM AutoEvent WHERE IdAutoEvent = 7");
    }
    Lines Ledger() override {
        Lines lines;
        for (const std::string& row :
             support::Rows(core::App().Connection,
                           "SELECT DateEffective, Description, Amount FROM Transactions "
                           "ORDER BY IdTransaction"))
            lines.push_back(fmt::format("{}", fmt::join(support::Split(row), " | ")));
        return lines;
    }

  private:
    static void AddEventOf(const Event& event) {
        const Lines words = support::Split(event.rest, ' ');
        const int id = std::stoi(words.at(0));
        if (words.at(1) == "for") {
            AddTriggered(
                id, core::KindNumber(words.at(2) == "account" ? core::kAccount : core::kTenant),
                std::stoi(words.at(3)), event.Added("category").value_or("NULL"));
            return;
        }
        static constexpr std::array kUnits = {"days", "weeks", "months", "day", "years"};
        const bool isDay = words.at(1) == "on";
        const auto unit = std::ranges::find(kUnits, words.at(isDay ? 2 : 3));
        AddScheduled(id, static_cast<int>(unit - kUnits.begin()) + 1,
                     std::stoi(words.at(isDay ? 3 : 2)), event.Added("last run").value_or("NULL"));
    }

    static Trip TripOf(const Event& event) {
        return event.Added("with a trip") ? Trip::Keep : Trip::None;
    }

    static books::Transaction Entered(const Event& event) {
        books::Transaction entered = Payment();
        const auto number = [&](const char* name, auto& field) {
            if (const auto value = event.Added(name)) {
                field = static_cast<std::remove_reference_t<decltype(field)>>(std::stoi(*value));
            }
        };
        number("class ", entered.transactionClass);
        number("flags ", entered.flags);
        number("credit ", entered.credit.id);
        number("building ", entered.idBuilding);
        if (const auto amount = event.Added("amount ")) {
            entered.amount = platform::StrToMoney(*amount);
        }
        entered.taxCategory = event.Added("category").value_or(entered.taxCategory);
        entered.description = event.Added("description ").value_or(entered.description);
        entered.checkNumber = event.Added("check ").value_or(entered.checkNumber);
        if (event.Added("to itself")) entered.debit = entered.credit;
        return entered;
    }
};

TEST_P(BooksStory, EndsAsTold) {
    Play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Stories, BooksStory,
    testing::ValuesIn(support::ReadStories(std::filesystem::path(VESTREL_TEST_DATA) / "stories")),
    support::StoryName);

} // namespace
