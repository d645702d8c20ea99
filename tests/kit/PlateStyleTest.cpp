#include "PlateStyle.h"

#include <QImage>

#include <gtest/gtest.h>

namespace ormiva::testing {

namespace {

QImage painted(const PlateStyle& style, QSize size = {40, 20}) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    style.paint(painter, QRectF({}, size));
    return image;
}

} // namespace

TEST(PlateStyle, RoundsItsCornersSmoothly) {
    const QImage image = painted({.top = Qt::red, .bottom = Qt::red, .radius = 10});
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    EXPECT_EQ(image.pixel(20, 0), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(20, 19), qRgb(255, 0, 0));
    int soft = 0;
    for (int x = 0; x < 10; ++x)
        for (int y = 0; y < 10; ++y)
            soft += qAlpha(image.pixel(x, y)) > 0 && qAlpha(image.pixel(x, y)) < 255;
    EXPECT_GT(soft, 5);
}

TEST(PlateStyle, SlopesFromTopToBottom) {
    const QImage image = painted({.top = Qt::black, .bottom = Qt::white});
    EXPECT_LT(qRed(image.pixel(20, 0)), 20);
    EXPECT_NEAR(qRed(image.pixel(20, 10)), 133, 12);
    EXPECT_GT(qRed(image.pixel(20, 19)), 235);
}

TEST(PlateStyle, KeepsItsRimInside) {
    const QImage image = painted({.top = Qt::red, .bottom = Qt::red, .rim = Qt::blue, .rimWidth = 2});
    EXPECT_EQ(image.pixel(0, 10), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(1, 10), qRgb(0, 0, 255));
    EXPECT_EQ(image.pixel(2, 10), qRgb(255, 0, 0));
}

TEST(PlateStyle, PaintsNothingWithoutRoom) {
    const QImage image = painted({.top = Qt::red, .bottom = Qt::red, .rim = Qt::blue, .rimWidth = 60});
    EXPECT_EQ(image.pixel(20, 10), 0U);
}

} // namespace ormiva::testing
