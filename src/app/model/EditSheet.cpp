#include "EditSheet.h"

namespace ormiva {

QString identity(const EditSheet& sheet) {
    static const QString letters = QStringLiteral("pwfsvmr");
    const qint64 id = std::visit([](const auto& record) { return record.id; }, sheet);
    return letters.at(static_cast<qsizetype>(sheet.index())) + QString::number(id);
}

QVariant recordOf(const EditSheet& sheet) {
    return std::visit([](const auto& record) { return QVariant::fromValue(record); }, sheet);
}

} // namespace ormiva
