#include "ChoiceModel.h"

#include <QFontMetricsF>

#include <algorithm>

namespace ormiva {

ChoiceModel::ChoiceModel(QVariant none, QObject* parent)
    : QAbstractListModel(parent)
    , m_none(std::move(none))
    , m_value(m_none) {}

void ChoiceModel::setAllowNone(bool allow) {
    if (m_allowNone == allow)
        return;
    m_allowNone = allow;
    reload();
}

void ChoiceModel::setNoneTitle(const QString& title) {
    if (m_noneTitle == title)
        return;
    m_noneTitle = title;
    reload();
}

QString ChoiceModel::title() const {
    return m_current < 0 ? m_noneTitle : m_choices.at(m_current).title;
}

QString ChoiceModel::art() const {
    return m_current < 0 ? QString() : m_choices.at(m_current).art;
}

QStringList ChoiceModel::palette() const {
    return m_current < 0 ? QStringList() : m_choices.at(m_current).palette;
}

void ChoiceModel::choose(int row) {
    if (row >= 0 && row < count())
        setValue(m_choices.at(row).value);
}

int ChoiceModel::find(const QString& typed, int row) const {
    const auto search = [this](const QString& start, int from) {
        for (int i = 0; i < count(); ++i) {
            const int candidate = (from + i) % count();
            if (m_choices.at(candidate).title.startsWith(start, Qt::CaseInsensitive))
                return candidate;
        }
        return -1;
    };
    const int from = std::max(row, 0);
    const QString letter = typed.left(1);
    const int whole = typed.size() > 1 ? search(typed, from) : -1;
    const bool repeats = QString(typed).remove(letter, Qt::CaseInsensitive).isEmpty();
    return whole >= 0 || typed.isEmpty() || !repeats ? whole : search(letter, row + 1);
}

double ChoiceModel::widest(const QFont& font) const {
    const QFontMetricsF metrics(font);
    double width = 0;
    for (const Choice& choice : m_choices)
        width = std::max(width, metrics.horizontalAdvance(choice.title));
    return width;
}

int ChoiceModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant ChoiceModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= count())
        return {};
    const Choice& choice = m_choices.at(index.row());
    switch (role) {
    case TitleRole:
        return choice.title;
    case ArtRole:
        return choice.art;
    case PaletteRole:
        return choice.palette;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChoiceModel::roleNames() const {
    return {{TitleRole, "title"}, {ArtRole, "art"}, {PaletteRole, "palette"}};
}

void ChoiceModel::reload() {
    QList<Choice> choices = entries();
    if (m_allowNone || choices.isEmpty())
        choices.prepend({m_none, m_noneTitle});
    if (choices != m_choices) {
        beginResetModel();
        m_choices = std::move(choices);
        endResetModel();
    }
    findCurrent();
    Q_EMIT choicesChanged();
}

void ChoiceModel::setValue(const QVariant& value) {
    if (m_value == value)
        return;
    m_value = value;
    findCurrent();
    Q_EMIT valueChanged();
}

void ChoiceModel::findCurrent() {
    const auto rowOf = [this](const QVariant& value) {
        const auto found = std::find_if(m_choices.begin(), m_choices.end(),
                                        [&](const Choice& choice) { return choice.value == value; });
        return found == m_choices.end() ? -1 : static_cast<int>(found - m_choices.begin());
    };
    const int row = rowOf(m_value);
    m_current = row < 0 ? rowOf(m_none) : row;
    Q_EMIT currentChanged();
}

} // namespace ormiva
