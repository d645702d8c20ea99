#pragma once

/// What is set up before the window: the kit's texts and themes, and the records.
namespace ormiva::OMSetup {

/// Makes the canopy theme the default, installs the product's name and themes in the kit and sets the lines
/// of the about box. This is the first use of the care library, so it loads here.
void configure();

/// Opens the records as `OMStore::shared`. A file that won't open is left exactly as it is, an empty file of
/// today's date in the data folder is opened instead, and a message says so once the application is up.
void openStore();

/// Queues one message that names what of the care library could not be read, unless another one waits by
/// then.
void reportLoadProblems();

} // namespace ormiva::OMSetup
