#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <optional>

namespace ormiva::testing {

/// A virtual X server with a window manager, gone with the object. Aborts the test program when it can't be
/// had.
class Desktop {
public:
    explicit Desktop(const QString& size = QStringLiteral("1600x1000"));
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    const QString& display() const { return m_display; }
    /// Runs xdotool with these arguments and gives what it prints; waits for its end. Nothing when it failed.
    std::optional<QString> xdotool(const QStringList& arguments) const;
    void key(const QString& keys) const;
    void type(const QString& text) const;
    /// Saves the whole screen, for somebody to look at. False when that failed.
    bool picture(const QString& path) const;

private:
    QProcessEnvironment environment() const;

    QProcess m_server;
    QProcess m_manager;
    QString m_display;
};

/// The program in a home of its own, ended with the object.
class Program {
public:
    /// `home` holds all that it writes. Further variables as "NAME=value".
    explicit Program(const QString& home, const QString& display = {}, const QStringList& variables = {},
                     QString executable = QStringLiteral(ORMIVA_PROGRAM));
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void start(const QStringList& arguments = {});
    bool isRunning();
    /// The id of its visible window; nothing when it has ended, or after a minute.
    std::optional<QString> window(const Desktop& desktop);
    /// Waits for its end; the status, 128 + 15 when it had to be ended, or nothing when it crashed.
    std::optional<int> status(int milliseconds = 30'000);
    QString output() { return QString::fromUtf8(m_process.readAllStandardOutput()); }
    QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

private:
    QString m_executable;
    QProcess m_process;
};

} // namespace ormiva::testing
