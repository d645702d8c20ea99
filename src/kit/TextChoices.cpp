#include "TextChoices.h"

#include <algorithm>

namespace ormiva {

TextChoices::TextChoices(QObject* parent)
    : ChoiceModel(QString(), parent) {
    reload();
}

void TextChoices::setIds(const QStringList& ids) {
    if (m_ids == ids)
        return;
    m_ids = ids;
    reload();
    Q_EMIT idsChanged();
}

void TextChoices::setTitles(const QStringList& titles) {
    if (m_titles == titles)
        return;
    m_titles = titles;
    reload();
    Q_EMIT titlesChanged();
}

QList<Choice> TextChoices::entries() const {
    QList<Choice> entries;
    for (qsizetype i = 0; i < std::min(m_ids.size(), m_titles.size()); ++i)
        entries.append({m_ids.at(i), m_titles.at(i)});
    return entries;
}

} // namespace ormiva
