#include "Opener.h"

#include <QDesktopServices>

namespace ormiva::Opener {

std::function<void(const QUrl&)> failed;

std::function<void(const QUrl&)> open = [](const QUrl& address) {
    if (!QDesktopServices::openUrl(address) && failed)
        failed(address);
};

} // namespace ormiva::Opener
