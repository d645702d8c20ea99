// Choosing a photo in the panel; what becomes of the picture is in PhotoPickerTest.cpp.

#include "PhotoPicker.h"

#include "MadePhotos.h"
#include "Printers.h"
#include "ScriptedPanels.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <QFile>

namespace ormiva {

namespace {

using namespace ormiva::testing;

constexpr std::nullopt_t nothing = std::nullopt;

class Picking : public ::testing::Test {
protected:
    std::optional<QByteArray> picked(const std::optional<QString>& path) {
        panels.answer = path;
        return PhotoPicker::pick(panels);
    }

    ScriptedPanels panels;
    TemporaryFolder folder;
};

TEST_F(Picking, GivesTheChosenPictureShrunk) {
    const QByteArray picture = encoded(plain(3000, 1500), "PNG");
    const auto photo = picked(folder.write(u"Rex on his rock.PNG"_qs, picture));
    ASSERT_TRUE(photo.has_value());
    EXPECT_EQ(QImage::fromData(*photo, "JPEG").size(), QSize(900, 450));
    EXPECT_EQ(photo, PhotoPicker::shrink(picture));
    EXPECT_EQ(panels.asked, QStringList({u"open .jpg Choose a photo"_qs}));
}

TEST_F(Picking, GivesNothingWhenCancelled) {
    EXPECT_EQ(picked(nothing), nothing);
    EXPECT_EQ(panels.asked.size(), 1);
}

TEST_F(Picking, GivesNothingForAFileThatCannotBeRead) {
    EXPECT_EQ(picked(folder.file(u"gone.jpg"_qs)), nothing);
    EXPECT_EQ(picked(folder.path()), nothing);
    EXPECT_EQ(picked(QString()), nothing);
    EXPECT_EQ(picked(u"/dev/zero"_qs), nothing);
    EXPECT_EQ(picked(u"/proc/self/mem"_qs), nothing);
}

TEST_F(Picking, GivesNothingForAFileThatIsNoPicture) {
    EXPECT_EQ(picked(folder.write(u"diary.jpg"_qs, "My pet eats crickets.\n")), nothing);
    EXPECT_EQ(picked(folder.write(u"empty.jpg"_qs, "")), nothing);
}

TEST_F(Picking, GivesNothingForAFileBeyondAnySize) {
    const QString path = folder.write(u"large.png"_qs, encoded(plain(10, 10), "PNG"));
    EXPECT_NE(picked(path), nothing);
    ASSERT_TRUE(QFile::resize(path, 512LL * 1024 * 1024)); // A file of zeros takes no room.
    EXPECT_NE(picked(path), nothing);
    ASSERT_TRUE(QFile::resize(path, 512LL * 1024 * 1024 + 1));
    EXPECT_EQ(picked(path), nothing);
}

TEST(Images, AreAllThatCanBeDecoded) {
    const FileType type = PhotoPicker::images();
    EXPECT_EQ(type.name, u"Images"_qs);
    EXPECT_EQ(type.suffixes().first(), u"jpg"_qs);
    for (const QString& suffix :
         {u"jpg"_qs, u"jpeg"_qs, u"png"_qs, u"webp"_qs, u"tiff"_qs, u"tif"_qs, u"gif"_qs, u"bmp"_qs})
        EXPECT_EQ(type.suffixes().count(suffix), 1) << suffix.toStdString();
}

} // namespace
} // namespace ormiva
