#pragma once

#include <functional>

/// Measurements that come in pairs: what the program does, and the least that could do it. Both are timed in
/// turn in one run, so their ratio holds on a machine whose speed drifts.
namespace ormiva::bench {

/// Times `ours` against `bare`; `limit` is the ratio that is aimed at, at most.
void addPair(const char* name, double limit, const std::function<void()>& ours,
             const std::function<void()>& bare);

void addLibraryPairs();
void addStorePairs();
void addTrackingPairs();
void addDocumentPairs();
void addArtPairs();

} // namespace ormiva::bench
