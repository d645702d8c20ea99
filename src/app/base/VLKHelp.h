#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace ormiva {

/// One page of the built-in manual. `body` is in the manual's mark-up: lines that begin with "## " are
/// headings, lines that begin with "• " bullets, all others paragraphs.
struct VLKHelpTopic {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString body MEMBER body)

public:
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

/// The topics that hold every word of `query`, case and accents ignored, those with a word in the title
/// first. Words are parted by white space alone. Without words it is `allTopics`.
QList<VLKHelpTopic> search(const QString& query);

/// The topic on show: the one of `selected`, else of `initial`, else the first of `results`, which also
/// stands in for an id that no topic has. Absent when there is none of these.
std::optional<VLKHelpTopic> current(const std::optional<QString>& selected,
                                    const std::optional<QString>& initial,
                                    const QList<VLKHelpTopic>& results);

/// A piece of a topic's body, without its mark.
struct Block {
    enum class Kind { heading, bullet, paragraph };

    Kind kind = Kind::paragraph;
    QString text;

    friend bool operator==(const Block&, const Block&) = default;
};
/// The body line by line, trimmed; empty lines are left out.
QList<Block> blocks(const QString& body);

/// Shows the manual, on the topic of that id when one is given. Set by whoever has the window for it.
inline std::function<void(const std::optional<QString>&)> opener;
void show(const std::optional<QString>& topic = {});

} // namespace VLKHelp
} // namespace ormiva
