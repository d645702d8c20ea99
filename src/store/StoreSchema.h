#pragma once

#include <QString>
#include <QStringList>

/// The form of the records' file.
namespace ormiva::StoreSchema {

/// "OMV1" read as a big-endian number.
constexpr qint32 applicationID = 0x4F4D5631;
constexpr int version = 1;

/// In the order in which they are counted and hashed.
const QStringList& tables();
/// Makes all tables and indexes in an empty file.
const QString& sql();

} // namespace ormiva::StoreSchema
