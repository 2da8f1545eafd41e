#include <QAction>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <algorithm>
#include <map>

#include "platform/qt/Text.h"
#include "shell/screens/KestromFixture.h"

namespace {

/// The text of a menu or an item as the help writes it.
QString Plain(QString text) {
    return text.remove(QLatin1Char('&'))
        .remove(QStringLiteral("..."))
        .section(QLatin1Char('\t'), 0, 0);
}

class HelpMenus : public tests::KestromTest {
  protected:
    std::map<QString, QStringList> Menus() {
        std::map<QString, QStringList> menus;
        for (const QAction* const menu : Window().menuBar()->actions())
            for (const QAction* const item : menu->menu()->actions())
                menus[Plain(menu->text())] << Plain(item->text());
        return menus;
    }
    static QString TextOf(const QString& file) {
        QFile page(file);
        EXPECT_TRUE(page.open(QIODevice::ReadOnly));
        static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
        return QString::fromUtf8(page.readAll()).remove(tags);
    }
};

TEST_F(HelpMenus, HaveTheItemsThatTheHelpNames) {
    const auto menus = Menus();
    QStringList names;
    for (const auto& [name, items] : menus)
        names << name;
    const QRegularExpression path(
        QStringLiteral("\\b(%1), ([A-Z][\\w ]+)").arg(names.join(QLatin1Char('|'))));
    int found = 0;
    const QDir help(QStringLiteral(VESTREL_SHARE "/help"));
    for (const QString& page : help.entryList({QStringLiteral("*.html")})) {
        auto matches = path.globalMatch(TextOf(help.filePath(page)));
        while (matches.hasNext()) {
            const auto match = matches.next();
            const auto named = [&](const QString& item) {
                return !item.isEmpty() && match.captured(2).startsWith(item);
            };
            ++found;
            EXPECT_TRUE(std::ranges::any_of(menus.at(match.captured(1)), named))
                << platform::qt::FromScreen(page + QStringLiteral(": ") + match.captured());
        }
    }
    EXPECT_GT(found, 10);
}

} // namespace
