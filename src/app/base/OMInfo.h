#pragma once

#include <QString>
#include <QUrl>

/// The fixed facts of the application, and where its data lies.
namespace ormiva::OMInfo {

inline const QString appName = QStringLiteral("VLK Ormiva");
inline const QString creditLine = QStringLiteral("by Ventrel (VLK)");
/// By which the desktop knows the program: single instance, desktop entry, preferences.
inline const QString identity = QStringLiteral("com.ventrel.ormiva");
inline const QUrl website = QUrl(QStringLiteral("https://ventrel.example"));

inline const QString notAVet =
    QStringLiteral("This app is not a substitute for a veterinarian. It lists POSSIBLE causes only and never "
                   "diagnoses. If you are worried about your pet, contact a veterinarian experienced with "
                   "exotic animals.");
inline const QString doseNote =
    QStringLiteral("This app never suggests medicine doses — your vet will dose. Record the instructions "
                   "exactly as your vet wrote them.");

/// Association of Reptilian and Amphibian Veterinarians, find-a-vet page.
inline const QUrl arav = QUrl(QStringLiteral("https://arav.org/find-a-vet/"));
/// Association of Exotic Mammal Veterinarians.
inline const QUrl aemv = QUrl(QStringLiteral("https://www.aemv.org/"));
/// Association of Avian Veterinarians.
inline const QUrl aav = QUrl(QStringLiteral("https://www.aav.org/"));
/// ASPCA Animal Poison Control Center and its telephone.
inline const QUrl poisonControl =
    QUrl(QStringLiteral("https://www.aspca.org/pet-care/animal-poison-control"));
inline const QString poisonPhone = QStringLiteral("(888) 426-4435");

/// The folder "VLK Ormiva" in the user's data location. Each call makes sure that it exists; a failure to
/// make it is not reported here but by whoever writes there.
QString dataFolder();

/// The absolute path of the records: `OM_DB_PATH` when it is set and not empty, else "Pets.sqlite" in
/// `dataFolder`.
QString databaseURL();

} // namespace ormiva::OMInfo
