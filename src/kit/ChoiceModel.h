#pragma once

#include <QAbstractListModel>
#include <QFont>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace ormiva {

/// An entry of a pop-up menu from which one is chosen.
struct Choice {
    QVariant value;
    QString title;
    QString art = {}; ///< the drawing beside it; empty for none
    QStringList palette = {};

    friend bool operator==(const Choice&, const Choice&) = default;
};

/// The entries of a pop-up menu and which of them is chosen. What is chosen is kept by its value, so that it
/// stays when the entries change.
class ChoiceModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The base of the lists of choices.")
    Q_PROPERTY(bool allowNone READ allowNone WRITE setAllowNone NOTIFY choicesChanged FINAL)
    Q_PROPERTY(QString noneTitle READ noneTitle WRITE setNoneTitle NOTIFY choicesChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY choicesChanged FINAL)
    Q_PROPERTY(int current READ current NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged FINAL)
    Q_PROPERTY(QString art READ art NOTIFY currentChanged FINAL)
    Q_PROPERTY(QStringList palette READ palette NOTIFY currentChanged FINAL)

public:
    enum Role { TitleRole = Qt::UserRole, ArtRole, PaletteRole };

    /// Whether the first entry stands for none. It does in any case when there is no other.
    bool allowNone() const { return m_allowNone; }
    void setAllowNone(bool allow);
    /// What that entry says, and what is shown while no entry is chosen.
    const QString& noneTitle() const { return m_noneTitle; }
    void setNoneTitle(const QString& title);

    const QList<Choice>& choices() const { return m_choices; }
    int count() const { return static_cast<int>(m_choices.size()); }
    /// The row of the chosen entry. A value that no entry has is as none; -1 when there is no such entry.
    int current() const { return m_current; }
    QString title() const;
    QString art() const;
    QStringList palette() const;

    /// Chooses the entry of that row; other rows choose nothing.
    Q_INVOKABLE void choose(int row);
    /// The row to which typing `typed` leads from `row`: the nearest entry that begins with it, case ignored,
    /// the list taken as a ring. One letter, also when repeated, leads on to another entry; more letters may
    /// stay where they are. -1 when no entry begins so.
    Q_INVOKABLE int find(const QString& typed, int row) const;
    /// How wide the widest title is.
    Q_INVOKABLE double widest(const QFont& font) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void choicesChanged();
    void currentChanged();
    void valueChanged();

protected:
    /// `none` is the value that stands for none. Whoever derives calls `reload` when it is made.
    ChoiceModel(QVariant none, QObject* parent);

    /// All entries but the one for none, in their order.
    virtual QList<Choice> entries() const = 0;
    /// Takes the entries anew.
    void reload();
    const QVariant& value() const { return m_value; }
    void setValue(const QVariant& value);

private:
    void findCurrent();

    QVariant m_none;
    QVariant m_value;
    QString m_noneTitle = QStringLiteral("—");
    bool m_allowNone = false;
    QList<Choice> m_choices;
    int m_current = -1;
};

} // namespace ormiva
