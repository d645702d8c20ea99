#include "ScriptedPanels.h"

#include "AppModel.h"
#include "FailingSystem.h"
#include "MadeStore.h"

#include <QDir>
#include <QFile>

#include <cerrno>

namespace ormiva {
namespace {

using namespace ormiva::testing;

class Exporting : public ::testing::Test {
protected:
    void exportText() {
        panels.exportData("a,b\n1,2\n", u"Rex.csv"_qs,
                          {u"CSV"_qs, u"csv"_qs, u"public.comma-separated-values-text"_qs}, model,
                          made.store);
    }

    MadeStore made;
    TemporaryFolder elsewhere;
    AppModel model;
    ScriptedPanels panels;
};

TEST_F(Exporting, WritesTheFileAndShowsIt) {
    panels.answer = elsewhere.file(u"Rex.csv"_qs);
    exportText();
    EXPECT_EQ(panels.asked, QStringList({u"save Rex.csv .csv"_qs}));
    EXPECT_EQ(elsewhere.read(u"Rex.csv"_qs), QByteArray("a,b\n1,2\n"));
    EXPECT_EQ(panels.revealed, QStringList({*panels.answer}));
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(Exporting, DoesNothingWhenCancelled) {
    exportText();
    EXPECT_EQ(panels.revealed, QStringList());
    EXPECT_EQ(model.message(), std::nullopt);
}

TEST_F(Exporting, TellsWhyAFileCouldNotBeSaved) {
    panels.answer = elsewhere.file(u"no folder/Rex.csv"_qs);
    exportText();
    ASSERT_TRUE(model.message());
    EXPECT_TRUE(model.message()->startsWith(u"The file could not be saved: Could not write “"))
        << model.message()->toStdString();
    EXPECT_TRUE(model.message()->endsWith(u": "_qs + systemWords(ENOENT) + u'.'));
    EXPECT_EQ(panels.revealed, QStringList());
}

TEST_F(Exporting, NeverGoesOverTheRecords) {
    const QString digest = made.store.digest();
    for (const QString& path : {made.path(), made.path() + u"-journal"_qs}) {
        panels.answer = path;
        model.dismissMessage();
        exportText();
        EXPECT_EQ(
            model.message(),
            u"The file could not be saved: Please choose another place: this file holds your records."_qs);
    }
    EXPECT_EQ(OMStore(made.path()).digest(), digest);
    EXPECT_FALSE(QFile::exists(made.path() + u"-journal"_qs));
    EXPECT_EQ(panels.revealed, QStringList());
}

} // namespace
} // namespace ormiva
