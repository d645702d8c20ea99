#include "Failure.h"

#include "Printers.h"

#include <cerrno>
#include <system_error>

namespace ormiva {
namespace {

TEST(FileError, KeepsItsSentence) {
    EXPECT_EQ(FileError(QStringLiteral("No room left.")).description(), QStringLiteral("No room left."));
}

TEST(FileError, TellsTheSystemsReasonWithThePath) {
    const QString reason = QString::fromLocal8Bit(std::generic_category().message(ENOTDIR).c_str());
    ASSERT_FALSE(reason.isEmpty());
    EXPECT_EQ(FileError::fromErrno(QStringLiteral("Could not open"), QStringLiteral("/a %1 b"), ENOTDIR)
                  .description(),
              QStringLiteral("Could not open “/a %1 b”: ") + reason + u'.');
}

} // namespace
} // namespace ormiva
