#include "ProgramIcon.h"

#include "AppIcon.h"

#include <algorithm>

namespace ormiva {

void ProgramIcon::paint(QPainter* painter) {
    AppIcon::paint(*painter, std::min(width(), height()));
}

} // namespace ormiva
