#pragma once

#include "ZobDatabase.h"

#include <memory>

/// The store under this index; null, with `failure` set and a log line, if there is none.
ZobDatabase* openStore(int index, VkdStatus* failure);

/// Takes the store in; its index.
int addStore(std::shared_ptr<ZobDatabase> store);

void removeStore(int index);
