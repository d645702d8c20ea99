#include "OMHelpTopics.h"

namespace ormiva {

namespace {

QStringList words(const QString& listed) {
    return listed.split(QStringLiteral(", "));
}

} // namespace

const QList<VLKHelpTopic>& helpTopicTexts() {
    // clang-format off
    static const QList<VLKHelpTopic> topics = {
        {QStringLiteral("start"), QStringLiteral("Getting started (start to finish)"),
         QStringLiteral(R"(Welcome to {appName}, {creditLine}. It keeps care sheets for {species count} exotic species, a symptom checker and your own pets' records together on your Mac.

## 1. Read the care sheet
• Open Species Library in the side rail, or type a name on Home.
• Each sheet covers lifespan, size, enclosure, temperature, humidity, lighting/UVB, diet, handling, grooming and shedding, normal and warning signs, common illnesses, "see a vet NOW" signs and legal notes.
• The small chips under each section show where the facts came from. Click one to open the page.

## 2. Add your pet
• Click Add as My Pet on the care sheet, or My Pets → Add.
• Give the name, species, sex, birthday and a photo.

## 3. Keep records
• Log weights (grams are best), meals, sheds or molts, vet visits and medicines exactly as your vet wrote them.
• The weight chart shows the trend; a steady drop is an early warning sign.

## 4. Set reminders
• On a pet's Reminders tab, add feeding, water, cleaning, UVB bulb, weigh-in or check-up reminders. macOS shows them as notifications.

## 5. If something seems wrong
• Open Symptom Checker, pick the animal and tick what you see. You'll get possible causes and how urgent it may be.
• In an emergency, go to Find a Vet & Emergencies and call an exotic-animal vet now.

## 6. Take records to the vet
• My Pets → Export → Records for the Vet (PDF) makes a tidy printout of weights, meals, sheds, visits and medicines.

## 7. Back up
• Settings & Backup → Back Up Now saves everything (photos too) in one file.)"),
         words(QStringLiteral("welcome, begin, tutorial, how to, overview"))},
        {QStringLiteral("notavet"), QStringLiteral("Not a substitute for a veterinarian"),
         QStringLiteral(R"({notAVet}

## What this app does
• It explains general care, using reputable veterinary, university and zoo sources.
• The symptom checker lists POSSIBLE causes and how urgent signs may be. It never diagnoses.

## What this app never does
• It never suggests medicines or doses. Your vet will dose. Record medicines only as your vet prescribed them.
• It never replaces an examination. Many exotic animals hide signs of illness (Merck Veterinary Manual), so when in doubt, call a vet who treats your kind of animal.

## Emergencies
• Use Find a Vet & Emergencies: ARAV (reptiles and amphibians), AEMV (exotic mammals) and AAV (birds).
• Possible poisoning: ASPCA Animal Poison Control Center, {poisonPhone} (a consultation fee may apply).)"),
         words(QStringLiteral("vet, veterinarian, disclaimer, diagnosis, dose, emergency, medical"))},
        {QStringLiteral("library"), QStringLiteral("Species Library and search"),
         QStringLiteral(R"(The Species Library holds a care sheet for every species in the app, grouped as mammals, reptiles, amphibians, birds and invertebrates.

## Searching
• Type any word: an animal ("gecko"), a topic ("UVB", "calcium", "hay") or a problem ("stuck shed"). Every care sheet is searched, not just names.
• Several words find sheets that contain all of them. Word beginnings work too: "humid" finds humidity.
• Use the chips (All, Mammals, Reptiles…) to narrow the list.

## Reading a sheet
• "See an exotic vet NOW" is shown first, in red.
• Sections are grouped: At a glance, Habitat, Food, Daily life and Health.
• Where sources disagree, the sheet gives the range and names both sources.
• Some sheets say information is limited (for example skunks and hermit crabs have fewer veterinary sources). Ask your vet.)"),
         words(QStringLiteral("care sheet, find, species, fts, lookup"))},
        {QStringLiteral("symptoms"), QStringLiteral("Symptom Checker"),
         QStringLiteral(R"({notAVet}

## How to use it
• Choose the animal (or click one of your pets).
• Tick every sign you see. The list fits the kind of animal.
• Signs with a red cross are emergencies on their own.

## What the result means
• EMERGENCY — see an exotic vet NOW. Go now; call ahead.
• VET IN 24–48 H — book a visit soon.
• MONITOR — watch closely at home and call your vet if it continues or gets worse.
• The causes listed are possibilities only. Only a vet can tell which, if any, applies.
• Some signs are always urgent for certain animals. For example, a rabbit, guinea pig or chinchilla that stops eating or passing droppings is an emergency.

## Not eating and changing foods
• Under the result you'll find that species' advice on not eating and on changing foods safely.

## Finding a vet
• The result has buttons for ARAV, AEMV or AAV, depending on the animal.)"),
         words(QStringLiteral("sick, ill, check, urgent, emergency, triage, not eating"))},
        {QStringLiteral("pets"), QStringLiteral("My Pets: profiles and photos"),
         QStringLiteral(R"(• My Pets → Add (or Add as My Pet on a care sheet) creates a profile: name, species, sex, birthday, date acquired, markings, enclosure and notes.
• Add Photo picks an image from your Mac. It's resized to keep the records small.
• Each pet has tabs: Weight, Feeding, Shed / Molt, Vet Visits, Medicines and Reminders.
• Care Sheet and Symptoms buttons open that species' pages.
• Deleting a pet removes all of its records. You'll be asked first. A backup made earlier can bring them back.)"),
         words(QStringLiteral("profile, photo, add pet, birthday, delete"))},
        {QStringLiteral("logs"), QStringLiteral("Weight, feeding and shed logs"),
         QStringLiteral(R"(## Weight
• Weigh on a kitchen scale in grams, at the same time of day. You can type ounces or pounds; weights are stored in grams.
• The chart appears after two weights. The line under the chart compares the last 30 days and suggests a call to your vet after a loss of 10% or more.

## Feeding
• Note what was offered, how much, and whether it was eaten. Three refusals in the last five meals shows a warning.

## Shed / molt
• Record each shed (reptiles), molt (birds, tarantulas, hermit crabs) or skin slough (amphibians), and whether it came off whole. The app shows the average time between sheds.)"),
         words(QStringLiteral("weigh, grams, meal, food, shed, molt, chart"))},
        {QStringLiteral("vet"), QStringLiteral("Vet visits and medicines"),
         QStringLiteral(R"(## Vet visits
• Record the date, clinic, vet, reason, what the vet found and any follow-up.

## Medicines
• {doseNote}
• Type the medicine's name from the label and copy the vet's instructions word for word. Add start and end dates if you like.
• The app never calculates, suggests or changes a dose.)"),
         words(QStringLiteral("medicine, medication, prescription, dose, visit, clinic"))},
        {QStringLiteral("reminders"), QStringLiteral("Reminders and notifications"),
         QStringLiteral(R"(• Add reminders on a pet's Reminders tab or on the Care Calendar: feeding, fresh water, cleaning, UVB bulb, weigh-in, vet check-up or anything else.
• Choose how often (every N days), the first day and the time. Use the interval your vet or the care sheet suggests.
• UVB bulbs: VCA advises replacing them about every 6 months, or as the maker says, because UV output fades before the light looks dim. A new UVB reminder starts at 182 days.
• Click Done when you've done it; the next one is counted from that day.
• macOS asks permission the first time. If notifications don't appear, check System Settings → Notifications → {appName}.
• Turn all reminders off in Settings & Backup.)"),
         words(QStringLiteral("notification, alert, uvb, bulb, feeding, schedule, remind"))},
        {QStringLiteral("calendar"), QStringLiteral("Care Calendar"),
         QStringLiteral(R"(• The month view shows upcoming reminders (orange dots), your logs (green) and vet visits (gold).
• Click a day to see the list. The arrows change month; Today jumps back.
• All reminders for every pet are listed under the calendar.)"),
         words(QStringLiteral("month, agenda, schedule, dates"))},
        {QStringLiteral("checklist"), QStringLiteral("Enclosure checklist"),
         QStringLiteral(R"(• Pick a pet and a day, then tick each item as you check the habitat: temperatures, humidity, lighting, hides, water, cleaning.
• Each item shows the matching care-sheet section, so you can compare your thermometer or hygrometer with the recommended range.
• Ticks are saved per pet and per day.)"),
         words(QStringLiteral("habitat, cage, tank, terrarium, daily, check"))},
        {QStringLiteral("export"), QStringLiteral("Records for the vet (PDF and CSV)"),
         QStringLiteral(R"(• My Pets → choose the pet → Export.
• Records for the Vet (PDF) prints the profile, photo, weight chart and table, medicines, vet visits, feeding log and shed log.
• All Records as CSV saves the same information as a spreadsheet file.)"),
         words(QStringLiteral("pdf, csv, print, share, export, spreadsheet"))},
        {QStringLiteral("caresheet"), QStringLiteral("Printable care sheet (PDF)"),
         QStringLiteral(R"(A one-pet care sheet you can print and keep by the enclosure, or hand to a pet sitter.

## How to make one
• My Pets → choose the pet → Export → Care Sheet (PDF)…
• Or File → Export Care Sheet (PDF)… (⌘⇧E) for the pet chosen in My Pets.
• Choose where to save it; Finder then shows the file. Open it in Preview to print or share it.

## What it holds
• Your pet: name, species, age, sex, latest weight, the weight log (latest 12 with a chart), the last vet visit and every upcoming reminder.
• Vet-visit reminders: your Vet check-up reminders with their next date, the follow-up from the last visit, and where to find an exotic vet.
• Species care basics from the built-in care library: enclosure and minimum size, temperature range, humidity, lighting & UVB, diet, feeding schedule, foods to avoid, handling, health warning signs and when to see a vet NOW — each with its sources.
• The footer reads "{footer}".

## Good to know
• It never lists medicine doses — your vet will dose.
• It is a care guide, not a medical record. Records for the Vet (PDF) prints the full history.)"),
         words(QStringLiteral("care sheet, print, pdf, sitter, share, export, printable, handout"))},
        {QStringLiteral("backup"), QStringLiteral("Backup and restore"),
         QStringLiteral(R"(• Settings & Backup → Back Up Now saves one .ombackup file with every pet, record and photo. Keep a copy on another drive.
• Restore from Backup replaces your current records with the backup's. First, your current data is saved as "Before restore (date).sqlite" in the data folder, so nothing is lost.
• Your records live in: ~/Library/Application Support/VLK Ormiva/Pets.sqlite. Show Data Folder opens it.)"),
         words(QStringLiteral("save, copy, restore, data, file, move to new mac"))},
        {QStringLiteral("keys"), QStringLiteral("Keyboard shortcuts"),
         QStringLiteral(R"(• ⌘1 to ⌘8 — go to each screen (Go menu)
• ⌘N — new pet
• ⌘⇧W — log a weight
• ⌘⇧B — back up now
• ⌘⇧E — export the chosen pet's care sheet (PDF)
• ⌘+ / ⌘− / ⌘0 — zoom in, out, actual size (85% to 200%)
• ⌘? — Help)"),
         words(QStringLiteral("shortcut, keyboard, zoom"))},
    };
    // clang-format on
    return topics;
}

} // namespace ormiva
