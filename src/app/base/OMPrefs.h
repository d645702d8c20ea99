#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include <optional>

namespace ormiva {

/// Tells of every change of a preference, so that what shows one can follow it.
class PrefsNotifier final : public QObject {
    Q_OBJECT
Q_SIGNALS:
    void changed(const QString& key);
};

/// The user's preferences, and the weight units that hang on them. Nothing is cached: each read gives the
/// present value. All weights of the system are grams; units exist only here, between the store and the eye.
namespace OMPrefs {

inline const QString weightUnitKey = QStringLiteral("om.weightUnit");
inline const QString remindersKey = QStringLiteral("om.reminders");
/// Reserved; nothing reads or writes it.
inline const QString welcomedKey = QStringLiteral("om.welcomed");

/// Keeps the preferences in the INI file at `path` from now on. Without this call they are in
/// "com.ventrel.ormiva.ini" in the user's configuration folder.
void useFile(const QString& path);

/// The stored value as it stands, or an invalid one when there is none.
QVariant value(const QString& key);
/// Stores a value and writes it to disk. Throws FileError when that fails; the value then lasts for this run.
void setValue(const QString& key, const QVariant& value);
/// Removes a value, like `setValue`.
void remove(const QString& key);
PrefsNotifier& notifier();

/// The stored unit ("g" when there is none); any text but "oz" and "lb" behaves as "g".
QString weightUnit();
/// False only when exactly "false" is stored.
bool remindersOn();

/// A weight for the eye, in the current unit: "421.0 g", "1250 g (1.25 kg)", "14.85 oz", "0.928 lb".
QString weightText(double grams);
/// Grams from a number in `unit`, or in the current unit when absent. "oz", "lb" and an explicit "kg" are
/// converted; in every other unit the number is grams already.
double grams(double value, const std::optional<QString>& unit = {});

} // namespace OMPrefs

} // namespace ormiva
