#include "SourceChipList.h"

#include "CareLibrary.h"
#include "ContentFolder.h"
#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva::testing {

// The example content of the run has the sources that the tests of the library use; what the chips make of
// several sources of one name is tried on the pages.

TEST(SourceChips, DropsKeysThatTheLibraryDoesNotKnow) {
    EXPECT_EQ(sourceChips({QStringLiteral("gone"), QStringLiteral("lost")}), QList<SourceChip>());
    EXPECT_EQ(sourceChips({}), QList<SourceChip>());
}

TEST(SourceChips, MakesAChipOfAKnownKey) {
    ASSERT_FALSE(CareLibrary::shared().sources().isEmpty());
    const SourceRef source = CareLibrary::shared().sources().begin().value();
    const QList<SourceChip> chips = sourceChips({QStringLiteral("gone"), source.key});
    ASSERT_EQ(chips.size(), 1);
    EXPECT_EQ(chips.first(), (SourceChip{source.shortName(), {source}}));
    EXPECT_EQ(chips.first().tip(), QStringLiteral("%1 (checked %2)").arg(source.title, source.checked));
}

TEST(SourceChips, PutsEachSourceOnALineOfTheTip) {
    SourceRef first;
    first.title = QStringLiteral("100%1 hay");
    first.checked = QStringLiteral("2026-01-02");
    SourceRef second;
    second.title = QStringLiteral("B");
    second.checked = QStringLiteral("2026-03-04");
    EXPECT_EQ((SourceChip{QStringLiteral("X"), {first, second}}).tip(),
              QStringLiteral("100%1 hay (checked 2026-01-02)\nB (checked 2026-03-04)"));
}

} // namespace ormiva::testing
