#include "Failure.h"

#include <system_error>

namespace ormiva {

FileError FileError::fromErrno(const QString& doing, const QString& path, int code) {
    const QString reason = QString::fromLocal8Bit(std::generic_category().message(code).c_str());
    return FileError(QStringLiteral("%1 “%2”: %3.").arg(doing, path, reason));
}

} // namespace ormiva
