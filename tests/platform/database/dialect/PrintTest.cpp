#include <gtest/gtest.h>

#include "platform/database/dialect/Syntax.h"

namespace platform::dialect {
namespace {

struct PrintCase {
    const char* statement;
    const char* printed;
};

// Every node prints what it was read as, and reads back as the same.
TEST(Print, ShowsTheTreeOfAStatement) {
    constexpr PrintCase kCases[] = {
        {"select a+b*-c^2, not x=1 and y or z from T",
         "SELECT [a] + ([b] * (-([c] ^ 2))), ((NOT ([x] = 1)) AND [y]) OR [z] FROM [T]"},
        {"SELECT DISTINCT [a b] AS x, T.*, Count(*), 'it''s' & \"q\" & #1/2/2024# FROM T AS u, "
         "(SELECT 1) v WHERE a IN (1, ?) AND b NOT IN (SELECT c FROM d) GROUP BY a, b "
         "HAVING Max(x) > 1e3",
         "SELECT DISTINCT [a b] AS [x], [T].*, Count(*), 'it''s' & \"q\" & #1/2/2024# FROM [T] AS "
         "[u], (SELECT 1) AS [v] WHERE ([a] IN (1, ?)) AND ([b] NOT IN (SELECT [c] FROM [d])) "
         "GROUP BY [a], [b] HAVING Max([x]) > 1E3"},
        {"SELECT TOP 3 PERCENT a FROM A LEFT JOIN (B INNER JOIN C ON 1=1) ON true RIGHT OUTER JOIN "
         "D ON d IS NOT NULL UNION ALL SELECT null UNION SELECT false ORDER BY 1 DESC, a ASC",
         "SELECT TOP 3 PERCENT [a] FROM (([A] LEFT JOIN ([B] INNER JOIN [C] ON 1 = 1) ON TRUE) "
         "RIGHT JOIN [D] ON [d] IS NOT NULL) UNION ALL SELECT NULL UNION SELECT FALSE ORDER BY 1 "
         "DESC, [a]"},
        {"SELECT (SELECT 1), EXISTS (SELECT 2), a NOT LIKE 'x' XOR b NOT BETWEEN 1 AND 2 + 3",
         "SELECT (SELECT 1), EXISTS (SELECT 2), ([a] NOT LIKE 'x') XOR ([b] NOT BETWEEN 1 AND "
         "(2 + 3))"},
        {"insert into T (a, T.b) values (1, x.y)",
         "INSERT INTO [T] ([a], [T].[b]) VALUES (1, [x].[y])"},
        {"insert into T select * from U;", "INSERT INTO [T] SELECT * FROM [U]"},
        {"update T set a = 1, T.b = c \\ 2 mod 3 where d",
         "UPDATE [T] SET [a] = 1, [T].[b] = ([c] \\ 2) MOD 3 WHERE [d]"},
        {"delete * from [T] where a is null", "DELETE FROM [T] WHERE [a] IS NULL"},
    };
    for (const auto& [statement, printed] : kCases) {
        EXPECT_EQ(Print(Parse(statement)), printed);
        EXPECT_EQ(Print(Parse(printed)), printed);
    }
}

} // namespace
} // namespace platform::dialect
