// The self-test's sections on the shipped content: the care library, doses, the symptom checker, the search.

#include "CareLibrary.h"
#include "DoseScanner.h"
#include "OMMutation.h"
#include "SelfTestSections.h"
#include "SymptomChecker.h"

#include <algorithm>

namespace ormiva::OMSelfTest {

namespace {

constexpr qsizetype fewestSpecies = 30;
constexpr qsizetype mostSpecies = 40;
constexpr qsizetype fewestSources = 100;
constexpr qsizetype mostUncited = 3;
constexpr qsizetype silentLimit = 40;

/// The first few of a list, for a caption.
QString some(const QStringList& texts) {
    constexpr qsizetype shown = 5;
    if (texts.isEmpty())
        return {};
    return QStringLiteral(": ") + texts.first(std::min(texts.size(), shown)).join(QStringLiteral(", "));
}

bool saysSilent(const QString& text) {
    const QString lower = text.toLower();
    return lower.contains(QStringLiteral("not covered by the cited sources")) ||
           lower.contains(QStringLiteral("given in the cited")) ||
           lower.contains(QStringLiteral("the cited sources do not"));
}

/// "{species} {section}" of every section for which `fails` holds.
template <typename Test>
QStringList sectionsThat(const QList<Species>& species, const Test& fails) {
    QStringList places;
    for (const Species& animal : species)
        for (const CareFieldInfo& field : allCareFields())
            if (fails(animal, field))
                places.append(animal.id + u' ' + field.id);
    return places;
}

template <typename Test>
QStringList speciesThat(const QList<Species>& species, const Test& fails) {
    QStringList ids;
    for (const Species& animal : species)
        if (fails(animal))
            ids.append(animal.id);
    return ids;
}

void checkSections(OMTestRun& run, const QList<Species>& species, const CareLibrary& library) {
    const QStringList thin = sectionsThat(species, [](const Species& animal, const CareFieldInfo& field) {
        return animal.field(field.field).t.trimmed().size() < 20;
    });
    run.check(thin.isEmpty(), QStringLiteral("every species has text in all 22 sections") + some(thin));
    const QStringList uncited = sectionsThat(species, [](const Species& animal, const CareFieldInfo& field) {
        return animal.field(field.field).s.isEmpty();
    });
    run.check(uncited.isEmpty(), QStringLiteral("every section cites a source") + some(uncited));
    const QStringList dangling =
        sectionsThat(species, [&](const Species& animal, const CareFieldInfo& field) {
            return !std::ranges::all_of(animal.field(field.field).s,
                                        [&](const QString& key) { return library.source(key).has_value(); });
        });
    run.check(dangling.isEmpty(), QStringLiteral("every cited source is listed") + some(dangling));
    const QStringList silent = sectionsThat(species, [](const Species& animal, const CareFieldInfo& field) {
        return saysSilent(animal.field(field.field).t);
    });
    run.check(
        silent.size() < silentLimit,
        QStringLiteral("fewer than 40 sections say that the sources are silent (%1)").arg(silent.size()));
    const QStringList oneUnit = speciesThat(species, [](const Species& animal) {
        const QString text = animal.field(CareField::Temperature).t;
        const bool celsius = text.contains(QStringLiteral("°C"));
        return celsius != text.contains(QStringLiteral("°F")) || (!celsius && !saysSilent(text));
    });
    run.check(oneUnit.isEmpty(), QStringLiteral("every temperature is given in °C and °F") + some(oneUnit));
}

void checkSpecies(OMTestRun& run, const QList<Species>& species) {
    run.check(species.size() >= fewestSpecies && species.size() <= mostSpecies,
              QStringLiteral("the library holds 30 to 40 species (%1)").arg(species.size()));
    QStringList ids = speciesThat(species, [](const Species&) { return true; });
    run.check(ids.removeDuplicates() == 0, QStringLiteral("every species has an id of its own"));
    const QStringList nameless = speciesThat(species, [](const Species& animal) {
        return animal.name.isEmpty() || animal.scientific.isEmpty() || animal.summary.size() < 30;
    });
    run.check(nameless.isEmpty(),
              QStringLiteral("every species has its names and a summary") + some(nameless));
    const QStringList few =
        speciesThat(species, [](const Species& animal) { return animal.sourceKeys().size() < 2; });
    run.check(few.isEmpty(), QStringLiteral("every species cites at least 2 sources") + some(few));
    const QStringList colorless =
        speciesThat(species, [](const Species& animal) { return animal.palette.size() != 2; });
    run.check(colorless.isEmpty(), QStringLiteral("every species has two colors") + some(colorless));
    QStringList limited =
        speciesThat(species, [](const Species& animal) { return animal.limited.has_value(); });
    limited.sort();
    run.check(limited == QStringList{QStringLiteral("hermit-crab"), QStringLiteral("skunk")},
              QStringLiteral("hermit crab and skunk alone are marked as thinly covered") + some(limited));
}

void checkSources(OMTestRun& run, const CareLibrary& library) {
    const auto& sources = library.sources();
    run.check(sources.size() >= fewestSources,
              QStringLiteral("at least 100 sources are listed (%1)").arg(sources.size()));
    QStringList unfit;
    QStringList strange;
    QSet<QString> cited;
    for (const Species& animal : library.species())
        for (const QString& key : animal.sourceKeys())
            cited.insert(key);
    for (const SymptomRule& rule : library.rules())
        for (const QString& key : rule.s)
            cited.insert(key);
    for (const SourceRef& source : sources) {
        if (!source.url.startsWith(QStringLiteral("https://")) || source.title.isEmpty() ||
            source.checked.size() != 10)
            unfit.append(source.key);
        const QStringList words = {QStringLiteral("Veterinary"), QStringLiteral("veterinary"),
                                   QStringLiteral("University"), QStringLiteral("Zoo"),
                                   QStringLiteral("poison")};
        if (std::ranges::none_of(words, [&](const QString& word) { return source.kind.contains(word); }))
            strange.append(source.key);
    }
    run.check(unfit.isEmpty(),
              QStringLiteral("every source has an https address, a title and a day") + some(unfit));
    run.check(strange.isEmpty(),
              QStringLiteral("every source is veterinary, a university, a zoo or poison control") +
                  some(strange));
    run.check(
        cited.size() >= sources.size() - mostUncited,
        QStringLiteral("nearly every source is cited (%1 of %2)").arg(cited.size()).arg(sources.size()));
}

void checkRules(OMTestRun& run, const CareLibrary& library) {
    run.check(library.symptoms().size() >= 20 && library.rules().size() > 24,
              QStringLiteral("there are at least 20 signs and more than 24 rules (%1, %2)")
                  .arg(library.symptoms().size())
                  .arg(library.rules().size()));
    QSet<QString> signs;
    for (const SymptomDef& sign : library.symptoms())
        signs.insert(sign.id);
    QStringList unknown;
    QStringList uncited;
    for (const SymptomRule& rule : library.rules()) {
        const QStringList animals = rule.species.value_or(QStringList());
        if (!std::ranges::all_of(rule.when, [&](const QString& id) { return signs.contains(id); }) ||
            !std::ranges::all_of(animals, [&](const QString& id) { return library.species(id).has_value(); }))
            unknown.append(rule.id);
        if (rule.s.isEmpty() ||
            !std::ranges::all_of(rule.s, [&](const QString& key) { return library.source(key).has_value(); }))
            uncited.append(rule.id);
    }
    run.check(unknown.isEmpty(),
              QStringLiteral("every rule names signs and species that exist") + some(unknown));
    run.check(uncited.isEmpty(), QStringLiteral("every rule cites listed sources") + some(uncited));
    QStringList unruled;
    for (const SymptomDef& sign : library.symptoms())
        if (sign.isRedFlag() && std::ranges::none_of(library.rules(), [&](const SymptomRule& rule) {
                return rule.when == QStringList{sign.id} && rule.urgency == Urgency::Emergency;
            }))
            unruled.append(sign.id);
    run.check(unruled.isEmpty(), QStringLiteral("every red flag has its own emergency rule") + some(unruled));
}

void checkFixedAnswers(OMTestRun& run, const CareLibrary& library) {
    using enum Urgency;
    const QList<std::tuple<QString, QString, Urgency>> fixed = {
        {QStringLiteral("rabbit"), QStringLiteral("not-eating"), Emergency},
        {QStringLiteral("guinea-pig"), QStringLiteral("not-eating"), Emergency},
        {QStringLiteral("chinchilla"), QStringLiteral("not-eating"), Emergency},
        {QStringLiteral("rabbit"), QStringLiteral("no-droppings"), Emergency},
        {QStringLiteral("guinea-pig"), QStringLiteral("no-droppings"), Emergency},
        {QStringLiteral("chinchilla"), QStringLiteral("no-droppings"), Emergency},
        {QStringLiteral("ferret"), QStringLiteral("vomit"), Emergency},
        {QStringLiteral("hamster"), QStringLiteral("diarrhea"), Emergency},
        {QStringLiteral("bearded-dragon"), QStringLiteral("not-eating"), Monitor},
        {QStringLiteral("leopard-gecko"), QStringLiteral("shed"), Monitor},
        {QStringLiteral("budgie"), QStringLiteral("discharge"), Soon},
        {QStringLiteral("rat"), QStringLiteral("lump"), Soon},
        {QStringLiteral("axolotl"), QStringLiteral("water-warm"), Emergency},
    };
    for (const auto& [id, sign, urgency] : fixed) {
        const auto animal = library.species(id);
        run.check(animal && SymptomChecker::check(*animal, {sign}, library).urgency == urgency,
                  QStringLiteral("%1 with %2: %3").arg(id, sign, info(urgency).shortTitle));
    }
}

bool anyNames(const QStringList& causes, const QString& word) {
    return std::ranges::any_of(causes, [&](const QString& cause) { return cause.contains(word); });
}

} // namespace

void contentTests(OMTestRun& run) {
    const CareLibrary& library = CareLibrary::shared();
    run.check(library.loadProblems().isEmpty(),
              QStringLiteral("all content files load") + some(library.loadProblems()));
    QList<Species> species = library.species();
    if (OMMutation::on(QStringLiteral("missing-source")) && !species.isEmpty())
        species.first().fields[info(CareField::Diet).id].s.clear();
    checkSpecies(run, species);
    checkSections(run, species, library);
    checkSources(run, library);
    checkRules(run, library);
}

void doseTests(OMTestRun& run) {
    for (const QString& dose :
         {QStringLiteral("give 0.5 mg/kg"), QStringLiteral("10 mg once"), QStringLiteral("0.2 mL/kg"),
          QStringLiteral("2 ml by mouth"), QStringLiteral("every q12h"), QStringLiteral("50 IU"),
          QStringLiteral("25 mcg"), QStringLiteral("1 tablet twice daily"),
          QStringLiteral("5 mg per kg body weight")})
        run.check(!DoseScanner::findings(dose).isEmpty(),
                  QStringLiteral("\"%1\" is seen as a dose").arg(dose));
    for (const QString& text : {QStringLiteral("Keep at 30–35 °C (86–95 °F)"),
                                QStringLiteral("60–70% humidity"), QStringLiteral("about 120 × 60 cm"),
                                QStringLiteral("Weigh weekly in grams"), QStringLiteral("UVB 290–320 nm"),
                                QStringLiteral("12 hours a day"), QStringLiteral("1 tablespoon of greens")})
        run.check(DoseScanner::findings(text).isEmpty(), QStringLiteral("\"%1\" is not").arg(text));

    QList<DoseScanner::ShippedText> texts = DoseScanner::shippedTexts();
    if (OMMutation::on(QStringLiteral("dose")))
        texts.append({QStringLiteral("mutation"), QStringLiteral("give 0.5 mg/kg")});
    QStringList found;
    for (const auto& [label, content] : texts)
        if (!DoseScanner::findings(content).isEmpty())
            found.append(label);
    run.check(found.isEmpty(),
              QStringLiteral("no dose amounts in %1 shipped texts").arg(texts.size()) + some(found));
}

void symptomTests(OMTestRun& run) {
    const CareLibrary& library = CareLibrary::shared();
    int redFlags = 0;
    QStringList calm;
    QStringList unworded;
    QStringList relaxed;
    QStringList diagnoses;
    for (const Species& animal : library.species())
        for (const SymptomDef& sign : library.symptoms(animal)) {
            const SymptomResult result = SymptomChecker::check(animal, {sign.id}, library);
            const QString place = animal.id + u' ' + sign.id;
            if (sign.isRedFlag()) {
                ++redFlags;
                if (result.urgency != Urgency::Emergency || result.redFlags != QList<SymptomDef>{sign})
                    calm.append(place);
            }
            const QStringList causes = result.possibleCauses();
            if (!std::ranges::all_of(causes, [](const QString& cause) {
                    return cause.startsWith(QStringLiteral("Possible: "));
                }))
                unworded.append(place);
            const QString words =
                (causes + result.advice() + QStringList{result.headline()}).join(u'\n').toLower();
            if (result.urgency == Urgency::Emergency && words.contains(QStringLiteral("24–48")))
                relaxed.append(place);
            for (const QString& diagnosis : {QStringLiteral("diagnosis:"), QStringLiteral("your pet has "),
                                             QStringLiteral("is diagnosed")})
                if (words.contains(diagnosis))
                    diagnoses.append(place);
        }
    run.check(redFlags > 0 && calm.isEmpty(),
              QStringLiteral("every red flag of every species is an emergency (%1 pairs)").arg(redFlags) +
                  some(calm));
    run.check(unworded.isEmpty(), QStringLiteral("every cause is worded as a possibility") + some(unworded));
    run.check(relaxed.isEmpty(),
              QStringLiteral("no emergency names a 24–48 hour time frame") + some(relaxed));
    run.check(diagnoses.isEmpty(), QStringLiteral("no result states a diagnosis") + some(diagnoses));
    checkFixedAnswers(run, library);

    const auto causesOf = [&](const QString& id, const QString& sign) {
        const auto animal = library.species(id);
        return animal ? SymptomChecker::check(*animal, {sign}, library).possibleCauses() : QStringList();
    };
    run.check(
        anyNames(causesOf(QStringLiteral("ferret"), QStringLiteral("collapse")), QStringLiteral("ferret")) &&
            !anyNames(causesOf(QStringLiteral("rabbit"), QStringLiteral("collapse")),
                      QStringLiteral("ferret")),
        QStringLiteral("a cause that names ferrets is shown to ferrets only"));
    run.check(anyNames(causesOf(QStringLiteral("budgie"), QStringLiteral("breathing")),
                       QStringLiteral("in birds")) &&
                  !anyNames(causesOf(QStringLiteral("hamster"), QStringLiteral("breathing")),
                            QStringLiteral("in birds")),
              QStringLiteral("a cause \"in birds\" is shown to birds only"));
    const QStringList ofRabbit = causesOf(QStringLiteral("rabbit"), QStringLiteral("not-eating"));
    run.check(!ofRabbit.isEmpty() && !anyNames(ofRabbit, QStringLiteral("guinea pig")) &&
                  !anyNames(ofRabbit, QStringLiteral("tarantula")) &&
                  !anyNames(ofRabbit, QStringLiteral("hermit crab")),
              QStringLiteral("a rabbit is told nothing of other animals"));
    const auto rabbit = library.species(QStringLiteral("rabbit"));
    run.check(rabbit && rabbit->field(CareField::NotEating).t.contains(QStringLiteral("gut stasis")),
              QStringLiteral("the rabbit's sheet names gut stasis"));
}

void searchTests(OMTestRun& run) {
    const CareLibrary& library = CareLibrary::shared();
    const auto found = [&](const QString& query) {
        QStringList ids;
        for (const Species& animal : library.search(query))
            ids.append(animal.id);
        return ids;
    };
    run.check(library.usesFTS5(), QStringLiteral("full-text index is FTS5"));
    const bool spoiled = OMMutation::on(QStringLiteral("search"));
    run.check(!spoiled && found(QStringLiteral("bearded")).value(0) == QStringLiteral("bearded-dragon"),
              QStringLiteral("\"bearded\" finds the bearded dragon first"));
    const QStringList hay = found(QStringLiteral("hay"));
    run.check(hay.contains(QStringLiteral("rabbit")) && hay.contains(QStringLiteral("guinea-pig")) &&
                  hay.contains(QStringLiteral("chinchilla")) && hay.contains(QStringLiteral("degu")),
              QStringLiteral("\"hay\" finds rabbit, guinea pig, chinchilla and degu"));
    const qsizetype uvb = found(QStringLiteral("UVB")).size();
    run.check(uvb > 0, QStringLiteral("\"UVB\" finds %1 sheets").arg(uvb));
    const QStringList humid = found(QStringLiteral("humid"));
    run.check(std::ranges::all_of(found(QStringLiteral("humidity")),
                                  [&](const QString& id) { return humid.contains(id); }),
              QStringLiteral("\"humid\" finds what \"humidity\" finds"));
    run.check(found(QStringLiteral("pogona")).contains(QStringLiteral("bearded-dragon")) &&
                  found(QStringLiteral("AMBYSTOMA")).contains(QStringLiteral("axolotl")),
              QStringLiteral("scientific names are found, whatever the case"));
    run.check(found(QStringLiteral("stuck shed")).contains(QStringLiteral("ball-python")),
              QStringLiteral("\"stuck shed\" finds the ball python"));
    run.check(found(QStringLiteral("zzqxj")).isEmpty(), QStringLiteral("a made-up word finds nothing"));
    run.check(found(QString()).size() == library.species().size() &&
                  found(QStringLiteral("***")).size() == library.species().size(),
              QStringLiteral("an empty query and one of marks list every species"));
    run.check(found(QStringLiteral("\"hay")) == hay &&
                  found(QStringLiteral("(hay* OR")) == found(QStringLiteral("hay or")),
              QStringLiteral("stray search syntax does no harm"));
    const QStringList reptiles = found(QStringLiteral("reptiles"));
    run.check(std::ranges::all_of(library.species(),
                                  [&](const Species& animal) {
                                      return animal.group != SpeciesGroup::Reptile ||
                                             reptiles.contains(animal.id);
                                  }),
              QStringLiteral("\"reptiles\" finds every reptile"));
}

} // namespace ormiva::OMSelfTest
