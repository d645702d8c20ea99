#include "Facts.h"

#include "OMInfo.h"

namespace ormiva {

QString Facts::appName() const {
    return OMInfo::appName;
}
QString Facts::creditLine() const {
    return OMInfo::creditLine;
}
QString Facts::notAVet() const {
    return OMInfo::notAVet;
}
QString Facts::doseNote() const {
    return OMInfo::doseNote;
}

} // namespace ormiva
