#pragma once

#include "OMStore.h"

/// Three made-up pets with a realistic spread of records, for the self-test and for pictures of the screens.
/// Each is marked as a sample in its name and its notes.
namespace ormiva::SampleData {

/// Adds them, all days relative to today. Throws the store's first error.
void add(OMStore& store);

} // namespace ormiva::SampleData
