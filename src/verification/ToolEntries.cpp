#include "ToolEntries.h"

#include "CareSheetPDF.h"
#include "OMSelfTest.h"

#include <QGuiApplication>

#include <array>
#include <cstdio>
#include <functional>

namespace ormiva {

namespace {

struct ToolEntry {
    QStringView flag;
    bool takesPath;
    int (*run)(QStringView flag, const QStringList& arguments);
};

constexpr int statusNotBuilt = 70; // EX_SOFTWARE of sysexits.h

int notBuiltYet(QStringView flag, const QStringList&) {
    std::printf("%s is not part of this version of Ormiva yet.\n", flag.toUtf8().constData());
    return std::fflush(stdout) == 0 ? statusNotBuilt : 1;
}

/// Runs a tool with an application object of its own, which needs no display.
template <typename Application>
int withApplication(const std::function<int()>& tool) {
    if (QCoreApplication::instance())
        return tool();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static std::array<char, 7> name = {"ormiva"};
    static std::array<char*, 2> arguments = {name.data(), nullptr};
    int count = 1;
    const Application application(count, arguments.data());
    return tool();
}

int runChild(QStringView, const QStringList& arguments) {
    return withApplication<QCoreApplication>([&] { return OMSelfTest::handleChild(arguments).value_or(1); });
}

int writeExample(QStringView, const QStringList& arguments) {
    return withApplication<QCoreApplication>(
        [&] { return CareSheetPDF::handleExample(arguments).value_or(1); });
}

int runSelfTest(QStringView, const QStringList&) {
    return withApplication<QGuiApplication>([] { return OMSelfTest::run(); });
}

/// In the order in which they are asked: the first whose flag is given decides.
constexpr std::array<ToolEntry, 6> entries = {{
    {u"--om-child-write", true, runChild},
    {u"--om-child-read", true, runChild},
    {u"--om-child-prefs", false, runChild},
    {u"--om-snapshots", true, notBuiltYet},
    {u"--om-example-care-sheet", true, writeExample},
    {u"--selftest", false, runSelfTest},
}};

} // namespace

std::optional<int> runTool(const QStringList& arguments) {
    for (const ToolEntry& entry : entries) {
        const qsizetype at = arguments.indexOf(entry.flag);
        if (at >= 0 && (!entry.takesPath || at + 1 < arguments.size()))
            return entry.run(entry.flag, arguments);
    }
    return std::nullopt;
}

} // namespace ormiva
