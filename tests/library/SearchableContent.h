#pragma once

#include "CareLibrary.h"
#include "LibraryPrinters.h"

namespace ormiva::testing {

/// A made-up library with enough in it to be searched.
class SearchableContent {
public:
    SearchableContent() {
        m_content.addValidLists();
        add(u"rabbit"_qs, u"Rabbit"_qs, u"Oryctolagus cuniculus"_qs, u"mammal"_qs,
            u"Grass hay and straw."_qs);
        add(u"guinea-pig"_qs, u"Guinea Pig"_qs, u"Cavia porcellus"_qs, u"mammal"_qs,
            u"Grass hay, but no straw."_qs);
        add(u"chinchilla"_qs, u"Chinchilla"_qs, u"Chinchilla lanigera"_qs, u"mammal"_qs,
            u"Hay. Keep it dry."_qs);
        add(u"degu"_qs, u"Degu"_qs, u"Octodon degus"_qs, u"mammal"_qs, u"Timothy hay every day."_qs);
        add(u"bearded-dragon"_qs, u"Bearded Dragon"_qs, u"Pogona vitticeps"_qs, u"reptile"_qs,
            u"A UVB tube (T5) above the basking place."_qs);
        add(u"leopard-gecko"_qs, u"Leopard Gecko"_qs, u"Eublepharis macularius"_qs, u"reptile"_qs,
            u"Needs less UVB than a bearded dragon, and a humid hide."_qs);
        add(u"ball-python"_qs, u"Ball Python"_qs, u"Python regius"_qs, u"reptile"_qs,
            u"Low humidity leads to stuck skin."_qs, u"A bad shed is common."_qs);
        add(u"axolotl"_qs, u"Axolotl"_qs, u"Ambystoma mexicanum"_qs, u"amphibian"_qs,
            u"Cool water. Studied at Zoo Santo Inácio."_qs);
        add(u"budgie"_qs, u"Budgerigar"_qs, u"Melopsittacus undulatus"_qs, u"bird"_qs,
            u"Seeds and greens."_qs);
        add(u"hermit-crab"_qs, u"Land Hermit Crab"_qs, u"Coenobita clypeatus"_qs, u"invertebrate"_qs,
            u"High humidity. Extra shells."_qs);
    }

    QString path() const { return m_content.path(); }
    /// In library order.
    static QStringList everything() {
        return {u"chinchilla"_qs,     u"degu"_qs,          u"guinea-pig"_qs, u"rabbit"_qs, u"ball-python"_qs,
                u"bearded-dragon"_qs, u"leopard-gecko"_qs, u"axolotl"_qs,    u"budgie"_qs, u"hermit-crab"_qs};
    }

private:
    void add(const QString& id, const QString& name, const QString& scientific, const QString& group,
             const QString& diet, const QString& illnesses = {}) const {
        QJsonObject json = Json::species(id, name, group);
        json.insert(u"scientific"_qs, scientific);
        json.insert(u"fields"_qs,
                    QJsonObject{{u"diet"_qs, Json::cited(diet)}, {u"illnesses"_qs, Json::cited(illnesses)}});
        m_content.species(id + u".json"_qs, json);
    }

    ContentFolder m_content;
};

} // namespace ormiva::testing
