// What README and the map of the folders name must exist: paths, commands, targets.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

const QString root = QStringLiteral(ORMIVA_ROOT);

QString read(const QString& name) {
    QFile file(root + u'/' + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// What stands between back-quotes, and the targets of links and pictures.
QStringList named(const QString& document) {
    static const QRegularExpression quoted(QStringLiteral("`([^`\n]+)`|\\]\\(([^)]+)\\)"));
    QStringList names;
    auto matches = quoted.globalMatch(document);
    while (matches.hasNext()) {
        const auto match = matches.next();
        names.append(match.captured(match.capturedLength(1) > 0 ? 1 : 2));
    }
    return names;
}

bool isCommand(const QString& name) {
    return name.startsWith(QStringLiteral("./"));
}

/// A name is a path of the project when it has a slash, or the ending of a file that stands in the root.
bool isPath(const QString& name) {
    static const QRegularExpression path(
        QStringLiteral("^[A-Za-z0-9_.-]+(/[A-Za-z0-9_.*-]*)+$|^[A-Za-z0-9_-]+\\.(md|txt|json|ini)$"));
    return path.match(name).hasMatch();
}

class Documents : public ::testing::TestWithParam<const char*> {};

} // namespace

TEST_P(Documents, EveryPathExists) {
    int paths = 0;
    for (const QString& name : named(read(QString::fromLatin1(GetParam())))) {
        if (isCommand(name) || !isPath(name) || name.startsWith(QStringLiteral("build/")))
            continue;
        ++paths;
        const QDir folder(root + u'/' + QFileInfo(name).path());
        EXPECT_FALSE(name.endsWith(u'/') ? !QFileInfo(root + u'/' + name).isDir()
                                         : folder.entryList({QFileInfo(name).fileName()}).isEmpty())
            << name.toStdString();
    }
    EXPECT_GE(paths, 4);
}

TEST_P(Documents, EveryCommandCanBeRun) {
    int commands = 0;
    for (const QString& name : named(read(QString::fromLatin1(GetParam())))) {
        if (!isCommand(name))
            continue;
        ++commands;
        EXPECT_TRUE(QFileInfo(root + u'/' + name.section(u' ', 0, 0)).isExecutable()) << name.toStdString();
    }
    EXPECT_GE(commands, 2);
}

INSTANTIATE_TEST_SUITE_P(, Documents, ::testing::Values("README.md", "docs/ARCHITECTURE.md"),
                         [](const auto& test) { return test.index == 0 ? "Readme" : "Architecture"; });

TEST(ArchitectureMap, EveryTopLevelSourceFolderIsOnTheMap) {
    const QString map = read(QStringLiteral("docs/ARCHITECTURE.md"));
    const QStringList folders =
        QDir(root + QStringLiteral("/src")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    ASSERT_GT(folders.size(), 5);
    for (const QString& folder : folders)
        EXPECT_TRUE(map.contains(QStringLiteral("`src/%1/").arg(folder))) << folder.toStdString();
}
