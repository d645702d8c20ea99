#include "OMColors.h"

namespace ormiva {

QColor OMColors::urgency(Urgency urgency) {
    switch (urgency) {
    case Urgency::Monitor:
        return monitor();
    case Urgency::Soon:
        return soon();
    case Urgency::Emergency:
        return emergency();
    }
    Q_UNREACHABLE();
}

} // namespace ormiva
