#include "SQLValue.h"

#include "Numbers.h"

namespace ormiva {

namespace {

struct Printer {
    QString operator()(qint64 value) const { return QStringLiteral("int(%1)").arg(value); }
    QString operator()(double value) const {
        return QStringLiteral("real(%1)").arg(Numbers::shortest(value));
    }
    QString operator()(QString value) const {
        value.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
        return QStringLiteral("text(\"") + value + QStringLiteral("\")");
    }
    QString operator()(const QByteArray& value) const {
        return QStringLiteral("blob(%1 bytes)").arg(value.size());
    }
    QString operator()(SQLNull) const { return QStringLiteral("null"); }
};

} // namespace

QString printable(const SQLValue& value) {
    return std::visit(Printer(), value);
}

} // namespace ormiva
