#pragma once

#include "OMThemes.h"
#include "PrefsInFile.h"
#include "ThemePrinters.h"
#include "VLKKit.h"
#include "VLKThemes.h"

namespace ormiva::testing {

/// The themes as a start of the program leaves them, with nothing stored. The default lasts as long as the
/// object.
class InstalledThemes : public ::testing::Test {
protected:
    InstalledThemes() {
        VLKThemes::setDefaultID(OMThemes::canopyID);
        VLKKit::install(QStringLiteral("VLK Ormiva"), {}, OMThemes::extras());
    }
    ~InstalledThemes() override { VLKThemes::setDefaultID(QStringLiteral("cobalt-gunmetal")); }

    PrefsInFile m_prefs;
};

} // namespace ormiva::testing
