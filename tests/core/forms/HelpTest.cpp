#include <QDir>
#include <QHelpContentModel>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QRegularExpression>

#include "core/forms/frmHelp.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::forms::frmHelp;

class HelpTest : public ScreenTest {
  protected:
    QPointer<frmHelp> Open(const QString& topic) {
        QPointer<frmHelp> form(new frmHelp(QStringLiteral(VESTREL_HELP_FILE),
                                           QString::fromStdString(Folder().string())));
        form->Setup(topic);
        return form;
    }
    static QStringList Pages(frmHelp& form) {
        QStringList pages;
        for (const QUrl& file : form.Engine().files(QStringLiteral("vestrel"), QString())) {
            if (file.path().endsWith(QLatin1String(".html"))) pages << file.toString();
        }
        return pages;
    }
};

TEST_F(HelpTest, OpensThePageThatIsAskedFor) {
    const auto form = Open(QStringLiteral("frmConfig"));
    EXPECT_EQ(form->Topic(), QStringLiteral("frmConfig"));
    EXPECT_TRUE(form->Page().toPlainText().startsWith(QStringLiteral("Configuration")));
    form->Setup(QStringLiteral("frmNowhere"));
    EXPECT_EQ(form->Topic(), QStringLiteral("contents")) << "a page that isn't there";
}

TEST_F(HelpTest, EveryLinkLeadsToAPage) {
    const auto form = Open(QStringLiteral("contents"));
    const QStringList pages = Pages(*form);
    ASSERT_GE(pages.size(), 7);
    static const QRegularExpression link(QStringLiteral("href=\"([^\"]+)\""));
    for (const QString& page : pages) {
        const QString html = QString::fromUtf8(form->Engine().fileData(QUrl(page)));
        EXPECT_TRUE(html.contains(QLatin1String("<title>"))) << page.toStdString();
        auto found = link.globalMatch(html);
        while (found.hasNext()) {
            const QUrl target = QUrl(page).resolved(QUrl(found.next().captured(1)));
            EXPECT_TRUE(pages.contains(target.toString()))
                << page.toStdString() << " -> " << target.toString().toStdString();
        }
    }
}

TEST_F(HelpTest, TheIndexLeadsToThePagesOfItsWords) {
    const auto form = Open(QStringLiteral("contents"));
    const QList<QHelpLink> links =
        form->Engine().documentsForKeyword(QStringLiteral("primary owner"));
    ASSERT_EQ(links.size(), 1);
    EXPECT_TRUE(links.front().url.path().endsWith(QStringLiteral("frmOwnerLink.html")));
}

TEST_F(HelpTest, TheSearchFindsTheWordsInThePages) {
    const auto form = Open(QStringLiteral("search"));
    QHelpSearchEngine& search = *form->Engine().searchEngine();
    int left = 0;
    QObject::connect(&search, &QHelpSearchEngine::indexingFinished, form, [&] { ++left; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return left > 0; }, 20000)) << "the pages are read first";
    const auto pagesWith = [&](const char* words) {
        bool done = false;
        const auto connection = QObject::connect(&search, &QHelpSearchEngine::searchingFinished,
                                                 form, [&] { done = true; });
        search.search(QString::fromLatin1(words));
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 20000)) << words;
        QObject::disconnect(connection);
        QStringList found;
        for (const QHelpSearchResult& result : search.searchResults(0, search.searchResultCount()))
            found << result.url().fileName();
        return found;
    };
    for (const auto& [words, page] : {std::pair{"speaks for the building", "frmOwnerLink.html"},
                                      {"week to week", "frmConfig.html"}}) {
        // The engine may read the pages once more, but finds no changes.
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return pagesWith(words).contains(QString::fromLatin1(page)); }, 20000))
            << words;
    }
    EXPECT_TRUE(pagesWith("xyzzy").isEmpty());
}

TEST_F(HelpTest, TheContentsNameEveryPage) {
    const auto form = Open(QStringLiteral("contents"));
    QHelpContentModel* const contents = form->Engine().contentModel();
    ASSERT_TRUE(QTest::qWaitFor(
        [contents] { return !contents->isCreatingContents() && contents->rowCount() > 0; }));
    const std::function<int(const QModelIndex&)> count = [&](const QModelIndex& parent) {
        int pages = 0;
        for (int row = 0; row < contents->rowCount(parent); ++row) {
            pages += 1 + count(contents->index(row, 0, parent));
        }
        return pages;
    };
    EXPECT_EQ(count({}), Pages(*form).size());
    SettleEvents();
    EXPECT_EQ(Portray(*form, "frmHelp"), std::vector<std::string>{});
}

} // namespace
} // namespace support
