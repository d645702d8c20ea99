#include "BackupFile.h"
#include "FailingSystem.h"
#include "FixedCalendar.h"
#include "MadeStore.h"
#include "ScopedVariable.h"
#include "StoreSchema.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

namespace ormiva {
namespace {

using namespace ormiva::testing;

QStringList names(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

OMError badBackup(const QString& reason) {
    return OMError::badBackup(reason);
}

/// A store with 3 pets and 18 weights, and a folder for what is written elsewhere.
class Backups : public ::testing::Test {
protected:
    Backups() {
        for (int i = 0; i < 3; ++i) {
            const Pet pet = made.addPet(u"Pet %1"_qs.arg(i));
            for (int n = 0; n < 6; ++n) {
                WeightEntry weight;
                weight.petID = pet.id;
                weight.grams = 100 + i * 10 + n;
                made.store.save(weight);
            }
        }
    }
    OMStore& store() { return made.store; }
    QString backupPath() const { return elsewhere.file(u"b.ombackup"_qs); }
    QString write(const QString& name) {
        const QString path = elsewhere.file(name);
        store().backup(path);
        return path;
    }
    /// A file made by plain statements.
    QString database(const QString& name, const QString& sql) {
        const QString path = elsewhere.file(name);
        SQLiteDB(path).exec(sql);
        return path;
    }
    std::optional<OMError> inspection(const QString& path) {
        return errorOf([&] { OMStore::inspectBackup(path); });
    }
    /// The refusal of a restore, which must leave everything as it was.
    std::optional<OMError> refusedRestore(const QString& path) {
        const QString digest = store().digest();
        const int revision = store().revision();
        const QStringList before = names(made.folder.path());
        const auto error = errorOf([&] { store().restore(path); });
        EXPECT_EQ(store().digest(), digest);
        EXPECT_EQ(store().revision(), revision);
        EXPECT_EQ(names(made.folder.path()), before);
        return error;
    }
    void changeRecords() {
        Pet pet = store().pets().first();
        pet.name = u"Changed"_qs;
        store().save(pet);
    }

    // The usual place of the records, where none of this may be seen.
    TemporaryFolder home;
    ScopedVariable dataHome{"XDG_DATA_HOME", home.path().toUtf8()};
    FixedCalendar calendar{utc(2026, 11, 21, 14, 5, 9), u"Europe/Berlin"_qs};
    MadeStore made;
    TemporaryFolder elsewhere;
};

TEST_F(Backups, AreDatabasesOfTheSchema) {
    const QString path = write(u"b.ombackup"_qs);
    SQLiteDB db(path, true);
    EXPECT_EQ(db.scalarInt(u"PRAGMA application_id"_qs), 1330468401);
    EXPECT_EQ(db.scalarInt(u"PRAGMA user_version"_qs), 1);
    EXPECT_EQ(names(elsewhere.path()), QStringList({u"b.ombackup"_qs}));
    EXPECT_EQ(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup), 0);
    EXPECT_EQ(OMStore(path).digest(), store().digest());
}

TEST_F(Backups, AreOnTheDiskBeforeTheyTakeTheirPlace) {
    FailingSystem system;
    BackupFile::write(store().db(), backupPath(), Files(system));
    QStringList calls;
    for (const std::string& call : system.calls())
        calls.append(QString::fromStdString(call).section(u' ', 0, 0));
    EXPECT_EQ(calls, QStringList({u"open"_qs, u"close"_qs, u"open"_qs, u"fsync"_qs, u"close"_qs, u"rename"_qs,
                                  u"open"_qs, u"fsync"_qs, u"close"_qs}));
}

TEST_F(Backups, TellTheirRows) {
    EXPECT_EQ(OMStore::inspectBackup(write(u"b.ombackup"_qs)),
              (QMap<QString, qint64>({{u"pet"_qs, 3},
                                      {u"weight"_qs, 18},
                                      {u"feeding"_qs, 0},
                                      {u"shed"_qs, 0},
                                      {u"vet_visit"_qs, 0},
                                      {u"medication"_qs, 0},
                                      {u"reminder"_qs, 0},
                                      {u"checklist"_qs, 0}})));
}

TEST_F(Backups, GoToAnyPath) {
    for (const QString& name : {u"it's here/b.ombackup"_qs, u"a \"quoted\" name.ombackup"_qs,
                                u"ünïcode 兔.ombackup"_qs, u"100% file:x?mode=memory.ombackup"_qs}) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(elsewhere.file(name)).absolutePath()));
        EXPECT_EQ(OMStore::inspectBackup(write(name)).value(u"pet"_qs), 3) << name.toStdString();
    }
}

TEST_F(Backups, TakeThePlaceOfAnEarlierOne) {
    write(u"b.ombackup"_qs);
    changeRecords();
    const QString path = write(u"b.ombackup"_qs);
    EXPECT_EQ(OMStore(path).digest(), store().digest());
    elsewhere.write(u"text.ombackup"_qs, "some text");
    EXPECT_EQ(OMStore::inspectBackup(write(u"text.ombackup"_qs)).value(u"weight"_qs), 18);
    EXPECT_EQ(names(elsewhere.path()), QStringList({u"b.ombackup"_qs, u"text.ombackup"_qs}));
}

TEST_F(Backups, TakeThePlaceOfALinkAndNotOfItsTarget) {
    const QString target = elsewhere.write(u"target.txt"_qs, "text");
    ASSERT_TRUE(QFile::link(target, backupPath()));
    store().backup(backupPath());
    EXPECT_EQ(elsewhere.read(u"target.txt"_qs), QByteArray("text"));
    EXPECT_FALSE(QFileInfo(backupPath()).isSymLink());
}

TEST_F(Backups, AreRefusedWhereNothingCanBeWritten) {
    const QString path = elsewhere.file(u"no folder/b.ombackup"_qs);
    QString sentence;
    try {
        store().backup(path);
    } catch (const FileError& error) {
        sentence = error.description();
    }
    EXPECT_TRUE(sentence.startsWith(u"Could not write “")) << sentence.toStdString();
    EXPECT_TRUE(sentence.endsWith(u": "_qs + systemWords(ENOENT) + u'.')) << sentence.toStdString();
}

TEST_F(Backups, NeverGoOverTheRecords) {
    const OMError refused =
        OMError::invalid(u"Please choose another place: this file holds your records."_qs);
    const QString folder = made.folder.path();
    ASSERT_TRUE(QDir().mkpath(home.path() + u"/VLK Ormiva"_qs));
    const QString usual = home.write(u"VLK Ormiva/Pets.sqlite"_qs, "a damaged file");
    const QString opened = home.write(u"VLK Ormiva/Pets (opened 2026-11-20).sqlite"_qs, "of another day");
    const QString kept = made.folder.write(u"Before restore 2026-11-20 101112.sqlite"_qs, "kept");
    const QString symbolic = elsewhere.file(u"symbolic.ombackup"_qs);
    ASSERT_TRUE(QFile::link(made.path(), symbolic));
    const QString hard = elsewhere.file(u"hard.ombackup"_qs);
    ASSERT_EQ(::link(QFile::encodeName(kept).constData(), QFile::encodeName(hard).constData()), 0);
    const QString linkedFolder = elsewhere.file(u"linked"_qs);
    ASSERT_TRUE(QFile::link(folder, linkedFolder));
    const QString digest = store().digest();
    for (const QString& path :
         {made.path(), made.path() + u"-journal"_qs, made.path() + u"-wal"_qs, made.path() + u"-shm"_qs,
          folder + u"/../"_qs + QFileInfo(folder).fileName() + u"/Pets.sqlite"_qs,
          linkedFolder + u"/Pets.sqlite"_qs, linkedFolder + u"/Pets.sqlite-journal"_qs, kept, hard, symbolic,
          usual, usual + u"-journal"_qs, opened})
        EXPECT_EQ(errorOf([&] { store().backup(path); }), refused) << path.toStdString();
    EXPECT_EQ(errorOf([&] { store().backup(elsewhere.path()); }),
              OMError::invalid(u"Please choose another place: this is a folder."_qs));
    EXPECT_EQ(store().digest(), digest);
    EXPECT_EQ(home.read(u"VLK Ormiva/Pets.sqlite"_qs), QByteArray("a damaged file"));
    EXPECT_EQ(made.folder.read(QFileInfo(kept).fileName()), QByteArray("kept"));
    // Beside the records any other name is free.
    store().backup(folder + u"/Ormiva backup 2026-11-21.ombackup"_qs);
}

TEST_F(Backups, HoldWhatIsOnlyInTheJournalOfAnOpenConnection) {
    store().db().exec(u"PRAGMA journal_mode = WAL"_qs);
    changeRecords();
    EXPECT_EQ(OMStore(write(u"b.ombackup"_qs)).digest(), store().digest());
}

TEST_F(Backups, AreInspectedBeforeAnythingElse) {
    const QString good = write(u"good.ombackup"_qs);
    EXPECT_EQ(refusedRestore(elsewhere.file(u"none"_qs)), badBackup(u"the file was not found."_qs));
    EXPECT_EQ(refusedRestore(elsewhere.write(u"text"_qs, QByteArray(5000, 't'))),
              badBackup(u"it is not a database file."_qs));
    EXPECT_EQ(refusedRestore(elsewhere.path()), badBackup(u"it is not a database file."_qs));
    EXPECT_EQ(refusedRestore(elsewhere.write(u"empty"_qs, {})),
              badBackup(u"it was not made by VLK Ormiva."_qs));
    EXPECT_EQ(refusedRestore(database(u"other"_qs, u"CREATE TABLE t (x)"_qs)),
              badBackup(u"it was not made by VLK Ormiva."_qs));
    const QString id = u"PRAGMA application_id = 1330468401;"_qs;
    for (const QString& version : {u"2"_qs, u"0"_qs, u"-1"_qs, u"100"_qs})
        EXPECT_EQ(refusedRestore(database(u"version "_qs + version,
                                          id + u"CREATE TABLE t (x); PRAGMA user_version = "_qs + version)),
                  badBackup(u"it was made by a newer version of the app."_qs));
    for (const QString& table : StoreSchema::tables()) {
        const QString path = elsewhere.file(u"without "_qs + table);
        ASSERT_TRUE(QFile::copy(good, path));
        SQLiteDB(path).exec(u"PRAGMA foreign_keys = OFF; DROP TABLE "_qs + table);
        EXPECT_EQ(refusedRestore(path), badBackup(u"the %1 table is missing."_qs.arg(table)));
    }
}

TEST_F(Backups, ThatAreDamagedAreRefused) {
    for (int i = 0; i < 300; ++i) {
        FeedingEntry feeding;
        feeding.petID = 1;
        feeding.food = QString(100, u'f');
        store().save(feeding);
    }
    const QString good = write(u"good.ombackup"_qs);
    QFile file(good);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    int refused = 0;
    for (qsizetype page = 1; page < whole.size() / 4096; ++page) {
        QByteArray spoiled = whole;
        spoiled.replace(page * 4096, 64, QByteArray(64, '\xff'));
        const auto error = refusedRestore(elsewhere.write(u"spoiled"_qs, spoiled));
        ASSERT_TRUE(error) << page;
        EXPECT_EQ(error->kind(), OMError::Case::BadBackup);
        refused += error == badBackup(u"the file is damaged."_qs);
    }
    EXPECT_GE(refused, 5);
    // A file that ends too early can't even be asked whose it is.
    EXPECT_EQ(refusedRestore(elsewhere.write(u"cut"_qs, whole.first(whole.size() / 2))),
              badBackup(u"it is not a database file."_qs));
}

TEST_F(Backups, OfFourGigabytesOfNothingAreRefused) {
    QFile file(elsewhere.file(u"sparse"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(4LL << 30));
    file.close();
    EXPECT_EQ(refusedRestore(file.fileName()), badBackup(u"it is not a database file."_qs));
}

TEST_F(Backups, AreInspectedThroughALink) {
    const QString good = write(u"good.ombackup"_qs);
    const QString link = elsewhere.file(u"link.ombackup"_qs);
    ASSERT_TRUE(QFile::link(good, link));
    EXPECT_EQ(OMStore::inspectBackup(link).value(u"pet"_qs), 3);
    ASSERT_TRUE(QFile::link(elsewhere.file(u"nowhere"_qs), elsewhere.file(u"broken.ombackup"_qs)));
    EXPECT_EQ(inspection(elsewhere.file(u"broken.ombackup"_qs)), badBackup(u"the file was not found."_qs));
}

TEST_F(Backups, MayBeTheLiveFile) {
    EXPECT_EQ(OMStore::inspectBackup(made.path()).value(u"weight"_qs), 18);
    const QString digest = store().digest();
    const QString safety = store().restore(made.path());
    EXPECT_EQ(store().digest(), digest);
    EXPECT_EQ(OMStore(safety).digest(), digest);
}

TEST_F(Backups, InWalModeAreReadWithTheirLogAndLeftAlone) {
    const QString path = write(u"wal.ombackup"_qs);
    {
        OMStore other(path);
        other.db().exec(u"PRAGMA journal_mode = WAL; PRAGMA wal_autocheckpoint = 0"_qs);
        Pet pet;
        pet.name = u"Only in the log"_qs;
        pet.speciesID = u"rabbit"_qs;
        other.save(pet);
        ASSERT_TRUE(QFile::copy(path, elsewhere.file(u"copy.ombackup"_qs)));
        ASSERT_TRUE(QFile::copy(path + u"-wal"_qs, elsewhere.file(u"copy.ombackup-wal"_qs)));
    }
    const QByteArray bytes = elsewhere.read(u"copy.ombackup"_qs);
    const QStringList before = names(elsewhere.path());
    EXPECT_EQ(OMStore::inspectBackup(elsewhere.file(u"copy.ombackup"_qs)).value(u"pet"_qs), 4);
    store().restore(elsewhere.file(u"copy.ombackup"_qs));
    EXPECT_EQ(store().pets().size(), 4);
    EXPECT_EQ(names(elsewhere.path()), before);
    EXPECT_TRUE(elsewhere.read(u"copy.ombackup"_qs) == bytes);
    EXPECT_EQ(names(made.folder.path()),
              QStringList({u"Before restore 2026-11-21 150509.sqlite"_qs, u"Pets.sqlite"_qs}));
}

TEST_F(Backups, ComeBackByARestore) {
    const QString path = write(u"b.ombackup"_qs);
    const QString digest = store().digest();
    const QByteArray bytes = elsewhere.read(u"b.ombackup"_qs);
    changeRecords();
    store().remove<Pet>(store().pets().last().id);
    const QString changed = store().digest();
    const int revision = store().revision();
    int told = 0;
    QObject::connect(&store(), &OMStore::revisionChanged, &store(), [&] { ++told; });

    const QString safety = store().restore(path);

    EXPECT_EQ(safety, made.folder.file(u"Before restore 2026-11-21 150509.sqlite"_qs));
    EXPECT_EQ(store().digest(), digest);
    EXPECT_EQ(store().revision(), revision + 1);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(OMStore::inspectBackup(safety).value(u"pet"_qs), 2);
    EXPECT_EQ(OMStore(safety).digest(), changed);
    EXPECT_TRUE(elsewhere.read(u"b.ombackup"_qs) == bytes);
    EXPECT_EQ(names(made.folder.path()),
              QStringList({u"Before restore 2026-11-21 150509.sqlite"_qs, u"Pets.sqlite"_qs}));
    // The store works on, at the same place.
    changeRecords();
    EXPECT_EQ(OMStore(made.path()).digest(), store().digest());
    EXPECT_EQ(store().db().scalarInt(u"PRAGMA foreign_keys"_qs), 1);
}

TEST_F(Backups, RestoredTwiceInASecondKeepTheLaterSafetyCopy) {
    const QString path = write(u"b.ombackup"_qs);
    const QString digest = store().digest();
    changeRecords();
    const QString first = store().restore(path);
    const QString second = store().restore(path);
    EXPECT_EQ(first, second);
    EXPECT_EQ(OMStore(second).digest(), digest);
}

TEST_F(Backups, AreNotOverwrittenByTheSafetyCopyOfTheirOwnRestore) {
    const QString path = write(u"b.ombackup"_qs);
    changeRecords();
    const QString changed = store().digest();
    const QString safety = store().restore(path);
    // Within the same second, back to what was before.
    const QString second = store().restore(safety);
    EXPECT_EQ(store().digest(), changed);
    EXPECT_EQ(QFileInfo(second).fileName(), u"Before restore 2026-11-21 150510.sqlite"_qs);
}

TEST_F(Backups, AreRestoredToWhereALinkLeads) {
    const QString path = write(u"b.ombackup"_qs);
    const QString link = elsewhere.file(u"Records.sqlite"_qs);
    ASSERT_TRUE(QFile::link(made.path(), link));
    OMStore linked(link);
    changeRecords();
    const QString safety = linked.restore(path);
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(QFileInfo(safety).path(), elsewhere.path());
    EXPECT_EQ(OMStore(made.path()).digest(), OMStore(path).digest());
    EXPECT_EQ(linked.digest(), OMStore(path).digest());
}

TEST_F(Backups, WithASiblingLeftBehindAreNotSpoiledByIt) {
    const QString path = write(u"b.ombackup"_qs);
    const QString digest = store().digest();
    changeRecords();
    for (const QString& suffix : {u"-journal"_qs, u"-wal"_qs, u"-shm"_qs})
        made.folder.write(u"Pets.sqlite"_qs + suffix, QByteArray(600, 'j'));
    store().restore(path);
    EXPECT_EQ(store().digest(), digest);
    EXPECT_EQ(names(made.folder.path()),
              QStringList({u"Before restore 2026-11-21 150509.sqlite"_qs, u"Pets.sqlite"_qs}));
}

} // namespace
} // namespace ormiva
