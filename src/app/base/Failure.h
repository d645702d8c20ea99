#pragma once

#include <QString>

#include <exception>
#include <utility>

namespace ormiva {

/// What every failure of the program is thrown as: something that can be told to the user in one sentence.
class Failure : public std::exception {
public:
    /// A whole sentence, ready for the user.
    virtual QString description() const = 0;
    const char* what() const noexcept override { return "ormiva::Failure"; }
};

/// A failure of the file system, told in the system's own words.
class FileError final : public Failure {
public:
    explicit FileError(QString sentence)
        : m_sentence(std::move(sentence)) {}
    /// The sentence for `doing` (as in "could not create the folder"), `path` and the errno value `code`.
    static FileError fromErrno(const QString& doing, const QString& path, int code);

    QString description() const override { return m_sentence; }

private:
    QString m_sentence;
};

} // namespace ormiva
