// The self-test's section on the look, the zoom, the manual and the maker's wording.

#include "CareLibrary.h"
#include "Failure.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "OMSelfTest.h"
#include "OMThemes.h"
#include "SelfTestSections.h"
#include "VLKAbout.h"
#include "VLKHelp.h"
#include "VLKThemes.h"
#include "VLZoom.h"

#include <algorithm>

namespace ormiva::OMSelfTest {

namespace {

void checkThemes(OMTestRun& run) {
    run.check(VLKThemes::builtIn().size() == 6 && VLKThemes::all().size() == 8,
              QStringLiteral("there are six themes, and two of the habitat"));
    OMPrefs::remove(VLKThemes::key);
    run.check(VLKThemes::current().id == OMThemes::canopyID,
              QStringLiteral("the default look is Rainforest Canopy"));
    const bool readable = std::ranges::all_of(OMThemes::extras(), [](const VLKTheme& theme) {
        const auto contrast = VLKTheme::RGB::contrast;
        return contrast(theme.text, theme.bg) >= 7 && contrast(theme.text, theme.panelTop) >= 4.5 &&
               contrast(theme.dim, theme.panelBottom) >= 4.5 && contrast({1, 1, 1}, theme.accent) >= 4.5;
    });
    run.check(readable, QStringLiteral("the habitat themes can be read well"));
    QStringList lost;
    for (const VLKTheme& theme : VLKThemes::all()) {
        VLKThemes::setCurrentID(theme.id);
        if (VLKThemes::current().id != theme.id)
            lost.append(theme.id);
    }
    run.check(lost.isEmpty(), QStringLiteral("every theme can be chosen") +
                                  (lost.isEmpty() ? QString() : QStringLiteral(": ") + lost.join(u' ')));
    VLKThemes::setCurrentID(QStringLiteral("no-such-theme"));
    run.check(VLKThemes::current().id == OMThemes::canopyID &&
                  VLKThemes::currentID() == QStringLiteral("no-such-theme"),
              QStringLiteral("an unknown theme shows the default one"));
}

void checkZoom(OMTestRun& run) {
    const auto stored = [](double factor) {
        VLZoom::setValue(factor);
        return VLZoom::value();
    };
    run.check(stored(3) == 2 && stored(0.5) == 0.85 && stored(1.45) == 1.45,
              QStringLiteral("interface zoom limited to 85%–200%"));
}

void checkRelaunch(OMTestRun& run) {
    VLKThemes::setCurrentID(OMThemes::desertID);
    VLZoom::setValue(1.45);
    OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("oz"));
    const auto [status, output] = runChild({QStringLiteral("--om-child-prefs")});
    run.check(status == 0 && output.split(u'\n', Qt::SkipEmptyParts) ==
                                 QStringList({QStringLiteral("THEME|desert-stone"),
                                              QStringLiteral("ZOOM|1.45"), QStringLiteral("UNIT|oz")}),
              QStringLiteral("theme, zoom and weight unit persist across a relaunch"));
    OMPrefs::setValue(OMPrefs::weightUnitKey, QStringLiteral("g"));
}

void checkHelp(OMTestRun& run) {
    const QList<VLKHelpTopic> topics = VLKHelp::allTopics();
    const auto has = [](const QList<VLKHelpTopic>& list, const QString& id) {
        return std::ranges::any_of(list, [&](const VLKHelpTopic& topic) { return topic.id == id; });
    };
    run.check(
        topics.size() == 17 && topics.first().id == QStringLiteral("start") &&
            topics.last().id == QStringLiteral("about"),
        QStringLiteral("Help has its topics, from the first steps to who made it (%1)").arg(topics.size()));
    run.check(std::ranges::none_of(topics,
                                   [](const VLKHelpTopic& topic) {
                                       return topic.title.isEmpty() ||
                                              VLKHelp::blocks(topic.body).isEmpty() ||
                                              topic.body.contains(u'{');
                                   }),
              QStringLiteral("every topic has a title and a text with nothing left open"));
    run.check(has(VLKHelp::search(QStringLiteral("UVB")), QStringLiteral("reminders")) &&
                  VLKHelp::search(QStringLiteral("qxyzzy")).isEmpty(),
              QStringLiteral("Help can be searched"));
    const auto credits = std::ranges::find(topics, QStringLiteral("credits"), &VLKHelpTopic::id);
    run.check(credits != topics.end() && std::ranges::all_of(CareLibrary::shared().sources(),
                                                             [&](const SourceRef& source) {
                                                                 return credits->body.contains(source.url);
                                                             }),
              QStringLiteral("Help credits every source (%1)").arg(CareLibrary::shared().sources().size()));
}

void checkWording(OMTestRun& run) {
    run.check(OMInfo::appName.startsWith(QStringLiteral("VLK ")) &&
                  OMInfo::creditLine == QStringLiteral("by Ventrel (VLK)"),
              QStringLiteral("name and credit line are VLK's"));
    run.check(VLKAbout::version().startsWith(QStringLiteral("Version ")) &&
                  VLKAbout::extraLines.size() == 3 &&
                  VLKAbout::closingLine().endsWith(QStringLiteral(" Ventrel (VLK)")),
              QStringLiteral("the about box says version, content and maker"));
    run.check(
        VLKAbout::extraLines.value(2).startsWith(QStringLiteral("Not a substitute for a veterinarian.")),
        QStringLiteral("the about box says that it is no vet"));
}

} // namespace

void lookAndHelpTests(OMTestRun& run) {
    try {
        checkThemes(run);
        checkZoom(run);
        checkRelaunch(run);
    } catch (const Failure& failure) {
        run.check(false, QStringLiteral("the look can be stored: ") + failure.description());
    }
    checkHelp(run);
    checkWording(run);
}

} // namespace ormiva::OMSelfTest
