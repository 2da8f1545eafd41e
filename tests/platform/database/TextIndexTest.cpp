#include "platform/database/TextIndex.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <fstream>

#include "support/TemporaryFolder.h"

namespace {

using platform::DatabaseError;
using platform::IndexedText;
using platform::SearchWord;
using platform::TextIndex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;

constexpr int kLayout = 7;

class TextIndexTest : public testing::Test {
  protected:
    fs::path File() const { return folder_ / "x.search"; }

    static void Put(TextIndex& index, std::int64_t key, const char* words) {
        index.Begin();
        index.Put(
            {.key = key, .mark = 3, .title = "T", .detail = "D", .target = "1", .words = words});
        index.Commit();
    }
    static std::vector<std::int64_t> Find(TextIndex& index, std::vector<SearchWord> words,
                                          std::int64_t first = 0) {
        std::vector<std::int64_t> keys;
        index.Find(words, first, [&](const TextIndex::Match& match) {
            EXPECT_EQ(match.target, "1");
            keys.push_back(match.key);
            return true;
        });
        return keys;
    }
    static std::vector<std::int64_t> Find(TextIndex& index, const std::string& word) {
        return Find(index, {{{word}, false}});
    }

    support::TemporaryFolder folder_;
};

TEST_F(TextIndexTest, FindsWordsByTheirBeginningInOrderOfTheKeys) {
    TextIndex index;
    Put(index, 5, "O'Brien, Séan: 12 Elm St");
    Put(index, 2, "Obrist 555-0101");
    struct Case {
        std::vector<SearchWord> words;
        std::vector<std::int64_t> found;
    };
    const std::vector<Case> cases = {
        {{{{"ob"}, false}}, {2}},
        {{{{"o"}, false}}, {2, 5}},
        {{{{"sean"}, false}}, {5}},
        {{{{"SÉAN"}, true}}, {5}},
        {{{{"sea"}, true}}, {}},
        {{{{"o'brien"}, true}}, {5}},
        {{{{"555-01"}, false}}, {2}},
        {{{{"0101-555"}, false}}, {}},
        {{{{"elm"}, false}, {{"12"}, true}}, {5}},
        {{{{"elm"}, false}, {{"555"}, true}}, {}},
        {{{{"elm", "555"}, false}}, {2, 5}},
        {{{{"..."}, false}, {{"elm"}, false}}, {5}}, // a word without a letter is no condition
        {{{{"..."}, false}}, {}},
        {{}, {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(Find(index, each.words), each.found) << platform::MatchExpression(each.words);
    EXPECT_THAT(Find(index, {{{"o"}, false}}, 3), ElementsAre(5)) << "from a key on";
}

TEST_F(TextIndexTest, WritesOutTheFewWordsWithABeginning) {
    TextIndex index;
    Put(index, 1, "lease leased Léasing 2020m01 repair");
    Put(index, 2, "LEASES repairs removed");
    Put(index, 3, "abcda abcdb abcdc abcdd abcde abcdf abcdg abcdh");
    Put(index, 2, "LEASES repairs");
    using Words = std::vector<std::string>;
    struct Case {
        SearchWord word;
        Words forms;
        bool isWhole = true;
    };
    const std::vector<Case> cases = {
        {{{"lease"}, false}, {"lease", "leased", "leases"}},
        {{{"LEAS"}, false}, {"lease", "leased", "leases", "leasing"}},
        {{{"lease"}, true}, {"lease"}},
        {{{"2020m", "repairs"}, false}, {"2020m01", "repairs"}},
        {{{"lea"}, false}, {"lea"}, false}, // short, which the index has as it is
        {{{"léas"}, false}, {"léas"}, false},
        {{{"o'leary"}, false}, {"o'leary"}, false},
        {{{"abcd"}, false},
         {"abcda", "abcdb", "abcdc", "abcdd", "abcde", "abcdf", "abcdg", "abcdh"}},
    };
    const auto expect = [&](const Case& each) {
        const std::vector<SearchWord> words = {each.word};
        const auto written = index.WrittenOut(words);
        ASSERT_TRUE(written && written->size() == 1) << each.word.forms[0];
        EXPECT_EQ(written->front().forms, each.forms);
        EXPECT_EQ(written->front().isWhole, each.isWhole) << each.word.forms[0];
        EXPECT_EQ(Find(index, *written), Find(index, words)) << each.word.forms[0];
    };
    for (const Case& each : cases)
        expect(each);
    Put(index, 4, "abcdi");
    expect({{{"abcd"}, false}, {"abcd"}, false}); // too many now
    for (const char* const none : {"nothing", "zzzz"})
        EXPECT_FALSE(index.WrittenOut({{{{"lease"}, false}, {{none}, false}}})) << none;
}

TEST_F(TextIndexTest, TakesNothingThatIsTypedForAnOperator) {
    TextIndex index;
    Put(index, 1, "NEAR and AND or NOT \"quoted\" col : ^ * ( )");
    const std::string zero("a\0b", 3);
    for (const std::string& typed :
         {std::string("\""), std::string("\"\""), std::string("AND"), std::string("NEAR(a b)"),
          std::string("words:x"), std::string("*"), std::string("(("), std::string("^a"),
          std::string("-"), std::string("'; DROP TABLE texts; --"), zero, std::string("\xff\xfe"),
          std::string("🏠"), std::string(10'000, 'x'), std::string(10'000, '"')}) {
        EXPECT_NO_THROW(Find(index, typed)) << typed.substr(0, 40);
        EXPECT_NO_THROW(index.WrittenOut({{{{typed}, false}}})) << typed.substr(0, 40);
    }
    EXPECT_THAT(Find(index, "and"), ElementsAre(1));
    EXPECT_THAT(Find(index, "\"quoted\""), ElementsAre(1));
}

TEST_F(TextIndexTest, ForgetsWhatIsReplacedRemovedOrDropped) {
    TextIndex index(File(), kLayout);
    Put(index, 1, "alpha");
    Put(index, 1, "beta");
    EXPECT_THAT(Find(index, "alpha"), IsEmpty());
    EXPECT_THAT(Find(index, "beta"), ElementsAre(1));
    index.Begin();
    index.Remove(1);
    index.RollBack();
    EXPECT_THAT(Find(index, "beta"), ElementsAre(1));
    index.Begin();
    index.Remove(1);
    index.Remove(99);
    index.Commit();
    EXPECT_THAT(Find(index, "beta"), IsEmpty());
    EXPECT_THAT(index.Keys(0, 10), testing::SizeIs(0));
}

TEST_F(TextIndexTest, KeepsItsTextsInAPrivateFileAndMakesABadFileNew) {
    {
        TextIndex index(File(), kLayout);
        Put(index, 1, "alpha");
    }
    EXPECT_EQ(fs::status(File()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    {
        TextIndex index(File(), kLayout);
        EXPECT_THAT(Find(index, "alpha"), ElementsAre(1));
        ASSERT_EQ(index.Keys(0, 10).size(), 1U);
        EXPECT_EQ(index.Keys(0, 10)[0].mark, 3U);
    }
    const auto spoil = [&](const std::string& text, std::ios::openmode mode, std::streamoff at) {
        std::fstream file(File(), mode);
        file.seekp(at);
        file << text;
    };
    using Spoil = std::function<void()>;
    for (const Spoil& each : std::initializer_list<Spoil>{
             [&] { spoil("This text is not a database.", std::ios::out | std::ios::trunc, 0); },
             [&] { spoil("", std::ios::out | std::ios::trunc, 0); },
             [&] { spoil(std::string(600, 'x'), std::ios::in | std::ios::out, 20); },
             [&] { fs::resize_file(File(), fs::file_size(File()) / 2); },
             [&] { fs::remove(File()); }, [&] { TextIndex(File(), kLayout + 1); }}) {
        each();
        TextIndex index(File(), kLayout);
        EXPECT_THAT(index.Keys(0, 10), testing::SizeIs(0));
        Put(index, 1, "alpha");
        EXPECT_THAT(Find(index, "alpha"), ElementsAre(1));
    }
}

TEST_F(TextIndexTest, RefusesAFileThatAnotherProgramWritesToAndAFolder) {
    TextIndex index(File(), kLayout);
    TextIndex other(File(), kLayout);
    other.Begin();
    other.Put({.key = 1, .mark = 0, .title = {}, .detail = {}, .target = "1", .words = "alpha"});
    try {
        index.Begin();
        ADD_FAILURE() << "two write at once";
    } catch (const DatabaseError& failure) {
        EXPECT_EQ(TextIndex::ReasonOf(failure), "another program is using it");
        EXPECT_FALSE(TextIndex::IsDamage(failure));
    }
    EXPECT_THROW(index.Empty(), DatabaseError) << "it is in use, not damaged";
    other.Commit();
    EXPECT_THAT(Find(index, "alpha"), ElementsAre(1));

    fs::create_directory(folder_ / "folder.search");
    EXPECT_THROW(TextIndex(folder_ / "folder.search", kLayout), DatabaseError);
    EXPECT_THROW(TextIndex(folder_ / "nowhere" / "x.search", kLayout), DatabaseError);
}

} // namespace
