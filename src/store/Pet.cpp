#include "Pet.h"

#include "CareLibrary.h"

namespace ormiva {

std::optional<Species> Pet::species() const {
    return CareLibrary::shared().species(speciesID);
}

QString Pet::ageText() const {
    if (!birthday)
        return {};
    const auto [years, months] = UserCalendar::age(birthday->date(), UserCalendar::now());
    if (years < 1 && months < 1)
        return QStringLiteral("under 1 month");
    if (years < 1)
        return months == 1 ? QStringLiteral("1 month") : QStringLiteral("%1 months").arg(months);
    const QString inYears = QStringLiteral("%1 yr").arg(years);
    return months < 1 ? inYears : inYears + QStringLiteral(" %1 mo").arg(months);
}

const QStringList& Pet::columns() {
    static const QStringList names = {
        QStringLiteral("name"),     QStringLiteral("species_id"), QStringLiteral("sex"),
        QStringLiteral("birthday"), QStringLiteral("acquired"),   QStringLiteral("photo"),
        QStringLiteral("markings"), QStringLiteral("enclosure"),  QStringLiteral("notes"),
    };
    return names;
}

Pet Pet::fromRow(const SQLRow& row) {
    return {
        .id = row.integer(QStringLiteral("id")).value_or(0),
        .name = row.str(QStringLiteral("name")),
        .speciesID = row.str(QStringLiteral("species_id")),
        .sex = row.str(QStringLiteral("sex")),
        .birthday = Records::optionalDay(row, QStringLiteral("birthday")),
        .acquired = Records::optionalDay(row, QStringLiteral("acquired")),
        .photo = row.data(QStringLiteral("photo")),
        .markings = row.str(QStringLiteral("markings")),
        .enclosure = row.str(QStringLiteral("enclosure")),
        .notes = row.str(QStringLiteral("notes")),
    };
}

SQLArguments Pet::columnValues() const {
    return {Records::trimmed(name),
            speciesID,
            sex,
            Records::written(birthday),
            Records::written(acquired),
            photo,
            markings,
            enclosure,
            notes};
}

void Pet::validate(OMStore&) const {
    Records::require(!Records::isBlank(name), QStringLiteral("Please give your pet a name."));
    Records::require(species().has_value(), QStringLiteral("Please choose a species."));
    Records::require(!birthday || *birthday <= OMDay::today(),
                     QStringLiteral("The birthday can't be in the future."));
}

} // namespace ormiva
