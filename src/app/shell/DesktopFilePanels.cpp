#include "DesktopFilePanels.h"

#include "OMInfo.h"
#include "Opener.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QWindow>

#include <algorithm>

namespace ormiva {

namespace {

/// "Images (*.jpg *.png)".
QString nameFilter(const QString& name, const QStringList& suffixes) {
    return QStringLiteral("%1 (*.%2)").arg(name, suffixes.join(QStringLiteral(" *.")));
}

/// What a new file may be, one entry for each type.
QStringList saveFilters(const QList<FileType>& types) {
    QStringList filters;
    for (const FileType& type : types)
        filters.append(nameFilter(type.name, type.suffixes()));
    return filters;
}

/// What can be chosen, one entry for each type. Cameras write "IMG_0001.JPG", and not every desktop's
/// dialogue takes that for a "*.jpg".
QStringList openFilters(const QList<FileType>& types) {
    QStringList filters;
    for (const FileType& type : types) {
        QStringList suffixes = type.suffixes();
        for (const QString& suffix : type.suffixes())
            suffixes.append(suffix.toUpper());
        suffixes.removeDuplicates();
        filters.append(nameFilter(type.name, suffixes));
    }
    return filters;
}

/// Puts a dialogue in front of the window that has the focus.
void belongToWindow(QWidget& dialog) {
    QWindow* window = QGuiApplication::focusWindow();
    dialog.winId(); // Makes the native window.
    if (window && dialog.windowHandle())
        dialog.windowHandle()->setTransientParent(window);
}

std::optional<QString> chosen(QFileDialog& dialog) {
    belongToWindow(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}

bool hasSuffixOf(const QString& path, const QList<FileType>& types) {
    return std::ranges::any_of(types, [&](const FileType& type) {
        return std::ranges::any_of(type.suffixes(), [&](const QString& suffix) {
            return path.endsWith(u'.' + suffix, Qt::CaseInsensitive);
        });
    });
}

bool agreesToReplace(const QString& path) {
    QMessageBox question(
        QMessageBox::Warning, OMInfo::appName,
        QObject::tr("“%1” already exists. Do you want to replace it?").arg(QFileInfo(path).fileName()),
        QMessageBox::Cancel);
    const QAbstractButton* replace = question.addButton(QObject::tr("Replace"), QMessageBox::AcceptRole);
    question.setDefaultButton(QMessageBox::Cancel);
    belongToWindow(question);
    question.exec();
    return question.clickedButton() == replace;
}

void openFolderOf(const QString& path) {
    Opener::open(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

} // namespace

std::optional<QString> DesktopFilePanels::save(const QString& name, const QList<FileType>& types) {
    QFileDialog dialog(nullptr, QObject::tr("Save"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(saveFilters(types));
    dialog.selectFile(name);
    const auto path = chosen(dialog);
    if (!path || types.isEmpty() || hasSuffixOf(*path, types))
        return path;
    // The dialogue has asked about the name as it was typed; the whole one is another file.
    const QString whole = *path + u'.' + types.first().suffix;
    return QFileInfo::exists(whole) && !agreesToReplace(whole) ? std::nullopt : std::optional(whole);
}

std::optional<QString> DesktopFilePanels::open(const QList<FileType>& types, const QString& message) {
    QFileDialog dialog(nullptr, message, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // Images come under a row of suffixes.
    dialog.setNameFilters(openFilters(types));
    return chosen(dialog);
}

void DesktopFilePanels::reveal(const QString& path) {
    const QString manager = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call = QDBusMessage::createMethodCall(
        manager, QStringLiteral("/org/freedesktop/FileManager1"), manager, QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, qApp,
                     [path](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         if (QDBusPendingReply<>(*finished).isError())
                             openFolderOf(path);
                     });
}

} // namespace ormiva
