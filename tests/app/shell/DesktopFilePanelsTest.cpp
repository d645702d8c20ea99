#include "DesktopFilePanels.h"

#include "Opener.h"
#include "PhotoPicker.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDBusConnection>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QListView>
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

const FileType pictures = {u"Images"_qs, u"jpg"_qs, u"public.image"_qs, {u"jpeg"_qs, u"png"_qs}};

TEST(SavePanel, OffersAllSuffixesOfATypeAndAddsTheFirst) {
    const TemporaryFolder folder;
    QStringList filters;
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        filters = dialog.nameFilters();
        dialog.findChild<QLineEdit*>()->setText(folder.file(u"mine"_qs));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(DesktopFilePanels().save(u"b.jpg"_qs, {pictures}), folder.file(u"mine.jpg"_qs));
    EXPECT_EQ(filters, QStringList({u"Images (*.jpg *.jpeg *.png)"_qs}));
    typeAndAccept(folder.file(u"mine.PNG"_qs));
    EXPECT_EQ(DesktopFilePanels().save(u"b.jpg"_qs, {pictures}), folder.file(u"mine.PNG"_qs));
}

TEST(OpenPanel, HasOneEntryForAllSuffixesOfAType) {
    const TemporaryFolder folder;
    for (const char* name : {"a.jpg", "b.PNG", "c.JPEG", "d.txt", "e.ombackup"})
        folder.write(QString::fromLatin1(name), "bytes");
    QStringList filters;
    QStringList entries;
    QStringList offered;
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        filters = dialog.nameFilters();
        const auto* types = dialog.findChild<QComboBox*>(u"fileTypeCombo"_qs);
        for (int row = 0; types && row < types->count(); ++row)
            entries.append(types->itemText(row));
        dialog.setDirectory(folder.path());
        const auto* files = dialog.findChild<QListView*>(u"listView"_qs);
        const auto listed = [files] { return files->model()->rowCount(files->rootIndex()); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return listed() == 3; })) << listed();
        for (int row = 0; row < listed(); ++row)
            offered.append(files->model()->index(row, 0, files->rootIndex()).data().toString());
        dialog.reject();
    });
    EXPECT_EQ(DesktopFilePanels().open({pictures}, u"Choose a photo"_qs), std::nullopt);
    EXPECT_EQ(filters, QStringList({u"Images (*.jpg *.jpeg *.png *.JPG *.JPEG *.PNG)"_qs}));
    EXPECT_EQ(entries, QStringList({u"Images"_qs}));
    offered.sort();
    EXPECT_EQ(offered, QStringList({u"a.jpg"_qs, u"b.PNG"_qs, u"c.JPEG"_qs}));
}

TEST(OpenPanel, PicksAPhoto) {
    const TemporaryFolder folder;
    QImage image(3000, 1500, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    ASSERT_TRUE(image.save(folder.file(u"Rex.png"_qs)));
    QString title;
    QStringList filters;
    whenUp<QFileDialog>([&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        filters = dialog.nameFilters();
        dialog.findChild<QLineEdit*>()->setText(folder.file(u"Rex.png"_qs));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    DesktopFilePanels panels;
    const auto photo = PhotoPicker::pick(panels);
    ASSERT_TRUE(photo);
    EXPECT_EQ(QImage::fromData(*photo, "JPEG").size(), QSize(900, 450));
    EXPECT_EQ(title, u"Choose a photo"_qs);
    ASSERT_EQ(filters.size(), 1);
    EXPECT_TRUE(filters.first().startsWith(u"Images (*.jpg "_qs)) << filters.first().toStdString();
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
