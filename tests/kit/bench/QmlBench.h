#pragma once

#include "OMDay.h"

#include <QObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>
#include <QTemporaryDir>

class QQmlEngine;

namespace ormiva::testing {

/// What tests of QML pages need beyond QML: a fresh state, what was opened, and a look into the items.
class QmlBench final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QStringList opened READ opened)

public:
    QmlBench();

    /// The addresses that went out through the opener since `reset`.
    QStringList opened() const { return m_opened; }

    /// The state of a first start, with the library on show, no records, and the machine's own calendar.
    Q_INVOKABLE void reset();
    Q_INVOKABLE void storeTheme(const QString& id);
    Q_INVOKABLE QString storedTheme() const;
    Q_INVOKABLE void storeZoom(double zoom);
    Q_INVOKABLE void setMessage(const QString& text);
    /// Asks to delete `title`; `deleted` grows by one when it is confirmed.
    Q_INVOKABLE void askDelete(const QString& title);
    Q_INVOKABLE int deleted() const { return m_deleted; }
    /// The species of the new pet that the editor is open on, "-" when it is open on nothing.
    Q_INVOKABLE QString editedSpecies() const;
    Q_INVOKABLE void tickSymptom(const QString& id);
    Q_INVOKABLE int tickedSymptoms() const;
    /// Which editor is open: the letter of its record and the record's id, as in "w0".
    Q_INVOKABLE QString sheet() const;
    /// The pet of the record that the editor is open on, 0 for none.
    Q_INVOKABLE qint64 sheetPet() const;
    /// What the panels for files were asked since `reset`; they are cancelled each time.
    Q_INVOKABLE QStringList asked() const;

    /// The window of the program with that title, once it is there; null before.
    Q_INVOKABLE QWindow* windowTitled(const QString& title) const;
    /// The title of the window that has the keyboard.
    Q_INVOKABLE QString activeTitle() const;
    Q_INVOKABLE QString preference(const QString& key) const;

    /// Stops the clock at noon of that day, in UTC, and fixes the locale of dates until `reset`.
    Q_INVOKABLE void fixCalendar(const QString& today, const QString& locale = QStringLiteral("en_US")) const;
    Q_INVOKABLE ormiva::OMDay day(const QString& iso) const;
    /// Opens a new file of records, until `reset`.
    Q_INVOKABLE void openStore();
    /// Adds a pet to it and gives its id.
    Q_INVOKABLE qint64 addPet(const QString& name, const QString& speciesID) const;
    Q_INVOKABLE void removePet(qint64 id) const;

    /// The visible descendants of a type, told by the name of its QML file or C++ class, in the order of the
    /// tree.
    Q_INVOKABLE QList<QObject*> all(QQuickItem* root, const QString& type) const;
    /// The text of each of them.
    Q_INVOKABLE QStringList texts(QQuickItem* root, const QString& type) const;
    /// The first visible descendant of that type with that text; null when there is none.
    Q_INVOKABLE QQuickItem* named(QQuickItem* root, const QString& type, const QString& text) const;
    /// The lines of a TextEdit; rows of a list begin with "• ".
    Q_INVOKABLE QStringList lines(QQuickItem* textEdit) const;
    Q_INVOKABLE QString accessibleName(QQuickItem* item) const;
    /// As in the enumeration of QML's `Accessible`.
    Q_INVOKABLE int accessibleRole(QQuickItem* item) const;
    Q_INVOKABLE QString clipboard() const;
    /// Presses keys, as in "Ctrl+2", in a window.
    Q_INVOKABLE void press(QQuickWindow* window, const QString& keys) const;
    /// Presses keys in the window that is active.
    Q_INVOKABLE void pressInActive(const QString& keys) const;
    /// What a screen reader is told about the item with the focus in the active window: "{role}: {name}".
    Q_INVOKABLE QString spoken() const;
    /// The item with the focus in that item's window.
    Q_INVOKABLE QQuickItem* focusItem(QQuickItem* item) const;
    /// Where an item lies in its window, scaled as it is shown.
    Q_INVOKABLE QRectF place(QQuickItem* item) const;

private:
    QStringList m_opened;
    int m_deleted = 0;
    QTemporaryDir m_records;
    int m_stores = 0;
};

/// Prepares the run of a Qt Quick Test executable.
class QmlSetup : public QObject {
    Q_OBJECT

public:
    QmlSetup();

public Q_SLOTS:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine* engine);

private:
    QTemporaryDir m_home;
};

} // namespace ormiva::testing
