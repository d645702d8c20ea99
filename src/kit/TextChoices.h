#pragma once

#include "ChoiceModel.h"

namespace ormiva {

/// A fixed list of choices, each with an id and a title.
class TextChoices : public ormiva::ChoiceModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList ids READ ids WRITE setIds NOTIFY idsChanged FINAL)
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles NOTIFY titlesChanged FINAL)
    Q_PROPERTY(QString chosen READ chosen WRITE setChosen NOTIFY valueChanged FINAL)

public:
    explicit TextChoices(QObject* parent = nullptr);

    /// As many of both are used as there are of the fewer.
    const QStringList& ids() const { return m_ids; }
    void setIds(const QStringList& ids);
    const QStringList& titles() const { return m_titles; }
    void setTitles(const QStringList& titles);
    /// The id of the chosen entry, empty for none.
    QString chosen() const { return value().toString(); }
    void setChosen(const QString& id) { setValue(id); }

Q_SIGNALS:
    void idsChanged();
    void titlesChanged();

protected:
    QList<Choice> entries() const override;

private:
    QStringList m_ids;
    QStringList m_titles;
};

} // namespace ormiva
