// Every fill and stroke of every drawing, in order, against the list in drawings.txt. A drawing that is
// changed on purpose changes its lines there: a failure leaves the new list in the folder for temporary
// files.

#include "ArtPainter.h"
#include "DrawingRecorder.h"
#include "Habitat.h"

#include "OMThemes.h"
#include "PrefsInFile.h"
#include "VLKThemes.h"
#include "VLKitTheme.h"

#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

const QColor primary = QColor::fromRgb(0xC98A3B);
const QColor secondary = QColor::fromRgb(0xF2E3B3);

QString listed(const QString& title, const std::function<void(QPainter&)>& paint) {
    const PrefsInFile prefs;
    VLKThemes::registerThemes(OMThemes::extras());
    const VLKTheme& theme = VLKThemes::current();
    DrawingRecorder recorder({{primary.rgb(), QStringLiteral("p")},
                              {secondary.rgb(), QStringLiteral("s")},
                              {QColor(Qt::white).rgb(), QStringLiteral("white")},
                              {QColor(Qt::black).rgb(), QStringLiteral("black")},
                              {color(theme.bg).rgb(), QStringLiteral("bg")},
                              {color(theme.panelTop).rgb(), QStringLiteral("panelTop")},
                              {color(theme.panelBottom).rgb(), QStringLiteral("panelBottom")}});
    QPainter painter(&recorder);
    paint(painter);
    painter.end();
    return title + u'\n' + recorder.lines().join(u'\n') + u'\n';
}

QString drawings() {
    QStringList parts;
    for (const QString& key : ArtPainter::known() + QStringList{QStringLiteral("unknown")})
        parts.append(
            listed(key, [&](QPainter& painter) { ArtPainter::draw(key, painter, primary, secondary); }));
    parts.append(listed(QStringLiteral("badge"),
                        [](QPainter& painter) { ArtPainter::badge(painter, VLKThemes::current()); }));
    parts.append(listed(QStringLiteral("habitat of 1000 x 700"), [](QPainter& painter) {
        Habitat::paint(painter, {1000, 700}, VLKThemes::current());
    }));
    return parts.join(u'\n');
}

} // namespace

TEST(Drawings, AreMadeOfTheListedFillsAndStrokes) {
    QFile file(QStringLiteral(ORMIVA_ROOT "/tests/kit/drawings.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString expected = QString::fromUtf8(file.readAll());
    const QString actual = drawings();
    if (actual == expected)
        return;
    QFile now(QStringLiteral(ORMIVA_TEST_OUTPUT "/drawings.txt"));
    ASSERT_TRUE(now.open(QIODevice::WriteOnly | QIODevice::Truncate));
    now.write(actual.toUtf8());
    const QStringList was = expected.split(u'\n');
    const QStringList is = actual.split(u'\n');
    qsizetype line = 0;
    while (line < was.size() && line < is.size() && was.at(line) == is.at(line))
        ++line;
    ADD_FAILURE() << "Line " << line + 1 << " should be\n  " << was.value(line).toStdString()
                  << "\nand is\n  " << is.value(line).toStdString() << "\nThe whole list is in "
                  << now.fileName().toStdString();
}

} // namespace ormiva::testing
