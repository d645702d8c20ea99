#include "OMHelp.h"

#include "CareLibrary.h"
#include "CareSheetPDF.h"
#include "DoseScanner.h"
#include "OMInfo.h"
#include "Printers.h"

#include <gtest/gtest.h>

namespace ormiva {
namespace {

const CareLibrary& library() {
    static const CareLibrary shipped(QStringLiteral(ORMIVA_ROOT "/data"));
    return shipped;
}

class OMHelpTopics : public ::testing::Test {
protected:
    OMHelpTopics() { VLKHelp::topics = OMHelp::topics(library()); }
    ~OMHelpTopics() override { VLKHelp::topics.clear(); }

    static VLKHelpTopic topic(const QString& id) {
        for (const VLKHelpTopic& topic : VLKHelp::allTopics())
            if (topic.id == id)
                return topic;
        ADD_FAILURE() << "no topic " << id.toStdString();
        return {};
    }
    static QString found(const QString& query) {
        QStringList ids;
        for (const VLKHelpTopic& topic : VLKHelp::search(query))
            ids.append(topic.id);
        return ids.join(u' ');
    }
};

TEST_F(OMHelpTopics, StandInTheirOrder) {
    EXPECT_EQ(
        found(QString()),
        u"start notavet library symptoms pets logs vet reminders calendar checklist export caresheet backup "
        u"keys credits look about"_qs);
    const QString titles =
        u"Getting started (start to finish)|Not a substitute for a veterinarian|Species Library and "
        u"search|Symptom Checker|My Pets: profiles and photos|Weight, feeding and shed logs|Vet visits and "
        u"medicines|Reminders and notifications|Care Calendar|Enclosure checklist|Records for the vet (PDF "
        u"and "
        u"CSV)|Printable care sheet (PDF)|Backup and restore|Keyboard shortcuts|Sources & Credits|Themes and "
        u"interface zoom|About Ventrel"_qs;
    QStringList shown;
    for (const VLKHelpTopic& topic : VLKHelp::allTopics())
        shown.append(topic.title);
    EXPECT_EQ(shown.join(u'|'), titles);
}

TEST_F(OMHelpTopics, HaveEveryPlaceFilledIn) {
    for (const VLKHelpTopic& topic : VLKHelp::allTopics()) {
        EXPECT_FALSE(topic.body.contains(u'{')) << topic.id.toStdString();
        EXPECT_FALSE(topic.keywords.isEmpty()) << topic.id.toStdString();
        for (const QString& word : topic.keywords)
            EXPECT_EQ(word, word.toLower());
    }
    EXPECT_TRUE(
        topic(u"start"_qs)
            .body.startsWith(
                u"Welcome to VLK Ormiva, by Ventrel (VLK). It keeps care sheets for 35 exotic species, a "
                u"symptom checker and "
                u"your own pets' records together on your Mac.\n\n## 1. Read the care sheet\n• Open Species"_qs));
    EXPECT_TRUE(topic(u"notavet"_qs).body.startsWith(OMInfo::notAVet + u"\n\n## What this app does\n"_qs));
    EXPECT_TRUE(topic(u"notavet"_qs)
                    .body.endsWith(
                        u"Animal Poison Control Center, (888) 426-4435 (a consultation fee may apply)."_qs));
    EXPECT_TRUE(topic(u"vet"_qs).body.contains(u"\n• "_qs + OMInfo::doseNote + u'\n'));
    EXPECT_TRUE(topic(u"caresheet"_qs)
                    .body.contains(u"\n• The footer reads \""_qs + CareSheetPDF::footer() + u"\".\n"_qs));
    EXPECT_TRUE(topic(u"reminders"_qs).body.contains(u"System Settings → Notifications → VLK Ormiva.\n"_qs));
}

TEST_F(OMHelpTopics, StateNoDose) {
    for (const VLKHelpTopic& topic : VLKHelp::allTopics())
        EXPECT_TRUE(DoseScanner::findings(topic.title + u'\n' + topic.body).isEmpty())
            << topic.id.toStdString();
}

TEST_F(OMHelpTopics, AreFoundByWhatAKeeperTypes) {
    EXPECT_TRUE(found(u"UVB"_qs).split(u' ').contains(u"reminders"_qs));
    EXPECT_TRUE(found(u"vet"_qs).startsWith(u"notavet vet export "_qs));
    EXPECT_EQ(found(u"medicine"_qs), found(u"MEDICINE"_qs));
    EXPECT_EQ(found(u"médicine"_qs), found(u"medicine"_qs));
    EXPECT_EQ(found(u"stuck-shed"_qs), QString());
    EXPECT_EQ(found(u"OMBACKUP"_qs), u"backup"_qs);
}

TEST_F(OMHelpTopics, CreditEverySourceOnceUnderItsPublisher) {
    const QStringList paragraphs = topic(u"credits"_qs).body.split(u"\n\n## "_qs);
    EXPECT_EQ(paragraphs.at(0),
              u"All care-sheet text is written in our own words from the sources below. Facts were "
              u"checked against each page on "_qs +
                  library().sourcesChecked() +
                  u". Where sources disagree, the care sheet gives the range and cites both. "
                  u"Medicine doses are never included."_qs);
    EXPECT_EQ(paragraphs.at(1),
              u"Illustrations\n• Every animal picture and the app icon are original artwork drawn in "
              u"code for VLK Ormiva. No photographs are used."_qs);
    EXPECT_EQ(paragraphs.at(2), u"Software\n• VLK Ormiva — by Ventrel (VLK) — ventrel.example"_qs);

    QStringList publishers;
    qsizetype lines = 0;
    for (const QString& group : paragraphs.mid(3)) {
        const QStringList rows = group.split(u"\n• "_qs);
        publishers.append(rows.first());
        QStringList sorted = rows.mid(1);
        EXPECT_FALSE(sorted.isEmpty());
        lines += sorted.size();
    }
    QStringList ascending = publishers;
    ascending.sort();
    ascending.removeDuplicates();
    EXPECT_EQ(publishers, ascending);
    EXPECT_EQ(lines, library().sources().size());
    const SourceRef some = library().sources().begin().value();
    EXPECT_TRUE(topic(u"credits"_qs)
                    .body.contains(u"\n• "_qs + some.title + u" — "_qs + some.url + u" (checked "_qs +
                                   some.checked + u')'));
}

TEST(OMHelp, CountsNothingWithoutALibrary) {
    const CareLibrary empty(u"/nowhere"_qs);
    EXPECT_TRUE(OMHelp::topics(empty).first().body.contains(u"care sheets for 0 exotic species"_qs));
    EXPECT_TRUE(OMHelp::creditsTopic(empty).body.contains(u"checked against each page on . Where"_qs));
}

} // namespace
} // namespace ormiva
