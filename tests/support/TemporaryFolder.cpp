#include "TemporaryFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace ormiva::testing {

TemporaryFolder::TemporaryFolder() {
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
}

QString TemporaryFolder::write(const QString& name, const QByteArray& bytes) const {
    QString path = file(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !target.flush())
        throw std::runtime_error("could not write a file of the test");
    return path;
}

QByteArray TemporaryFolder::read(const QString& name) const {
    QFile source(file(name));
    if (!source.open(QIODevice::ReadOnly))
        throw std::runtime_error("could not read a file of the test");
    return source.readAll();
}

} // namespace ormiva::testing
