// An executable of its own: the data folder is settled at its first use in a process.

#include "CareLibrary.h"

#include "Printers.h"
#include "ScopedVariable.h"

#include <QCoreApplication>

namespace ormiva {
namespace {

TEST(DataFolder, IsThatOfTheResourcesWhenTheVariableIsEmptyAndStaysSo) {
    const QString expected = QCoreApplication::applicationDirPath() + u"/../share/ormiva/data"_qs;
    {
        const testing::ScopedVariable empty("OM_DATA_DIR", QByteArray(""));
        EXPECT_EQ(CareLibrary::dataFolder(), expected);
    }
    ASSERT_FALSE(qEnvironmentVariableIsEmpty("OM_DATA_DIR"));
    EXPECT_EQ(CareLibrary::dataFolder(), expected);
}

} // namespace
} // namespace ormiva
