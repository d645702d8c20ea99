#include "VLKAbout.h"

#include "UserCalendar.h"

namespace ormiva::VLKAbout {

namespace {

QString versionText(const QString& release, const QString& build) {
    const QString text = QStringLiteral("Version ") + (release.isEmpty() ? QStringLiteral("1.0") : release);
    return build.isEmpty() ? text : text + QStringLiteral(" (%1)").arg(build);
}

} // namespace

QString version() {
    return versionText(QStringLiteral(ORMIVA_VERSION), QStringLiteral(ORMIVA_BUILD));
}

QString closingLine() {
    return QStringLiteral("© %1 Ventrel (VLK)").arg(UserCalendar::fields(UserCalendar::now()).year);
}

void show() {
    if (opener)
        opener();
}

} // namespace ormiva::VLKAbout
