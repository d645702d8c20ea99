#include "VLKHelp.h"

#include "OMInfo.h"

#include <algorithm>

namespace ormiva {

namespace {

VLKHelpTopic lookTopic() {
    return {
        QStringLiteral("look"),
        QStringLiteral("Themes and interface zoom"),
        QStringLiteral("## Themes\n"
                       "Choose a color theme from the Theme menu: Cobalt Gunmetal, Candy Red Titanium, Rose "
                       "Gold, Lavender Pearl, Midnight Black or Brushed Gray. Some apps add more.\n\n"
                       "## Interface zoom\n"
                       "Make everything bigger or smaller, from 85% to 200%:\n"
                       "• View → Zoom In (⌘ +) and Zoom Out (⌘ −)\n"
                       "• View → Actual Size (⌘ 0)\n"
                       "• View → Zoom Level to pick an exact size."),
        {QStringLiteral("color"), QStringLiteral("colour"), QStringLiteral("theme"), QStringLiteral("zoom"),
         QStringLiteral("bigger"), QStringLiteral("smaller"), QStringLiteral("text size"),
         QStringLiteral("font size"), QStringLiteral("dark")}};
}

VLKHelpTopic aboutTopic() {
    return {QStringLiteral("about"),
            QStringLiteral("About Ventrel"),
            OMInfo::appName + QStringLiteral(" is made by Ventrel (VLK).\n\nWebsite, updates and support: ") +
                OMInfo::website.toString(),
            {QStringLiteral("vlk"), QStringLiteral("support"), QStringLiteral("contact"),
             QStringLiteral("website"), QStringLiteral("ventrel"), QStringLiteral("credits")}};
}

} // namespace

QList<VLKHelpTopic> VLKHelp::allTopics() {
    QList<VLKHelpTopic> all = topics;
    for (const VLKHelpTopic& own : {lookTopic(), aboutTopic()})
        if (std::ranges::none_of(all, [&](const VLKHelpTopic& topic) { return topic.id == own.id; }))
            all.append(own);
    return all;
}

} // namespace ormiva
