// The real program in a real window, worked by keys and mouse.

#include "Desktop.h"
#include "Printers.h"
#include "TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPoint>
#include <QThread>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

/// Pictures are left in the build folder for somebody to look at.
QString picturePath(const QString& name) {
    const QString folder = QStringLiteral(ORMIVA_PICTURES);
    QDir().mkpath(folder);
    return folder + u'/' + name + QStringLiteral(".png");
}

/// Lets the window paint what the last key or click has brought about.
void settle() {
    QThread::msleep(700);
}

class Window : public ::testing::Test {
protected:
    void open(Program& program, const Desktop& desktop) {
        program.start();
        const auto id = program.window(desktop);
        ASSERT_TRUE(id.has_value()) << program.errors().toStdString();
        m_window = *id;
        // The keys that the window manager takes go to the active window.
        desktop.xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), m_window});
        settle();
    }
    /// At a point of the window's own.
    void clickInWindow(const Desktop& desktop, int x, int y) const {
        desktop.xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), m_window,
                         QString::number(x), QString::number(y), QStringLiteral("click"),
                         QStringLiteral("1")});
    }
    /// The screen as it is now, saved under `name` too.
    QImage picture(const Desktop& desktop, const QString& name) {
        EXPECT_TRUE(desktop.picture(picturePath(name)));
        QImage image(picturePath(name));
        EXPECT_FALSE(image.isNull());
        return image;
    }
    void quit(Program& program, const Desktop& desktop) {
        EXPECT_TRUE(program.isRunning());
        desktop.key(QStringLiteral("ctrl+q"));
        EXPECT_EQ(program.status(), 0);
        EXPECT_EQ(program.errors(), QString());
    }

    TemporaryFolder m_home;
    QString m_window;
};

} // namespace

TEST_F(Window, TheLibraryIsSearchedAndReadByKeyboard) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    const QImage home = picture(desktop, QStringLiteral("home"));
    desktop.key(QStringLiteral("ctrl+2"));
    settle();
    const QImage library = picture(desktop, QStringLiteral("library"));
    EXPECT_NE(library, home);
    desktop.key(QStringLiteral("ctrl+f"));
    desktop.type(QStringLiteral("bearded"));
    settle();
    const QImage found = picture(desktop, QStringLiteral("library-search"));
    EXPECT_NE(found, library);
    desktop.key(QStringLiteral("Down"));
    desktop.key(QStringLiteral("Return"));
    settle();
    const QImage sheet = picture(desktop, QStringLiteral("care-sheet-by-keyboard"));
    EXPECT_NE(sheet, found);
    quit(program, desktop);
}

TEST_F(Window, ASheetOpensByMouse) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    desktop.key(QStringLiteral("ctrl+2"));
    settle();
    const QImage library = picture(desktop, QStringLiteral("library"));
    // The first row of the list stands under the search field, the chips and the count line.
    clickInWindow(desktop, 380, 250);
    settle();
    EXPECT_NE(picture(desktop, QStringLiteral("care-sheet-by-mouse")), library);
    quit(program, desktop);
}

TEST_F(Window, AThemeIsChosenFromTheMenuAndKept) {
    const Desktop desktop;
    QImage chosen;
    {
        Program program(m_home.path(), desktop.display());
        open(program, desktop);
        const QImage before = picture(desktop, QStringLiteral("theme-before"));
        clickInWindow(desktop, 268, 15); // "Theme" in the menu bar
        settle();
        for (int i = 0; i < 3; ++i) // The third of the menu is Rose Gold.
            desktop.key(QStringLiteral("Down"));
        picture(desktop, QStringLiteral("theme-menu"));
        desktop.key(QStringLiteral("Return"));
        settle();
        chosen = picture(desktop, QStringLiteral("theme-rose-gold"));
        EXPECT_NE(chosen, before);
        quit(program, desktop);
    }
    EXPECT_EQ(m_home.read(QStringLiteral("com.ventrel.ormiva.ini")), "[General]\nvlk.theme=rose-gold\n");
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    // The hovered menu aside, the next start looks the same: compared at a point of the side rail.
    const QImage again = picture(desktop, QStringLiteral("theme-after-restart"));
    const QPoint rail(200, 700);
    EXPECT_EQ(again.pixel(rail), chosen.pixel(rail));
    quit(program, desktop);
}

TEST_F(Window, TheMenusAndTheManualAreWorkedByKeys) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    desktop.key(QStringLiteral("alt+t"));
    settle();
    for (const char16_t* key : {u"r", u"Return", u"ctrl+equal", u"ctrl+plus"}) // Rose Gold, then two steps
        desktop.key(QString::fromUtf16(key));
    settle();
    EXPECT_EQ(m_home.read(QStringLiteral("com.ventrel.ormiva.ini")),
              "[General]\nvlk.theme=rose-gold\nvlk.zoom=1.3\n");
    desktop.key(QStringLiteral("F10"));
    for (const char16_t* key :
         {u"Right", u"Right", u"Down", u"Down", u"Down", u"Return"}) // View, Actual Size
        desktop.key(QString::fromUtf16(key));
    settle();
    EXPECT_EQ(m_home.read(QStringLiteral("com.ventrel.ormiva.ini")),
              "[General]\nvlk.theme=rose-gold\nvlk.zoom=1\n");

    const auto helpWindow = [&] {
        return desktop.xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                QStringLiteral("--name"), QStringLiteral("^VLK Ormiva Help$")});
    };
    EXPECT_FALSE(helpWindow().has_value());
    desktop.key(QStringLiteral("F1"));
    settle();
    ASSERT_TRUE(helpWindow().has_value());
    EXPECT_EQ(desktop.xdotool({QStringLiteral("getwindowname"), helpWindow()->trimmed()})
                  .value_or(QString())
                  .trimmed(),
              QStringLiteral("VLK Ormiva Help"));
    desktop.type(QStringLiteral("backup"));
    settle();
    picture(desktop, QStringLiteral("manual"));
    desktop.key(QStringLiteral("Escape"));
    settle();
    EXPECT_FALSE(helpWindow().has_value());
    quit(program, desktop);
}

TEST_F(Window, ClosingItEndsTheProgram) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    desktop.key(QStringLiteral("alt+F4"));
    EXPECT_EQ(program.status(), 0);
    EXPECT_EQ(program.errors(), QString());
}

TEST_F(Window, ClosingItEndsTheProgramThoughAnotherWindowIsOpen) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display(), {}, QStringLiteral(ORMIVA_WINDOW_OF_PAGE));
    program.start({QStringLiteral("--second-window")});
    const auto window = program.window(desktop);
    ASSERT_TRUE(window.has_value());
    settle();
    ASSERT_TRUE(desktop.xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                 QStringLiteral("--name"), QStringLiteral("A second window")}));
    desktop.xdotool({QStringLiteral("windowactivate"), QStringLiteral("--sync"), *window});
    desktop.key(QStringLiteral("alt+F4"));
    EXPECT_EQ(program.status(), 0);
}

TEST_F(Window, ASecondLaunchEndsAndLeavesTheFirst) {
    const Desktop desktop;
    Program first(m_home.path(), desktop.display());
    open(first, desktop);
    desktop.xdotool({QStringLiteral("windowminimize"), QStringLiteral("--sync"), m_window});
    ASSERT_FALSE(desktop
                     .xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                               QStringLiteral("--name"), QStringLiteral("VLK Ormiva")})
                     .has_value());
    Program second(m_home.path(), desktop.display());
    second.start();
    EXPECT_EQ(second.status(), 0);
    EXPECT_EQ(second.errors(), QString());
    EXPECT_EQ(first.window(desktop), m_window); // It has come forward.
    quit(first, desktop);
}

TEST_F(Window, OnASmallScreenItTakesTheAvailableSize) {
    const Desktop desktop(QStringLiteral("1024x700"));
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    const QString geometry =
        desktop.xdotool({QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), m_window})
            .value_or(QString());
    const int width = geometry.section(QStringLiteral("WIDTH="), 1).section(u'\n', 0, 0).toInt();
    const int height = geometry.section(QStringLiteral("HEIGHT="), 1).section(u'\n', 0, 0).toInt();
    EXPECT_GT(width, 900);
    EXPECT_LE(width, 1024);
    EXPECT_GT(height, 600);
    EXPECT_LE(height, 700);
    desktop.key(QStringLiteral("ctrl+2"));
    settle();
    picture(desktop, QStringLiteral("small-screen"));
    quit(program, desktop);
}

TEST_F(Window, WithADataFolderThatCannotBeMadeEverythingStillWorks) {
    const Desktop desktop;
    m_home.write(QStringLiteral("VLK Ormiva"), "a file where the folder should be");
    Program program(m_home.path(), desktop.display());
    open(program, desktop);
    const QImage message = picture(desktop, QStringLiteral("no-store-message"));
    desktop.key(QStringLiteral("Return"));
    settle();
    EXPECT_NE(picture(desktop, QStringLiteral("no-store")), message);
    for (int screen = 1; screen <= 8; ++screen) {
        desktop.key(QStringLiteral("ctrl+%1").arg(screen));
        settle();
        EXPECT_TRUE(program.isRunning()) << screen;
    }
    desktop.key(QStringLiteral("ctrl+n"));
    settle();
    desktop.key(QStringLiteral("Escape"));
    quit(program, desktop);
    EXPECT_EQ(m_home.read(QStringLiteral("VLK Ormiva")), "a file where the folder should be");
}

TEST_F(Window, DamagedRecordsAreLeftAndASecondFileIsOpened) {
    const Desktop desktop;
    const QString records = m_home.write(QStringLiteral("my.sqlite"), "no database");
    for (int start = 1; start <= 2; ++start) {
        Program program(m_home.path(), desktop.display(), {QStringLiteral("OM_DB_PATH=") + records});
        open(program, desktop);
        const QImage message = picture(desktop, QStringLiteral("damaged-records"));
        desktop.key(QStringLiteral("Return"));
        settle();
        EXPECT_NE(picture(desktop, QStringLiteral("damaged-records-dismissed")), message);
        quit(program, desktop);
    }
    EXPECT_EQ(m_home.read(QStringLiteral("my.sqlite")), "no database");
    EXPECT_EQ(QDir(m_home.file(QStringLiteral("VLK Ormiva"))).entryList(QDir::Files).size(), 1);
}

TEST_F(Window, WithoutContentItRunsWithAnEmptyLibrary) {
    const Desktop desktop;
    Program program(m_home.path(), desktop.display(),
                    {QStringLiteral("OM_DATA_DIR=") + m_home.file(QStringLiteral("x"))});
    open(program, desktop);
    const QImage message = picture(desktop, QStringLiteral("load-problems"));
    desktop.key(QStringLiteral("Return"));
    settle();
    EXPECT_NE(picture(desktop, QStringLiteral("load-problems-dismissed")), message);
    desktop.key(QStringLiteral("ctrl+2"));
    settle();
    picture(desktop, QStringLiteral("empty-library"));
    quit(program, desktop);
}

TEST_F(Window, APageThatCannotBeLoadedEndsTheRunWithOneSentence) {
    const QString page = m_home.write(QStringLiteral("Broken.qml"), "import QtQuick\nWindow { nonsense: }\n");
    for (const QString& missing : {page, m_home.file(QStringLiteral("Missing.qml"))}) {
        Program program(m_home.path(), {}, {QStringLiteral("QT_QPA_PLATFORM=offscreen")},
                        QStringLiteral(ORMIVA_WINDOW_OF_PAGE));
        program.start({missing});
        EXPECT_EQ(program.status(), 1);
        const QString errors = program.errors();
        EXPECT_TRUE(errors.startsWith(QStringLiteral("Ormiva's window could not be built: ")))
            << errors.toStdString();
        EXPECT_TRUE(errors.contains(QFileInfo(missing).fileName())) << errors.toStdString();
        EXPECT_EQ(errors.count(u'\n'), 1) << errors.toStdString();
    }
}

} // namespace ormiva::testing
