#pragma once

#include "OMStore.h"
#include "SQLPrinters.h"
#include "TemporaryFolder.h"

namespace ormiva {

inline void PrintTo(const OMDay& day, std::ostream* out) {
    *out << day.iso().toUtf8().constData();
}

template <OMRecord T>
void PrintTo(const T& record, std::ostream* out) {
    *out << T::table().toUtf8().constData() << ' ' << record.id;
    const SQLArguments values = record.columnValues();
    for (qsizetype i = 0; i < values.size(); ++i)
        *out << ' ' << T::columns().at(i).toUtf8().constData() << '='
             << printable(values.at(i).value()).toUtf8().constData();
}

namespace testing {

/// A new store in a folder of its own.
class MadeStore {
public:
    QString path() const { return folder.file(QStringLiteral("Pets.sqlite")); }
    template <OMRecord T>
    T saved(T record) {
        store.save(record);
        return record;
    }
    Pet addPet(const QString& name = QStringLiteral("Gex")) {
        Pet pet;
        pet.name = name;
        pet.speciesID = QStringLiteral("leopard-gecko");
        return saved(pet);
    }
    /// All rows of a table as they lie in the file.
    QList<SQLRow> rows(const QString& table) {
        return store.db().query(QStringLiteral("SELECT * FROM ") + table);
    }

    TemporaryFolder folder;
    OMStore store{path()};
};

/// A row as the store would read it.
inline SQLRow rowOf(std::initializer_list<std::pair<const QString, SQLValue>> values) {
    return {values};
}

/// The sentence with which a record is refused; empty when it is valid. Any other error fails the test.
template <OMRecord T>
QString refusal(const T& record, OMStore& store) {
    const auto error = errorOf([&] { record.validate(store); });
    if (!error)
        return {};
    EXPECT_EQ(error->kind(), OMError::Case::Invalid);
    return error->payload();
}

} // namespace testing
} // namespace ormiva
