#pragma once

#include "base/Clock.h"
#include "base/FileSystem.h"
#include "desk/EXEFunctions.h"
#include "desk/Messages.h"
#include "model/Settings.h"

namespace tarnview {

/// What the roads to the ECU ask of the program and the world.
struct EcuWorld {
  Host& host;
  Settings& settings;
  FileSystem& files;
  Clock& clock;
  EXEFunctions& programs;
  Messages& messages;
};

}  // namespace tarnview
