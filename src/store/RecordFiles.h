#pragma once

#include "Files.h"

#include <QString>
#include <QStringList>

/// The files that hold a keeper's records. Nothing that is written for the keeper may take their place.
namespace ormiva::RecordFiles {

/// What SQLite keeps beside a database: "-journal", "-wal", "-shm".
const QStringList& siblingSuffixes();

/// Throws OMError::invalid when something at `destination` must not be replaced: a folder, the records at
/// `storePath` or at their usual place, a sibling of theirs, or a copy that was kept of them ("Before restore
/// …", "Pets (opened …)"), by whatever name or link.
void refuseAsDestination(const QString& destination, const QString& storePath, const Files& files = Files());

} // namespace ormiva::RecordFiles
