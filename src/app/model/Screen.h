#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <array>
#include <optional>

namespace ormiva {

/// The screens of the window, in the order of the Go menu.
enum class Screen { Home, Library, Symptoms, Pets, Calendar, Checklist, Vets, Settings };

struct ScreenInfo {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString shortcut READ shortcut)

public:
    Screen screen;
    QString id; ///< the raw value
    QString title;
    QString symbol;

    /// "Ctrl+1" to "Ctrl+8".
    QString shortcut() const;
};

const std::array<ScreenInfo, 8>& allScreens();
const ScreenInfo& info(Screen screen);
std::optional<Screen> screen(const QString& id);

/// A part of the side rail: a heading, which may be empty, and its screens.
struct ScreenGroup {
    QString name;
    QList<Screen> screens;

    /// The name and the raw values of the screens, with nothing between them.
    QString id() const;
};
const QList<ScreenGroup>& screenGroups();

} // namespace ormiva
