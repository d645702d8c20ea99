#include "OMPrefs.h"

#include "Failure.h"
#include "PrefsInFile.h"
#include "Printers.h"

#include <cmath>

namespace ormiva {
namespace {

using testing::PrefsInFile;
using testing::TemporaryFolder;

class Prefs : public ::testing::Test {
protected:
    void storeUnit(const QString& unit) { OMPrefs::setValue(OMPrefs::weightUnitKey, unit); }
    /// The preferences as a file that somebody else wrote.
    void readFile(const QByteArray& lines) {
        OMPrefs::useFile(m_folder.write(QStringLiteral("x.ini"), "[General]\n" + lines));
    }

    PrefsInFile m_prefs;
    TemporaryFolder m_folder;
};

TEST_F(Prefs, HaveTheirKeys) {
    EXPECT_EQ(OMPrefs::weightUnitKey, QStringLiteral("om.weightUnit"));
    EXPECT_EQ(OMPrefs::remindersKey, QStringLiteral("om.reminders"));
    EXPECT_EQ(OMPrefs::welcomedKey, QStringLiteral("om.welcomed"));
}

TEST_F(Prefs, HaveDefaults) {
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("g"));
    EXPECT_TRUE(OMPrefs::remindersOn());
    EXPECT_FALSE(OMPrefs::value(OMPrefs::weightUnitKey).isValid());
}

TEST_F(Prefs, GiveTheStoredUnitAtOnceAndAfterAStart) {
    storeUnit(QStringLiteral("oz"));
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("oz"));
    m_prefs.startAgain();
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("oz"));
}

TEST_F(Prefs, KeepWhetherRemindersAreOnAcrossAStart) {
    OMPrefs::setValue(OMPrefs::remindersKey, false);
    EXPECT_FALSE(OMPrefs::remindersOn());
    m_prefs.startAgain();
    EXPECT_FALSE(OMPrefs::remindersOn());
    OMPrefs::setValue(OMPrefs::remindersKey, true);
    EXPECT_TRUE(OMPrefs::remindersOn());
}

TEST_F(Prefs, ReadRemindersAsOnUnlessExactlyFalseIsStored) {
    for (const char* on :
         {"true", "yes", "0", "1", "no", "FALSE", "False", "falsehood", "", "off", "\"false, true\""}) {
        readFile(QByteArray("om.reminders=") + on + '\n');
        EXPECT_TRUE(OMPrefs::remindersOn()) << on;
    }
    readFile("om.reminders=false\n");
    EXPECT_FALSE(OMPrefs::remindersOn());
}

TEST_F(Prefs, GiveTheDefaultAgainOnceAValueIsRemoved) {
    storeUnit(QStringLiteral("lb"));
    OMPrefs::remove(OMPrefs::weightUnitKey);
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("g"));
    m_prefs.startAgain();
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("g"));
}

TEST_F(Prefs, TellOfEachChangeByItsKey) {
    QStringList keys;
    const auto connection = QObject::connect(&OMPrefs::notifier(), &PrefsNotifier::changed,
                                             [&](const QString& key) { keys.append(key); });
    storeUnit(QStringLiteral("oz"));
    OMPrefs::setValue(OMPrefs::remindersKey, false);
    OMPrefs::remove(OMPrefs::weightUnitKey);
    QObject::disconnect(connection);
    EXPECT_EQ(keys, QStringList({QStringLiteral("om.weightUnit"), QStringLiteral("om.reminders"),
                                 QStringLiteral("om.weightUnit")}));
}

TEST_F(Prefs, ThatCannotBeWrittenSayWhereAndLastForTheRun) {
    const QString path = m_folder.write(QStringLiteral("file"), "in the way") + QStringLiteral("/prefs.ini");
    OMPrefs::useFile(path);
    QStringList keys;
    const auto connection = QObject::connect(&OMPrefs::notifier(), &PrefsNotifier::changed,
                                             [&](const QString& key) { keys.append(key); });
    QString told;
    try {
        storeUnit(QStringLiteral("oz"));
    } catch (const FileError& error) {
        told = error.description();
    }
    QObject::disconnect(connection);
    EXPECT_EQ(told, QStringLiteral("Your preferences could not be saved in “%1”.").arg(path));
    EXPECT_EQ(OMPrefs::weightUnit(), QStringLiteral("oz"));
    EXPECT_EQ(keys, QStringList({QStringLiteral("om.weightUnit")}));
}

TEST_F(Prefs, TellOfEveryWriteThatFails) {
    OMPrefs::useFile(m_folder.write(QStringLiteral("file"), "in the way") + QStringLiteral("/prefs.ini"));
    EXPECT_THROW(storeUnit(QStringLiteral("oz")), FileError);
    EXPECT_THROW(storeUnit(QStringLiteral("lb")), FileError);
    EXPECT_THROW(OMPrefs::remove(OMPrefs::weightUnitKey), FileError);
}

TEST_F(Prefs, ShowGramsWithOneDecimalBelowAKilogram) {
    EXPECT_EQ(OMPrefs::weightText(421), QStringLiteral("421.0 g"));
    EXPECT_EQ(OMPrefs::weightText(0), QStringLiteral("0.0 g"));
    EXPECT_EQ(OMPrefs::weightText(12.34), QStringLiteral("12.3 g"));
    EXPECT_EQ(OMPrefs::weightText(999.94), QStringLiteral("999.9 g"));
}

TEST_F(Prefs, ChooseTheFormByTheRawNumberOfGrams) {
    EXPECT_EQ(OMPrefs::weightText(999.95), QStringLiteral("1000.0 g"));
    EXPECT_EQ(OMPrefs::weightText(999.999), QStringLiteral("1000.0 g"));
    EXPECT_EQ(OMPrefs::weightText(1000), QStringLiteral("1000 g (1.00 kg)"));
}

TEST_F(Prefs, ShowKilogramsBesideGramsFromAThousandOn) {
    EXPECT_EQ(OMPrefs::weightText(1250), QStringLiteral("1250 g (1.25 kg)"));
    EXPECT_EQ(OMPrefs::weightText(499999.9), QStringLiteral("500000 g (500.00 kg)"));
    EXPECT_EQ(OMPrefs::weightText(2345.6), QStringLiteral("2346 g (2.35 kg)"));
}

TEST_F(Prefs, ShowOunces) {
    storeUnit(QStringLiteral("oz"));
    EXPECT_EQ(OMPrefs::weightText(28.349523125), QStringLiteral("1.00 oz"));
    EXPECT_EQ(OMPrefs::weightText(421), QStringLiteral("14.85 oz"));
    EXPECT_EQ(OMPrefs::weightText(5000), QStringLiteral("176.37 oz"));
}

TEST_F(Prefs, ShowPounds) {
    storeUnit(QStringLiteral("lb"));
    EXPECT_EQ(OMPrefs::weightText(453.59237), QStringLiteral("1.000 lb"));
    EXPECT_EQ(OMPrefs::weightText(421), QStringLiteral("0.928 lb"));
    EXPECT_EQ(OMPrefs::weightText(5000), QStringLiteral("11.023 lb"));
}

TEST_F(Prefs, ShowEveryOtherStoredUnitAsGrams) {
    for (const char* unit : {"kg", "g", "stone", "", "OZ", "Lb", "oz "}) {
        storeUnit(QString::fromLatin1(unit));
        EXPECT_EQ(OMPrefs::weightUnit(), QString::fromLatin1(unit));
        EXPECT_EQ(OMPrefs::weightText(421), QStringLiteral("421.0 g")) << unit;
        EXPECT_EQ(OMPrefs::grams(5), 5) << unit;
    }
}

TEST_F(Prefs, ConvertFromAnExplicitUnit) {
    EXPECT_EQ(OMPrefs::grams(1, QStringLiteral("oz")), 28.349523125);
    EXPECT_EQ(OMPrefs::grams(1, QStringLiteral("lb")), 453.59237);
    EXPECT_EQ(OMPrefs::grams(1, QStringLiteral("kg")), 1000);
    EXPECT_EQ(OMPrefs::grams(5, QStringLiteral("g")), 5);
    EXPECT_EQ(OMPrefs::grams(5, QStringLiteral("stone")), 5);
    EXPECT_EQ(OMPrefs::grams(5, QStringLiteral("")), 5);
    EXPECT_EQ(OMPrefs::grams(-2, QStringLiteral("kg")), -2000);
}

TEST_F(Prefs, ConvertFromTheCurrentUnitWhenNoneIsGiven) {
    EXPECT_EQ(OMPrefs::grams(2), 2);
    storeUnit(QStringLiteral("oz"));
    EXPECT_EQ(OMPrefs::grams(2), 2 * 28.349523125);
    storeUnit(QStringLiteral("lb"));
    EXPECT_EQ(OMPrefs::grams(2), 2 * 453.59237);
}

TEST_F(Prefs, PreferAnExplicitUnitToTheStoredOne) {
    storeUnit(QStringLiteral("lb"));
    EXPECT_EQ(OMPrefs::grams(3, QStringLiteral("g")), 3);
    EXPECT_EQ(OMPrefs::grams(3, QStringLiteral("oz")), 3 * 28.349523125);
    EXPECT_EQ(OMPrefs::grams(3, QStringLiteral("kg")), 3000);
}

TEST_F(Prefs, ShowWhatIsNoNumberWithoutFailing) {
    EXPECT_EQ(OMPrefs::weightText(std::nan("")), QStringLiteral("nan g"));
}

} // namespace
} // namespace ormiva
