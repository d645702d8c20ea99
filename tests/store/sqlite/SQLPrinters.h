#pragma once

#include "OMError.h"
#include "Printers.h"
#include "SQLRow.h"

#include <functional>

namespace ormiva {

inline void PrintTo(const SQLNull&, std::ostream* out) {
    *out << "null";
}

inline void PrintTo(const SQLValue& value, std::ostream* out) {
    *out << printable(value).toUtf8().constData();
}

inline void PrintTo(const SQLRow& row, std::ostream* out) {
    for (const auto& [column, value] : row.values)
        *out << column.toUtf8().constData() << '=' << printable(value).toUtf8().constData() << ' ';
}

inline void PrintTo(const OMError& error, std::ostream* out) {
    *out << error.description().toUtf8().constData();
}

namespace testing {

/// The OMError that `body` throws; absent when it finishes.
inline std::optional<OMError> errorOf(const std::function<void()>& body) {
    try {
        body();
    } catch (const OMError& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace testing
} // namespace ormiva
