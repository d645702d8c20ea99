#include "Printers.h"

void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toUtf8().constData() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << "bytes " << bytes.toHex(' ').constData();
}

void PrintTo(const QColor& color, std::ostream* out) {
    *out << color.name(QColor::HexArgb).toUtf8().constData();
}

void PrintTo(const QUrl& address, std::ostream* out) {
    *out << address.toString().toUtf8().constData();
}
