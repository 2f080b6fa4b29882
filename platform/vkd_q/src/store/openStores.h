#pragma once

#include "store/ZobDatabase.h"

#include <memory>

/// Returns the store with this index, or null if there is none.
ZobDatabase* findStore(int index);

/// Returns the store with this index. If there is none, logs the error, sets `failure` and returns
/// null.
ZobDatabase* openStore(int index, VkdStatus* failure);

/// Adds the store and returns its index.
int addStore(std::shared_ptr<ZobDatabase> store);

void removeStore(int index);
