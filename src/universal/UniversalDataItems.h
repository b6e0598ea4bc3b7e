#pragma once

#include "model/clsLogDataItems.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// The data items of a definition's logs: those of the catalogue, with what the columns say about
/// them. Items that the definition can deliver belong to the family of Universal logs too.
clsLogDataItems GenerateLogDataItemsGeneric(const clsDataLog& objDefinition,
                                            const clsLogDataItems& catalogue);

}  // namespace tarnview
