#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace ormiva {

/// One page of the built-in manual. `body` is in the manual's mark-up: lines that begin with "## " are
/// headings, lines that begin with "• " bullets, all others paragraphs.
struct VLKHelpTopic {
    QString id;
    QString title;
    QString body;
    QStringList keywords; ///< lower case, never shown, for search only

    friend bool operator==(const VLKHelpTopic&, const VLKHelpTopic&) = default;
};

/// The manual's topics, as plain data.
namespace VLKHelp {

/// The application's own topics, set once at start-up.
inline QList<VLKHelpTopic> topics;

/// `topics`, then the kit's own "look" and "about" unless the application has topics with these ids.
QList<VLKHelpTopic> allTopics();

} // namespace VLKHelp
} // namespace ormiva
