#pragma once

#include "OMDay.h"

#include <QList>
#include <QStringList>

#include <optional>
#include <utility>

/// The program's checks of itself, on scratch files and never on the user's records.
namespace ormiva::OMSelfTest {

/// Runs all sections, prints a line for each check and gives the exit status: 0 when all passed, else 1. Four
/// preferences are changed for the run and put back.
int run();

/// Runs as a child of a self-test when `arguments` ask for it: "--om-child-write" {path}, "--om-child-read"
/// {path},
/// "--om-child-prefs". Gives the exit status, or nothing.
std::optional<int> handleChild(const QStringList& arguments);

/// Runs this program as a child; its exit status (-1 when it could not be started or crashed) and what it
/// printed.
std::pair<int, QString> runChild(const QStringList& arguments);

/// The weights that the writing child stores: day and grams.
const QList<std::pair<OMDay, double>>& relaunchWeights();

} // namespace ormiva::OMSelfTest
