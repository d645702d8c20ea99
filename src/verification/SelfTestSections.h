#pragma once

#include "OMTestRun.h"

#include <QString>

/// The sections of the self-test. `scratch` is a folder for files that go with the run.
namespace ormiva::OMSelfTest {

void contentTests(OMTestRun& run);
void doseTests(OMTestRun& run);
void symptomTests(OMTestRun& run);
void searchTests(OMTestRun& run);
void recordTests(OMTestRun& run, const QString& scratch);
void relaunchTests(OMTestRun& run, const QString& scratch);
void reminderTests(OMTestRun& run, const QString& scratch);
void exportTests(OMTestRun& run, const QString& scratch);
void careSheetTests(OMTestRun& run, const QString& scratch);
void backupTests(OMTestRun& run, const QString& scratch);
void lookAndHelpTests(OMTestRun& run);
void artTests(OMTestRun& run);

} // namespace ormiva::OMSelfTest
