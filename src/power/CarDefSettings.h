#pragma once

#include "model/IniFile.h"
#include "power/clsCarDef.h"

namespace tarnview {

/// The car definitions of the section "Power Graph". A file without any gives the one of the older
/// single-car keys, "Original", so that there is always one to work with. A missing key has the
/// value of a new definition.
void ReadCarDefs(const IniTable& table, clsCarDefs& cars);
void WriteCarDefs(const clsCarDefs& cars, IniWriter& file);

}  // namespace tarnview
