// An executable of its own: the place of the preferences is settled at their first use in a process.

#include "OMPrefs.h"

#include "Printers.h"

#include <QFile>

namespace ormiva {
namespace {

TEST(PrefsFile, IsInTheConfigurationFolderUnderTheNameOfTheApplication) {
    const QString path = qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/com.ventrel.ormiva.ini");
    EXPECT_FALSE(OMPrefs::value(OMPrefs::weightUnitKey).isValid());
    ASSERT_FALSE(QFile::exists(path));
    OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("lb"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("[General]\nom.weightUnit=lb\n"));
}

} // namespace
} // namespace ormiva
