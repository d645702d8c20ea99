#include "OpenerGate.h"

#include "Opener.h"

namespace ormiva {

bool OpenerGate::open(const QString& address) const {
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty())
        return false;
    Opener::open(url);
    return true;
}

} // namespace ormiva
