#pragma once

#include <string>

#include "model/clsLogDataItems.h"

namespace tarnview {

// How a user wants items of a log's own to be drawn. Their numbers differ from log to log, so they
// are known by their titles: "colour,style,width,Y,factor,TITLE" for each, with "|" between.

/// `kept` with those items whose display differs between the two collections, which are of one
/// definition; the latest are in front, and the oldest of very many are forgotten.
std::string KeepOwnItemDisplay(const std::string& kept, const clsLogDataItems& before,
                               const clsLogDataItems& after);

/// Lays what is kept over the items of the same titles; what is no such text is passed over.
void ShowOwnItemsAs(const std::string& kept, clsLogDataItems& items);

}  // namespace tarnview
