#include "OMError.h"

namespace ormiva {

QString OMError::description() const {
    switch (m_case) {
    case Case::Database:
        return QStringLiteral("The database reported a problem: ") + m_payload;
    case Case::Invalid:
        return m_payload;
    case Case::BadBackup:
        return QStringLiteral("This file can't be restored: ") + m_payload;
    case Case::NotFound:
        return QStringLiteral("That record no longer exists.");
    }
    Q_UNREACHABLE();
}

} // namespace ormiva
