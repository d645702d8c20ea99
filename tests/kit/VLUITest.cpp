#include "VLUI.h"

#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva::testing {

TEST(VLUI, WritesLightOnDarkAndDarkOnLight) {
    const VLUI look(nullptr);
    EXPECT_EQ(look.inkOn(Qt::black), QColor(Qt::white));
    EXPECT_EQ(look.inkOn(look.emergency()), QColor(Qt::white));
    for (const QColor& light : {QColor(Qt::white), look.leaf(), look.warmLight()})
        EXPECT_LT(look.inkOn(light).lightnessF(), 0.15F) << light.name().toStdString();
}

} // namespace ormiva::testing
