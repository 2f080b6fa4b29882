#pragma once

#include "store/ZobDatabase.h"

#include <memory>

/// Returns the store with this index, or null if there is none.
ZobDatabase* findStore(int index);

/// Logs that no store has this index and returns the failure.
VkdStatus reportNotOpen(int index);

/// Adds the store and returns its index.
int addStore(std::shared_ptr<ZobDatabase> store);

void removeStore(int index);
