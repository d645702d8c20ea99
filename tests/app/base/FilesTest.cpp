#include "FailingSystem.h"
#include "Failure.h"
#include "Printers.h"
#include "TemporaryFolder.h"
#include "WholeFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// The sentence of the FileError that `body` throws; empty when it finishes.
QString failureOf(const std::function<void()>& body) {
    try {
        body();
    } catch (const FileError& error) {
        return error.description();
    }
    return {};
}

QStringList names(const TemporaryFolder& folder) {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

bool isPrivate(const QString& path) {
    return QFileInfo(path).permissions() ==
           (QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
}

TEST(Files, AreKnownByWhatTheyLeadTo) {
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_qs, "bytes");
    const QString link = folder.file(u"link"_qs);
    const QString second = folder.file(u"second"_qs);
    ASSERT_TRUE(QFile::link(path, link));
    ASSERT_EQ(::link(QFile::encodeName(path).constData(), QFile::encodeName(second).constData()), 0);
    const QString other = folder.write(u"b"_qs, "bytes");
    const Files files;
    EXPECT_TRUE(files.exists(path) && files.exists(link) && files.exists(folder.path()));
    EXPECT_FALSE(files.exists(folder.file(u"none"_qs)));
    EXPECT_TRUE(files.isFolder(folder.path()));
    EXPECT_FALSE(files.isFolder(path) || files.isFolder(folder.file(u"none"_qs)));
    EXPECT_TRUE(files.areSame(path, link) && files.areSame(path, second) && files.areSame(link, second));
    EXPECT_TRUE(files.areSame(path, folder.path() + u"/./a"_qs));
    EXPECT_FALSE(files.areSame(path, other));
    EXPECT_FALSE(files.areSame(folder.file(u"none"_qs), folder.file(u"none"_qs)));
}

TEST(Files, AreMadeForTheUserAlone) {
    const TemporaryFolder folder;
    const Files files;
    files.create(folder.file(u"empty"_qs));
    files.write(folder.file(u"written"_qs), "abc");
    files.copy(folder.write(u"source"_qs, "def"), folder.file(u"copy"_qs));
    EXPECT_EQ(folder.read(u"empty"_qs), QByteArray());
    EXPECT_EQ(folder.read(u"written"_qs), QByteArray("abc"));
    EXPECT_EQ(folder.read(u"copy"_qs), QByteArray("def"));
    for (const QString& name : {u"empty"_qs, u"written"_qs, u"copy"_qs})
        EXPECT_TRUE(isPrivate(folder.file(name))) << name.toStdString();
}

TEST(Files, AreNeverMadeOverAnother) {
    const TemporaryFolder folder;
    const QString there = folder.write(u"there"_qs, "old");
    const QString source = folder.write(u"source"_qs, "new");
    const Files files;
    const QString sentence = u"Could not write “%1”: %2."_qs.arg(there, systemWords(EEXIST));
    EXPECT_EQ(failureOf([&] { files.create(there); }), sentence);
    EXPECT_EQ(failureOf([&] { files.write(there, "new"); }), sentence);
    EXPECT_EQ(failureOf([&] { files.copy(source, there); }), sentence);
    EXPECT_EQ(folder.read(u"there"_qs), QByteArray("old"));
}

TEST(Files, OfAnySizeAreCopiedWhole) {
    const TemporaryFolder folder;
    QByteArray bytes(3 * (1 << 20) + 17, 'x');
    bytes[2'000'000] = '\0';
    bytes[3'145'740] = 'y';
    Files().copy(folder.write(u"big"_qs, bytes), folder.file(u"copy"_qs));
    EXPECT_TRUE(folder.read(u"copy"_qs) == bytes);
    Files().copy(folder.write(u"none"_qs, {}), folder.file(u"copy of none"_qs));
    EXPECT_EQ(folder.read(u"copy of none"_qs), QByteArray());
}

TEST(Files, KeepASecondName) {
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_qs, "bytes");
    const Files files;
    files.keep(path, folder.file(u"kept"_qs));
    EXPECT_TRUE(files.areSame(path, folder.file(u"kept"_qs)));
    files.keep(folder.file(u"none"_qs), folder.file(u"kept none"_qs));
    EXPECT_FALSE(files.exists(folder.file(u"kept none"_qs)));
    EXPECT_EQ(failureOf([&] { files.keep(path, folder.file(u"kept"_qs)); }),
              u"Could not write “%1”: %2."_qs.arg(folder.file(u"kept"_qs), systemWords(EEXIST)));
}

/// A file system without second names.
class WithoutLinks : public SystemCalls {
    int link(const char*, const char*) override {
        errno = EPERM;
        return -1;
    }
};

TEST(Files, KeepACopyWhereThereAreNoSecondNames) {
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_qs, "bytes");
    WithoutLinks system;
    const Files files(system);
    files.keep(path, folder.file(u"kept"_qs));
    EXPECT_FALSE(files.areSame(path, folder.file(u"kept"_qs)));
    EXPECT_EQ(folder.read(u"kept"_qs), QByteArray("bytes"));
}

TEST(Files, TellTheSystemsReason) {
    const TemporaryFolder folder;
    const Files files;
    const QString none = folder.file(u"none"_qs);
    EXPECT_EQ(failureOf([&] { files.copy(none, folder.file(u"copy"_qs)); }),
              u"Could not read “%1”: %2."_qs.arg(none, systemWords(ENOENT)));
    EXPECT_EQ(failureOf([&] { files.rename(none, folder.file(u"copy"_qs)); }),
              u"Could not replace “%1”: %2."_qs.arg(folder.file(u"copy"_qs), systemWords(ENOENT)));
    EXPECT_EQ(failureOf([&] { files.sync(none); }),
              u"Could not write “%1”: %2."_qs.arg(none, systemWords(ENOENT)));
    files.removeIfPossible(none);
    EXPECT_EQ(names(folder), QStringList());
}

TEST(WholeFile, TakesThePlaceOfAnother) {
    const TemporaryFolder folder;
    const QString path = folder.file(u"a.csv"_qs);
    WholeFile::write(path, "first");
    EXPECT_EQ(folder.read(u"a.csv"_qs), QByteArray("first"));
    WholeFile::write(path, {});
    EXPECT_EQ(folder.read(u"a.csv"_qs), QByteArray());
    EXPECT_EQ(names(folder), QStringList({u"a.csv"_qs}));
    EXPECT_TRUE(isPrivate(path));
}

TEST(WholeFile, SyncsTheFileBeforeItIsMovedAndTheFolderAfter) {
    const TemporaryFolder folder;
    FailingSystem system;
    WholeFile::write(folder.file(u"a"_qs), "bytes", Files(system));
    QStringList calls;
    for (const std::string& call : system.calls())
        calls.append(QString::fromStdString(call).section(u' ', 0, 0));
    EXPECT_EQ(calls, QStringList({u"open"_qs, u"write"_qs, u"fsync"_qs, u"close"_qs, u"rename"_qs, u"open"_qs,
                                  u"fsync"_qs, u"close"_qs}));
    EXPECT_EQ(system.calls().at(5), "open " + folder.path().toStdString());
}

TEST(WholeFile, LeavesTheOldOneWhenAnyCallFails) {
    int failures = 0;
    for (const Trouble trouble :
         {Trouble::Refused, Trouble::NoSpace, Trouble::Broken, Trouble::Busy, Trouble::ShortWrite})
        for (int call = 1; call <= 5; ++call) { // Up to the rename.
            const TemporaryFolder folder;
            const QString path = folder.write(u"a"_qs, "old");
            FailingSystem system(call, trouble);
            EXPECT_NE(failureOf([&] { WholeFile::write(path, "new bytes", Files(system)); }), QString())
                << call;
            EXPECT_TRUE(system.hasFailed());
            EXPECT_EQ(folder.read(u"a"_qs), QByteArray("old")) << call;
            EXPECT_EQ(names(folder), QStringList({u"a"_qs})) << call;
            ++failures;
        }
    EXPECT_EQ(failures, 25);
}

/// A file system that writes one byte at a time and is interrupted before each.
class SlowSystem : public SystemCalls {
public:
    int interruptions = 0;

    ssize_t write(int file, const void* bytes, std::size_t) override {
        if (m_interrupt ^= true) {
            ++interruptions;
            errno = EINTR;
            return -1;
        }
        return SystemCalls::write(file, bytes, 1);
    }

private:
    bool m_interrupt = false;
};

TEST(WholeFile, GoesOnAfterAShortOrInterruptedWrite) {
    const TemporaryFolder folder;
    SlowSystem system;
    WholeFile::write(folder.file(u"a"_qs), "bytes", Files(system));
    EXPECT_EQ(folder.read(u"a"_qs), QByteArray("bytes"));
    EXPECT_EQ(system.interruptions, 5);
}

/// A file system whose folders can't be synced.
class WithoutFolderSync : public SystemCalls {
    int fsync(int file) override {
        struct stat found {};
        if (fstat(file, &found) != 0 || !S_ISDIR(found.st_mode))
            return SystemCalls::fsync(file);
        errno = EINVAL;
        return -1;
    }
};

TEST(WholeFile, IsWrittenWhereFoldersCannotBeSynced) {
    const TemporaryFolder folder;
    WithoutFolderSync system;
    WholeFile::write(folder.file(u"a"_qs), "bytes", Files(system));
    EXPECT_EQ(folder.read(u"a"_qs), QByteArray("bytes"));
}

} // namespace
} // namespace ormiva
