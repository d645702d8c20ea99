#pragma once

#include <QSet>
#include <QString>

/// Faults that a self-test can be built with, to prove that its checks notice them: "redflag", "dose",
/// "missing-source" and "search". None is active unless a build fills the set.
namespace ormiva::OMMutation {

inline QSet<QString> active;

inline bool on(const QString& name) {
    return active.contains(name);
}

} // namespace ormiva::OMMutation
