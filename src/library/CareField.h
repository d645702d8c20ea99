#pragma once

#include <QList>
#include <QString>

#include <array>

namespace ormiva {

/// The 22 sections of a care sheet, in declared order.
enum class CareField {
    Lifespan,
    Size,
    Enclosure,
    Substrate,
    Hides,
    Temperature,
    Humidity,
    Lighting,
    Diet,
    Treats,
    Avoid,
    Schedule,
    Handling,
    Enrichment,
    Grooming,
    Normal,
    Warning,
    Illnesses,
    RedFlags,
    NotEating,
    FoodChange,
    Legal,
};

struct CareFieldInfo {
    CareField field;
    QString id; ///< the key in a species' `fields`
    QString title;
    QString symbol;
};

const std::array<CareFieldInfo, 22>& allCareFields();
const CareFieldInfo& info(CareField field);

/// A titled group of fields of the care sheet. The order inside a section is that of the sheet, not the
/// declared one.
struct CareSection {
    QString title;
    QList<CareField> fields;
};
const QList<CareSection>& careSections();

} // namespace ormiva
