#include "DesktopFilePanels.h"

#include "Opener.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusConnection>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

// The toolkit's dialogues, driven as a user would, and the file manager's service on a session bus of the
// test's own.

namespace ormiva {

/// Stands in for the desktop's file manager.
class FileManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString&) { shown += uris; }
};

namespace {

using namespace ormiva::testing;

const QList<FileType> backups = {{u"VLK Ormiva backup"_qs, u"ombackup"_qs, u"com.ventrel.ormiva.backup"_qs}};

/// Does `act` with the next dialogue of type `T` once it is up.
template <typename T>
void whenUp(const std::function<void(T&)>& act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [timer, act] {
        auto* dialog = qobject_cast<T*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->deleteLater();
        timer->stop();
        act(*dialog);
    });
    timer->start(10);
}

void typeAndAccept(const QString& path) {
    whenUp<QFileDialog>([path](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
}

void answerQuestion(bool replace, QString* text = nullptr) {
    whenUp<QMessageBox>([=](QMessageBox& question) {
        if (text)
            *text = question.text();
        for (QAbstractButton* button : question.buttons())
            if ((question.buttonRole(button) != QMessageBox::RejectRole &&
                 question.buttonRole(button) != QMessageBox::NoRole) == replace)
                return button->click();
    });
}

TEST(SavePanel, OffersTheNameAndTheType) {
    QString name;
    QStringList filters;
    QFileDialog::AcceptMode mode{};
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        name = dialog.findChild<QLineEdit*>()->text();
        filters = dialog.nameFilters();
        mode = dialog.acceptMode();
        dialog.reject();
    });
    EXPECT_EQ(DesktopFilePanels().save(u"Ormiva backup 2026-11-21.ombackup"_qs, backups), std::nullopt);
    EXPECT_EQ(name, u"Ormiva backup 2026-11-21.ombackup"_qs);
    EXPECT_EQ(filters, QStringList({u"VLK Ormiva backup (*.ombackup)"_qs}));
    EXPECT_EQ(mode, QFileDialog::AcceptSave);
}

TEST(SavePanel, GivesTheChosenPlace) {
    const TemporaryFolder folder;
    typeAndAccept(folder.file(u"mine.ombackup"_qs));
    EXPECT_EQ(DesktopFilePanels().save(u"b.ombackup"_qs, backups), folder.file(u"mine.ombackup"_qs));
}

TEST(SavePanel, AddsASuffixThatWasLeftOut) {
    const TemporaryFolder folder;
    typeAndAccept(folder.file(u"mine"_qs));
    EXPECT_EQ(DesktopFilePanels().save(u"b.ombackup"_qs, backups), folder.file(u"mine.ombackup"_qs));
    typeAndAccept(folder.file(u"mine.OMBackup"_qs));
    EXPECT_EQ(DesktopFilePanels().save(u"b.ombackup"_qs, backups), folder.file(u"mine.OMBackup"_qs));
}

TEST(SavePanel, AsksBeforeTheWholeNameReplacesAFile) {
    const TemporaryFolder folder;
    folder.write(u"mine.ombackup"_qs, "old");
    QString text;
    typeAndAccept(folder.file(u"mine"_qs));
    answerQuestion(false, &text);
    EXPECT_EQ(DesktopFilePanels().save(u"b.ombackup"_qs, backups), std::nullopt);
    EXPECT_EQ(text, u"“mine.ombackup” already exists. Do you want to replace it?"_qs);
    typeAndAccept(folder.file(u"mine"_qs));
    answerQuestion(true);
    EXPECT_EQ(DesktopFilePanels().save(u"b.ombackup"_qs, backups), folder.file(u"mine.ombackup"_qs));
}

TEST(OpenPanel, GivesAFileThatExists) {
    const TemporaryFolder folder;
    const QString path = folder.write(u"mine.ombackup"_qs, "bytes");
    QString title;
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        dialog.findChild<QLineEdit*>()->setText(path);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(DesktopFilePanels().open(backups, u"Choose a VLK Ormiva backup"_qs), path);
    EXPECT_EQ(title, u"Choose a VLK Ormiva backup"_qs);
    whenUp<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(DesktopFilePanels().open(backups, u"Choose"_qs), std::nullopt);
}

class Revealing : public ::testing::Test {
protected:
    Revealing() {
        Opener::open = [this](const QUrl& address) { opened.append(address); };
    }
    ~Revealing() override { Opener::open = before; }

    const std::function<void(const QUrl&)> before = Opener::open;
    QList<QUrl> opened;
    TemporaryFolder folder;
};

TEST_F(Revealing, AsksTheFileManager) {
    FileManager manager;
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"manager"_qs);
    ASSERT_TRUE(
        bus.registerObject(u"/org/freedesktop/FileManager1"_qs, &manager, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(bus.registerService(u"org.freedesktop.FileManager1"_qs));
    const QString path = folder.write(u"my \"own\" 100% ü.ombackup"_qs, "bytes");
    DesktopFilePanels().reveal(path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !manager.shown.isEmpty(); }));
    ASSERT_EQ(manager.shown.size(), 1);
    EXPECT_EQ(QUrl(manager.shown.first()).toLocalFile(), path);
    bus.unregisterService(u"org.freedesktop.FileManager1"_qs);
    QTest::qWait(50);
    EXPECT_EQ(opened, QList<QUrl>());
}

TEST_F(Revealing, OpensTheFolderWithoutAFileManager) {
    DesktopFilePanels().reveal(folder.write(u"a.csv"_qs, "bytes"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened.isEmpty(); }));
    EXPECT_EQ(opened, QList<QUrl>({QUrl::fromLocalFile(folder.path())}));
}

} // namespace
} // namespace ormiva

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    const ormiva::testing::TemporaryFolder home;
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "DesktopFilePanelsTest.moc"
