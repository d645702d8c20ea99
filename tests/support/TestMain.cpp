// The main of every test executable: a home and a content folder of the run's own, and the locale that was
// asked for.

#include "ContentFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>
#include <cstring>
#include <optional>

namespace {

constexpr const char* homeVariable = "ORMIVA_TEST_HOME";

/// In memory where that is possible: most of the time goes into waiting for the disk otherwise.
QString homeTemplate() {
    const QString memory = QStringLiteral("/dev/shm");
    const QString folder = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    return folder + QStringLiteral("/ormiva-test-XXXXXX");
}

/// The child of a death test finds its parent's home and leaves it alone: it would never get to remove one.
void useHome(const QString& home) {
    qputenv(homeVariable, home.toUtf8());
    for (const char* variable :
         {"HOME", "TMPDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.toUtf8());
    qputenv("OM_DATA_DIR", (home + QStringLiteral("/content")).toUtf8());
    qunsetenv("OM_DB_PATH");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Under a name that isn't installed everything would silently run in the C locale.
bool localeIsActive() {
    if (!std::setlocale(LC_ALL, ""))
        return false;
    const char* expected = qgetenv("LC_ALL").startsWith("de_DE") ? "," : ".";
    return std::strcmp(std::localeconv()->decimal_point, expected) == 0;
}

} // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    std::optional<QTemporaryDir> ownHome;
    if (qEnvironmentVariableIsEmpty(homeVariable)) {
        ownHome.emplace(homeTemplate());
        useHome(ownHome->path());
        ormiva::testing::writeExampleContent(ownHome->path() + QStringLiteral("/content"));
    }
    if (!localeIsActive()) {
        std::fprintf(stderr, "The locale \"%s\" is not active.\n", qgetenv("LC_ALL").constData());
        return 1;
    }
    const QGuiApplication application(argc, argv);
    if (::testing::UnitTest::GetInstance()->total_test_count() == 0) {
        std::fprintf(stderr, "There is no test in here.\n");
        return 1;
    }
    return RUN_ALL_TESTS();
}
