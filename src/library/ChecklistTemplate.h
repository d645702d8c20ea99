#pragma once

#include "Species.h"

#include <QList>
#include <QString>

#include <optional>

/// The daily checklist of an enclosure, made from the animal's group.
namespace ormiva::ChecklistTemplate {

struct Item {
    QString text;                   ///< also the identity of its tick in the records, so it never changes
    std::optional<CareField> field; ///< the section with the numbers to check against

    friend bool operator==(const Item&, const Item&) = default;
};

/// The items for the species' group, in the order in which they are checked.
const QList<Item>& items(const Species& species);

/// A section of a care sheet on one line: its lines without bullets, joined by " · ", or by a blank after a
/// colon.
QString gist(const QString& text);

} // namespace ormiva::ChecklistTemplate
