#pragma once

#include "FixedCalendar.h"
#include "MadeStore.h"
#include "PrefsInFile.h"

#include <QBuffer>
#include <QImage>

namespace ormiva::testing {

/// A store on November 21, 2026, with the care library that ships.
class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() { qputenv("OM_DATA_DIR", ORMIVA_ROOT "/data"); }

    FixedCalendar m_calendar{utc(2026, 11, 21, 13), u"Europe/Berlin"_qs};
    PrefsInFile m_prefs;
    MadeStore made;

    Pet addPet(const QString& name, const QString& speciesID) {
        Pet pet;
        pet.name = name;
        pet.speciesID = speciesID;
        return made.saved(pet);
    }
    /// A pet of a species that no library knows; the store itself would refuse it.
    Pet addUnknown(const QString& name = u"Rex"_qs) {
        Pet pet = addPet(name, u"rabbit"_qs);
        made.store.db().run(u"UPDATE pet SET species_id = 'dragon-fly' WHERE id = ?"_qs, {pet.id});
        return made.store.pet(pet.id).value();
    }
    WeightEntry addWeight(const Pet& pet, const OMDay& day, double grams, const QString& note = {}) {
        WeightEntry weight;
        weight.petID = pet.id;
        weight.day = day;
        weight.grams = grams;
        weight.note = note;
        return made.saved(weight);
    }
    Reminder addReminder(std::optional<qint64> petID, ReminderKind kind, qint64 everyDays, const OMDay& start,
                         qint64 hour, qint64 minute = 0, const QString& title = {}) {
        Reminder reminder;
        reminder.petID = petID;
        reminder.kind = kind;
        reminder.everyDays = everyDays;
        reminder.start = start;
        reminder.hour = hour;
        reminder.minute = minute;
        reminder.title = title;
        return made.saved(reminder);
    }

    /// A picture whose left half is red and whose right half is blue.
    static QByteArray photo(int width, int height, const char* format = "JPEG") {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        for (int y = 0; y < height; ++y)
            for (int x = width / 2; x < width; ++x)
                image.setPixelColor(x, y, Qt::blue);
        QBuffer bytes;
        image.save(&bytes, format, 95);
        return bytes.data();
    }
};

} // namespace ormiva::testing
