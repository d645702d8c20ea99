#pragma once

#include <gtest/gtest.h>

#include <QByteArray>
#include <QColor>
#include <QString>
#include <QUrl>

#include <ostream>

// How failed comparisons of Qt's values print. In the values' own namespace, where GoogleTest looks for them.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(const QColor& color, std::ostream* out);
void PrintTo(const QUrl& address, std::ostream* out);
