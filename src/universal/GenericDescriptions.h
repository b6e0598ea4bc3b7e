#pragma once

#include "model/clsLogFamilies.h"
#include "universal/clsDataLog.h"

namespace tarnview {

/// Names the file type and the family of Universal logs after a definition.
void SetGenericDataLogDescriptions(FileKinds& kinds, const clsDataLog& definition);

}  // namespace tarnview
