#pragma once

#include "Failure.h"

#include <QString>

namespace ormiva {

/// The program's own error: a case and, but for `NotFound`, a payload. Two are equal when both are.
class OMError final : public Failure {
public:
    enum class Case { Database, Invalid, BadBackup, NotFound };

    /// `detail` is SQLite's own sentence.
    static OMError database(QString detail) { return {Case::Database, std::move(detail)}; }
    /// A record that failed validation; `message` is shown word for word.
    static OMError invalid(QString message) { return {Case::Invalid, std::move(message)}; }
    static OMError badBackup(QString reason) { return {Case::BadBackup, std::move(reason)}; }
    static OMError notFound() { return {Case::NotFound, {}}; }

    Case kind() const { return m_case; }
    const QString& payload() const { return m_payload; }
    QString description() const override;

    friend bool operator==(const OMError& a, const OMError& b) {
        return a.m_case == b.m_case && a.m_payload == b.m_payload;
    }

private:
    OMError(Case kind, QString payload)
        : m_case(kind)
        , m_payload(std::move(payload)) {}

    Case m_case;
    QString m_payload;
};

} // namespace ormiva
