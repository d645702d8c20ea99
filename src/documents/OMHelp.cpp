#include "OMHelp.h"

#include "CareLibrary.h"
#include "CareSheetPDF.h"
#include "OMHelpTopics.h"
#include "OMInfo.h"

#include <algorithm>

namespace ormiva::OMHelp {

namespace {

QString filled(QString text, const CareLibrary& library) {
    return text.replace(QStringLiteral("{appName}"), OMInfo::appName)
        .replace(QStringLiteral("{creditLine}"), OMInfo::creditLine)
        .replace(QStringLiteral("{species count}"), QString::number(library.species().size()))
        .replace(QStringLiteral("{notAVet}"), OMInfo::notAVet)
        .replace(QStringLiteral("{doseNote}"), OMInfo::doseNote)
        .replace(QStringLiteral("{poisonPhone}"), OMInfo::poisonPhone)
        .replace(QStringLiteral("{footer}"), CareSheetPDF::footer());
}

} // namespace

QList<VLKHelpTopic> topics(const CareLibrary& library) {
    QList<VLKHelpTopic> all = helpTopicTexts();
    for (VLKHelpTopic& topic : all)
        topic.body = filled(topic.body, library);
    all.append(creditsTopic(library));
    return all;
}

VLKHelpTopic creditsTopic(const CareLibrary& library) {
    QMap<QString, QList<SourceRef>> byPublisher;
    for (const SourceRef& source : library.sources())
        byPublisher[source.publisher].append(source);

    QString body =
        QStringLiteral("All care-sheet text is written in our own words from the sources below. Facts were "
                       "checked against each page on ") +
        library.sourcesChecked() +
        QStringLiteral(". Where sources disagree, the care sheet gives the range and cites both. Medicine "
                       "doses are never included.\n\n## Illustrations\n• Every animal picture and the app "
                       "icon are original artwork drawn in code for ") +
        OMInfo::appName + QStringLiteral(". No photographs are used.\n\n## Software\n• ") + OMInfo::appName +
        QStringLiteral(" — ") + OMInfo::creditLine + QStringLiteral(" — ") + OMInfo::website.host();
    for (auto group = byPublisher.begin(); group != byPublisher.end(); ++group) {
        // Of two with one title the address decides, so that the list is always the same.
        std::ranges::sort(*group, {},
                          [](const SourceRef& source) { return std::pair(source.title, source.url); });
        body += QStringLiteral("\n\n## ") + group.key();
        for (const SourceRef& source : *group)
            body += QStringLiteral("\n• %1 — %2 (checked %3)").arg(source.title, source.url, source.checked);
    }
    return {QStringLiteral("credits"),
            QStringLiteral("Sources & Credits"),
            body,
            {QStringLiteral("sources"), QStringLiteral("references"), QStringLiteral("citations"),
             QStringLiteral("credits"), QStringLiteral("vca"), QStringLiteral("merck"), QStringLiteral("rvc"),
             QStringLiteral("zoo")}};
}

} // namespace ormiva::OMHelp
