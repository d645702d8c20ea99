#include "AboutForQml.h"

#include "OMInfo.h"
#include "VLKAbout.h"

namespace ormiva {

AboutForQml::AboutForQml() {
    VLKAbout::opener = [this] { Q_EMIT requested(); };
}

AboutForQml::~AboutForQml() {
    VLKAbout::opener = nullptr;
}

QString AboutForQml::version() const {
    return VLKAbout::version();
}
QStringList AboutForQml::extraLines() const {
    return VLKAbout::extraLines;
}
QString AboutForQml::website() const {
    return OMInfo::website.toString();
}
QString AboutForQml::websiteName() const {
    return OMInfo::website.host();
}
QString AboutForQml::closingLine() const {
    return VLKAbout::closingLine();
}

void AboutForQml::show() const {
    VLKAbout::show();
}

} // namespace ormiva
