#include "OMError.h"

#include "Printers.h"

namespace ormiva {
namespace {

TEST(OMError, TellsADatabaseProblemBehindItsPrefix) {
    EXPECT_EQ(OMError::database(QStringLiteral("disk I/O error")).description(),
              QStringLiteral("The database reported a problem: disk I/O error"));
}

TEST(OMError, TellsAnInvalidRecordWordForWord) {
    EXPECT_EQ(OMError::invalid(QStringLiteral("Please choose a pet.")).description(),
              QStringLiteral("Please choose a pet."));
}

TEST(OMError, TellsABadBackupBehindItsPrefix) {
    EXPECT_EQ(OMError::badBackup(QStringLiteral("it is empty.")).description(),
              QStringLiteral("This file can't be restored: it is empty."));
}

TEST(OMError, TellsThatARecordIsGone) {
    EXPECT_EQ(OMError::notFound().description(), QStringLiteral("That record no longer exists."));
}

TEST(OMError, KeepsCaseAndPayload) {
    const OMError error = OMError::badBackup(QStringLiteral("x"));
    EXPECT_EQ(error.kind(), OMError::Case::BadBackup);
    EXPECT_EQ(error.payload(), QStringLiteral("x"));
    EXPECT_EQ(OMError::notFound().payload(), QString());
}

TEST(OMError, IsEqualByCaseAndPayload) {
    const QString a = QStringLiteral("a");
    EXPECT_EQ(OMError::database(a), OMError::database(a));
    EXPECT_EQ(OMError::notFound(), OMError::notFound());
    EXPECT_FALSE(OMError::database(a) == OMError::database(QStringLiteral("b")));
    EXPECT_FALSE(OMError::database(a) == OMError::invalid(a));
    EXPECT_FALSE(OMError::invalid(a) == OMError::badBackup(a));
    EXPECT_FALSE(OMError::invalid(QString()) == OMError::notFound());
}

TEST(OMError, IsCaughtAsAFailureWithItsSentence) {
    try {
        throw OMError::notFound();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.description(), QStringLiteral("That record no longer exists."));
        return;
    }
    FAIL();
}

} // namespace
} // namespace ormiva
