#include "CareLines.h"

#include <gtest/gtest.h>

namespace ormiva {

void PrintTo(const CareLine& line, std::ostream* out) {
    *out << (line.bullet ? "bullet \"" : "plain \"") << line.text.toStdString() << '"';
}

namespace testing {

TEST(CareLines, MakesOnePlainLineOfATextWithoutLineFeeds) {
    EXPECT_EQ(careLines(QStringLiteral(" As it stands. ")),
              (QList<CareLine>{{QStringLiteral(" As it stands. "), false}}));
}

TEST(CareLines, MakesOneBulletRow) {
    EXPECT_EQ(careLines(QStringLiteral("• Twelve hours")),
              (QList<CareLine>{{QStringLiteral("Twelve hours"), true}}));
}

TEST(CareLines, KeepsBlankLinesAndTrimsBullets) {
    EXPECT_EQ(careLines(QStringLiteral("First\n\n \t•\u00a0 a • b  \n•\nLast\n")),
              (QList<CareLine>{{QStringLiteral("First"), false},
                               {QString(), false},
                               {QStringLiteral("a • b"), true},
                               {QString(), true},
                               {QStringLiteral("Last"), false},
                               {QString(), false}}));
}

TEST(CareLines, MakesOneEmptyLineOfNothing) {
    EXPECT_EQ(careLines(QString()), (QList<CareLine>{{QString(), false}}));
}

} // namespace testing

} // namespace ormiva
