#pragma once

#include "OMStore.h"

namespace ormiva::bench {

/// A pet with fourteen years of daily weights and meals and 200 visits to the vet.
Pet addLongRecords(OMStore& store);

} // namespace ormiva::bench
