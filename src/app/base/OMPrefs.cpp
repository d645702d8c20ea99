#include "OMPrefs.h"

#include "Failure.h"
#include "Numbers.h"

#include <QSettings>
#include <QStandardPaths>

#include <memory>

namespace ormiva::OMPrefs {

namespace {

// International avoirdupois pound of 1959 (0.45359237 kg) and its sixteenth.
constexpr double gramsPerPound = 453.59237;
constexpr double gramsPerOunce = 28.349523125;

std::unique_ptr<QSettings>& settings() {
    static std::unique_ptr<QSettings> current =
        std::make_unique<QSettings>(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                        QStringLiteral("/com.ventrel.ormiva.ini"),
                                    QSettings::IniFormat);
    return current;
}

void announceAndWrite(const QString& key) {
    settings()->sync();
    const bool written = settings()->status() == QSettings::NoError;
    const QString path = settings()->fileName();
    if (!written) // A failed status never clears by itself.
        settings() = std::make_unique<QSettings>(path, QSettings::IniFormat);
    Q_EMIT notifier().changed(key);
    if (!written)
        throw FileError(QStringLiteral("Your preferences could not be saved in “%1”.").arg(path));
}

} // namespace

void useFile(const QString& path) {
    settings() = std::make_unique<QSettings>(path, QSettings::IniFormat);
}

QVariant value(const QString& key) {
    return settings()->value(key);
}

void setValue(const QString& key, const QVariant& value) {
    settings()->setValue(key, value);
    announceAndWrite(key);
}

void remove(const QString& key) {
    settings()->remove(key);
    announceAndWrite(key);
}

PrefsNotifier& notifier() {
    static PrefsNotifier one;
    return one;
}

QString weightUnit() {
    const QVariant stored = value(weightUnitKey);
    return stored.isValid() ? stored.toString() : QStringLiteral("g");
}

bool remindersOn() {
    return value(remindersKey).toString() != QStringLiteral("false");
}

QString weightText(double grams) {
    const QString unit = weightUnit();
    if (unit == QStringLiteral("oz"))
        return Numbers::fixed(grams / gramsPerOunce, 2) + QStringLiteral(" oz");
    if (unit == QStringLiteral("lb"))
        return Numbers::fixed(grams / gramsPerPound, 3) + QStringLiteral(" lb");
    if (grams >= 1000)
        return QStringLiteral("%1 g (%2 kg)").arg(Numbers::fixed(grams, 0), Numbers::fixed(grams / 1000, 2));
    return Numbers::fixed(grams, 1) + QStringLiteral(" g");
}

double grams(double value, const std::optional<QString>& unit) {
    const QString from = unit.value_or(weightUnit());
    if (from == QStringLiteral("oz"))
        return value * gramsPerOunce;
    if (from == QStringLiteral("lb"))
        return value * gramsPerPound;
    if (unit == QStringLiteral("kg"))
        return value * 1000;
    return value;
}

} // namespace ormiva::OMPrefs
