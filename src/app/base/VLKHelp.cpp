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

/// Without case and without accents.
QString folded(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            plain.append(c);
    return plain.toCaseFolded();
}

} // namespace

QList<VLKHelpTopic> VLKHelp::allTopics() {
    QList<VLKHelpTopic> all = topics;
    for (const VLKHelpTopic& own : {lookTopic(), aboutTopic()})
        if (std::ranges::none_of(all, [&](const VLKHelpTopic& topic) { return topic.id == own.id; }))
            all.append(own);
    return all;
}

QList<VLKHelpTopic> VLKHelp::search(const QString& query) {
    const QList<VLKHelpTopic> all = allTopics();
    QStringList terms = query.toLower().simplified().split(u' ', Qt::SkipEmptyParts);
    if (terms.isEmpty())
        return all;
    for (QString& term : terms)
        term = folded(term);
    QList<VLKHelpTopic> inTitle;
    QList<VLKHelpTopic> elsewhere;
    for (const VLKHelpTopic& topic : all) {
        const QString haystack = folded(topic.title + u'\n' + topic.body + u'\n' + topic.keywords.join(u' '));
        if (!std::ranges::all_of(terms, [&](const QString& term) { return haystack.contains(term); }))
            continue;
        const QString title = folded(topic.title);
        const bool named =
            std::ranges::any_of(terms, [&](const QString& term) { return title.contains(term); });
        (named ? inTitle : elsewhere).append(topic);
    }
    return inTitle + elsewhere;
}

std::optional<VLKHelpTopic> VLKHelp::current(const std::optional<QString>& selected,
                                             const std::optional<QString>& initial,
                                             const QList<VLKHelpTopic>& results) {
    if (const auto id = selected ? selected : initial) {
        const QList<VLKHelpTopic> all = allTopics();
        const auto topic = std::ranges::find(all, *id, &VLKHelpTopic::id);
        if (topic != all.end())
            return *topic;
    }
    return results.isEmpty() ? std::nullopt : std::optional(results.first());
}

QList<VLKHelp::Block> VLKHelp::blocks(const QString& body) {
    static const QList<std::pair<QString, Block::Kind>> marks = {
        {QStringLiteral("## "), Block::Kind::heading}, {QStringLiteral("• "), Block::Kind::bullet}};
    QList<Block> blocks;
    for (const QString& untrimmed : body.split(u'\n')) {
        const QString line = untrimmed.trimmed();
        if (line.isEmpty())
            continue;
        Block& block = blocks.emplaceBack(Block{Block::Kind::paragraph, line});
        for (const auto& [mark, kind] : marks)
            if (line.startsWith(mark))
                block = {kind, line.mid(mark.size())};
    }
    return blocks;
}

void VLKHelp::show(const std::optional<QString>& topic) {
    if (opener)
        opener(topic);
}

} // namespace ormiva
