#include "PageRenderer.h"

#include "AppModel.h"
#include "OMInfo.h"
#include "OMPrefs.h"
#include "OMRender.h"
#include "OMThemes.h"
#include "Printers.h"
#include "TemporaryFolder.h"
#include "VLKKit.h"
#include "VLKThemes.h"
#include "VLKitTheme.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>

// Pages drawn without a window, from QML as the screens are made of.

namespace ormiva {
namespace {

using namespace ormiva::testing;

/// A page of QML text, with what goes wrong in it.
class Page {
public:
    explicit Page(const QByteArray& qml) {
        m_component.setData("import QtQuick\nimport Ormiva.Kit\nimport Ormiva.Screens\n" + qml, QUrl());
    }

    QImage drawn(int width, const QVariantMap& properties = {}) {
        return PageRenderer::draw(m_component, width, properties).value_or(QImage());
    }
    QQmlComponent& component() { return m_component; }

private:
    QQmlEngine m_engine;
    QQmlComponent m_component{&m_engine};
};

/// The rows of a picture that are of one colour in column `x`: first and last, or -1 when there is none.
std::pair<int, int> rowsOf(const QImage& image, int x, const QColor& color) {
    std::pair<int, int> rows = {-1, -1};
    for (int y = 0; y < image.height(); ++y)
        if (image.pixelColor(x, y) == color) {
            rows.first = rows.first < 0 ? y : rows.first;
            rows.second = y;
        }
    return rows;
}

/// In how many pieces a colour comes in column `x`.
int piecesOf(const QImage& image, int x, const QColor& color) {
    int pieces = 0;
    for (int y = 0; y < image.height(); ++y)
        if (image.pixelColor(x, y) == color && (y == 0 || image.pixelColor(x, y - 1) != color))
            ++pieces;
    return pieces;
}

class Drawing : public ::testing::Test {
protected:
    Drawing() {
        OMRender::snapshotMode = true;
        AppModel::shared().setScreen(Screen::Library);
    }
    ~Drawing() override {
        OMRender::snapshotMode = false;
        AppModel::shared().setSpeciesID(std::nullopt);
    }

    /// What `shot` prints, and whether it says that all went well.
    std::pair<QString, bool> shot(const QString& name, Page& page, int width, const QString& to) {
        ::testing::internal::CaptureStdout();
        const bool fine = PageRenderer::shot(name, page.component(), width, to);
        return {QString::fromStdString(::testing::internal::GetCapturedStdout()), fine};
    }

    TemporaryFolder folder;
};

// -- The page as such ---------------------------------------------------------------------------

TEST_F(Drawing, IsAsWideAsAskedAndAsHighAsThePage) {
    Page page("Rectangle { implicitHeight: width / 2; implicitWidth: 30; color: '#336699' }");
    for (const int width : {1, 620, 1380}) {
        const QImage image = page.drawn(width);
        ASSERT_EQ(image.size(), QSize(width, (width + 1) / 2)); // Half a pixel is one.
        EXPECT_EQ(image.pixelColor(0, 0), QColor(0x33, 0x66, 0x99));
        EXPECT_EQ(image.pixelColor(width - 1, width / 4), QColor(0x33, 0x66, 0x99));
    }
}

TEST_F(Drawing, TakesTheWidthOverThePagesOwn) {
    EXPECT_EQ(Page("Item { width: 90; height: 40 }").drawn(300).size(), QSize(300, 40));
    EXPECT_EQ(Page("Item { property real w: 90; width: w; implicitHeight: 40 }").drawn(300).size(),
              QSize(300, 40));
}

TEST_F(Drawing, WaitsForTheHeightOfWhatIsLaidOut) {
    // Each wraps or is made only when the width is known, one inside the other.
    const QByteArray qml = R"(
        Column {
            Loader {
                width: parent.width
                sourceComponent: Column {
                    Text {
                        width: parent.width
                        font.pixelSize: 20
                        text: "a word and ".repeat(80)
                        wrapMode: Text.Wrap
                    }
                    Repeater {
                        model: parent.width > 500 ? 3 : 6
                        Rectangle { width: 50; height: 100; color: "red" }
                    }
                }
            }
            Rectangle { id: late; width: parent.width; height: 10; color: "blue" }
            Component.onCompleted: Qt.callLater(() => late.height = 300)
        })";
    for (const int width : {600, 400}) {
        const QImage image = Page(qml).drawn(width);
        const int squares = width > 500 ? 300 : 600;
        const auto [first, last] = rowsOf(image, 5, Qt::red);
        EXPECT_EQ(last - first + 1, squares);
        EXPECT_GT(first, 40);
        EXPECT_EQ(image.height(), last + 1 + 300);
        EXPECT_EQ(image.pixelColor(width - 1, image.height() - 1), QColor(Qt::blue));
    }
}

TEST_F(Drawing, GivesThePageItsProperties) {
    Page page("Rectangle { required property string paint; color: paint; implicitHeight: 10 }");
    EXPECT_EQ(page.drawn(20, {{u"paint"_qs, u"#00ff00"_qs}}).pixelColor(3, 3), QColor(Qt::green));
    EXPECT_TRUE(page.drawn(20).isNull());
}

TEST_F(Drawing, LiesOnTheGroundOfTheTheme) {
    Page page("Item { implicitHeight: 10 }");
    for (const QString& theme : {u"rainforest-canopy"_qs, u"rose-gold"_qs}) {
        VLKThemes::setCurrentID(theme);
        EXPECT_EQ(page.drawn(20).pixelColor(3, 3), VLKThemes::current().kitTheme().bg);
    }
    OMPrefs::remove(VLKThemes::key);
}

TEST_F(Drawing, GivesNothingForWhatCannotBeDrawn) {
    const QByteArray endless = "Item { property int rounds; implicitHeight: 10 + rounds; onHeightChanged: "
                               "Qt.callLater(() => ++rounds) }";
    for (const QByteArray& qml :
         {QByteArray("Item {"), QByteArray("NoSuchType {}"), QByteArray("QtObject {}"), QByteArray("Item {}"),
          QByteArray("Item { implicitHeight: -5 }"), QByteArray("Window {}"),
          QByteArray("Item { implicitHeight: 4000000 }"), QByteArray("Item { implicitHeight: NaN }"),
          QByteArray("Item { implicitHeight: Infinity }"), endless})
        EXPECT_TRUE(Page(qml).drawn(100).isNull()) << qml.toStdString();
    Page page("Item { implicitHeight: 10 }");
    EXPECT_TRUE(page.drawn(0).isNull());
    EXPECT_TRUE(page.drawn(-1).isNull());
    EXPECT_FALSE(page.drawn(1).isNull());
}

// -- Into files ---------------------------------------------------------------------------------

TEST_F(Drawing, WritesThePictureAndSaysSo) {
    Page page("Rectangle { implicitHeight: 70; color: 'red' }");
    EXPECT_EQ(shot(u"01-home"_qs, page, 120, folder.path()),
              std::pair(u"wrote 01-home.png 120x70\n"_qs, true));
    EXPECT_EQ(QImage(folder.file(u"01-home.png"_qs)), page.drawn(120));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList({u"01-home.png"_qs}));
}

TEST_F(Drawing, OverwritesThePictureOfAnEarlierRun) {
    folder.write(u"a.png"_qs, "old");
    Page page("Item { implicitHeight: 7 }");
    EXPECT_TRUE(shot(u"a"_qs, page, 12, folder.path()).second);
    EXPECT_EQ(QImage(folder.file(u"a.png"_qs)).size(), QSize(12, 7));
}

TEST_F(Drawing, SaysWhatCouldNotBeRendered) {
    Page broken("NoSuchType {}");
    EXPECT_EQ(shot(u"02-library"_qs, broken, 120, folder.path()),
              std::pair(u"could not render 02-library\n"_qs, false));
    Page page("Item { implicitHeight: 7 }");
    EXPECT_EQ(shot(u"b"_qs, page, 120, folder.file(u"no folder"_qs)),
              std::pair(u"could not render b\n"_qs, false));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList());
}

TEST_F(Drawing, TheSamePageTwiceGivesTheSameBytes) {
    AppModel::shared().setSpeciesID(u"bearded-dragon"_qs);
    Page page("ThemeRoot { MainWindow {} }");
    ASSERT_TRUE(shot(u"a"_qs, page, 1380, folder.path()).second);
    ASSERT_TRUE(shot(u"b"_qs, page, 1380, folder.path()).second);
    EXPECT_FALSE(folder.read(u"a.png"_qs).isEmpty());
    EXPECT_TRUE(folder.read(u"a.png"_qs) == folder.read(u"b.png"_qs));
}

// -- Scrollers and lists ------------------------------------------------------------------------

const QByteArray threeWindows = R"(
    OMPage {
        screen: Screens.named("vets")
        subtitle: "A page of three windows"
        Repeater {
            model: 27
            Rectangle {
                required property int index
                width: parent.width
                height: 82
                color: index === 26 ? "#ff0000" : "#00ff00"
            }
        }
    })";

TEST_F(Drawing, APageOfThreeWindowsIsDrawnToItsEnd) {
    const QImage image = Page(threeWindows).drawn(1000);
    const auto [first, last] = rowsOf(image, 500, Qt::red);
    EXPECT_EQ(last - first + 1, 82);
    EXPECT_EQ(piecesOf(image, 500, Qt::green), 26);
    EXPECT_NEAR(image.height(), last + 1 + 24, 1); // The heading's height has a fraction.
    EXPECT_GT(image.height(), 2700);
    EXPECT_EQ(rowsOf(image, 500, Qt::green).second, first - 1 - 18);
    // No bar stands over it.
    for (int x = 976; x < 1000; ++x)
        EXPECT_EQ(image.pixelColor(x, 100), image.pixelColor(976, 100));
}

TEST_F(Drawing, AScrollerShowsWhatReachesOverItsEdge) {
    Page page(R"(
        OMScroll {
            padding: 10
            Rectangle { x: -10; y: -10; width: 30; height: 400; color: "red" }
        })");
    EXPECT_EQ(page.drawn(100).height(), 420);
    EXPECT_EQ(page.drawn(100).pixelColor(0, 200), QColor(Qt::red));
}

/// A page whose rows count themselves, of 40 to 79 points in height.
const QByteArray longList = R"(
    OMListPage {
        id: page
        property int made: 0
        screen: Screens.named("vets")
        subtitle: "A list of many rows"
        model: 500
        spacing: 8
        listHeader: Rectangle { implicitHeight: 33; color: "#ffffff" }
        listFooter: Rectangle { implicitHeight: 44; color: "#ffffff" }
        delegate: Rectangle {
            required property int index
            width: page.rowWidth
            height: 40 + index % 40
            color: index === 499 ? "#ff0000" : "#00ff00"
            Component.onCompleted: ++page.made
        }
    })";

TEST_F(Drawing, AListOfManyRowsIsDrawnToItsEnd) {
    const QImage image = Page(longList).drawn(1000);
    EXPECT_EQ(piecesOf(image, 500, Qt::green), 499);
    const auto [first, last] = rowsOf(image, 500, Qt::red);
    EXPECT_EQ(last - first + 1, 40 + 499 % 40);
    const auto [top, bottom] = rowsOf(image, 500, Qt::white);
    EXPECT_EQ(bottom - last, 8 + 44);
    EXPECT_NEAR(image.height(), bottom + 1 + 24, 1);
    // The same margins as those of a page without a list.
    for (const int x : {23, 976})
        EXPECT_EQ(rowsOf(image, x, Qt::green), std::pair(-1, -1)) << x;
    for (const int x : {24, 975})
        EXPECT_EQ(rowsOf(image, x, Qt::green), rowsOf(image, 500, Qt::green)) << x;
    EXPECT_EQ(rowsOf(image, 24, Qt::white), std::pair(top, bottom));
    EXPECT_EQ(rowsOf(image, 23, Qt::white), std::pair(-1, -1));
}

TEST_F(Drawing, AListAndAPageBeginAtTheSameHeight) {
    Page list(R"(
        OMListPage {
            id: page
            screen: Screens.named("vets")
            model: 1
            delegate: Rectangle { width: page.rowWidth; height: 30; color: "red" }
        })");
    Page plain(R"(
        OMPage {
            screen: Screens.named("vets")
            Rectangle { width: parent.width; height: 30; color: "red" }
        })");
    for (const int width : {700, 1600}) // Narrower and wider than a page's content becomes.
        EXPECT_EQ(list.drawn(width), plain.drawn(width)) << width;
}

TEST_F(Drawing, InAWindowAListMakesOnlyTheRowsThatAreSeen) {
    OMRender::snapshotMode = false;
    Page page(longList);
    QQuickRenderControl control;
    QQuickWindow window(&control);
    const std::unique_ptr<QObject> object(page.component().create());
    auto* item = qobject_cast<QQuickItem*>(object.get());
    ASSERT_TRUE(item);
    item->setParentItem(window.contentItem());
    item->setSize(QSizeF(1000, 700));
    control.polishItems();
    const int made = item->property("made").toInt();
    EXPECT_GT(made, 8);
    EXPECT_LT(made, 30); // 700 points, and a little beyond their end
    const QQuickItem* list = item->childItems().last();
    EXPECT_EQ(list->implicitHeight(), 0);
}

// -- The library --------------------------------------------------------------------------------

class DrawingTheLibrary : public Drawing {};

/// How many pixels of a region are as light as letters.
int lightPixels(const QImage& image, const QRect& region) {
    int light = 0;
    for (int y = region.top(); y <= region.bottom(); ++y)
        for (int x = region.left(); x <= region.right(); ++x)
            light += image.pixelColor(x, y).lightness() > 200 ? 1 : 0;
    return light;
}

TEST_F(DrawingTheLibrary, IsDrawnWithItsListAndCareSheetToTheEnd) {
    AppModel::shared().setSpeciesID(u"bearded-dragon"_qs);
    Page page("ThemeRoot { MainWindow {} }");
    ASSERT_TRUE(shot(u"02-library-bearded-dragon"_qs, page, 1380, folder.path()).second);
    const QImage image(folder.file(u"02-library-bearded-dragon.png"_qs));
    // The same page by itself tells how high its parts are at the widths that they get.
    Page library("LibraryView { width: 1140 }");
    EXPECT_EQ(image.size(), QSize(1380, library.drawn(1140).height()));
    Page sheet("CareSheetView { speciesID: 'bearded-dragon' }");
    const QImage alone = sheet.drawn(1380 - 240 - 354);
    EXPECT_GT(alone.height(), 2000);
    EXPECT_NEAR(image.height(), alone.height(), 40); // Its text may wrap otherwise by a fraction of a point.
    // The last of its sources stands above the margin of its card and that of the page.
    const int end = image.height() - 28;
    EXPECT_GT(lightPixels(image, {620, end - 60, 700, 50}), 100);
    EXPECT_EQ(lightPixels(image, {620, end - 8, 700, 8 + 28}), 0);
}

TEST_F(DrawingTheLibrary, AllSpeciesAreListed) {
    Page page("LibraryView {}");
    const QImage image = page.drawn(1140);
    EXPECT_GT(image.height(), 34 * 60);
}

TEST_F(DrawingTheLibrary, TheRailAndTheHabitatReachTheEnd) {
    AppModel::shared().setSpeciesID(u"bearded-dragon"_qs);
    const QImage image = Page("ThemeRoot { MainWindow {} }").drawn(1380);
    ASSERT_FALSE(image.isNull());
    const QColor ground = VLKThemes::current().kitTheme().bg;
    for (const int x : {10, 120, 230, 300, 700, 1370})
        EXPECT_NE(image.pixelColor(x, image.height() - 1), ground) << x;
}

} // namespace
} // namespace ormiva

int main(int argc, char** argv) {
    using namespace ormiva;
    ::testing::InitGoogleTest(&argc, argv);
    const ormiva::testing::TemporaryFolder home;
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data");
    const QGuiApplication application(argc, argv);
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    OMPrefs::useFile(home.file(QStringLiteral("prefs.ini")));
    VLKThemes::setDefaultID(OMThemes::canopyID);
    VLKKit::install(OMInfo::appName, {}, OMThemes::extras());
    return RUN_ALL_TESTS();
}
