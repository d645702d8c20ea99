#include "CareLines.h"

#include <QStringList>

namespace ormiva {

QList<CareLine> careLines(const QString& text) {
    QList<CareLine> lines;
    for (const QString& line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(u'•'))
            lines.append({trimmed.mid(1).trimmed(), true});
        else
            lines.append({line, false});
    }
    return lines;
}

} // namespace ormiva
